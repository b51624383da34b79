#include <gtest/gtest.h>

#include <filesystem>

#include "TemporaryFolder.h"
#include "TestDialog.h"
#include "extension/ExtensionIds.h"

namespace {

using AskFunction = LRESULT (*)(WPARAM);

class Library {
public:
    Library() : m_module(::LoadLibraryW(L"mfc_test_extension.dll")) {}
    ~Library()
    {
        if (m_module)
            ::FreeLibrary(m_module);
    }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    [[nodiscard]] HMODULE Module() const noexcept { return m_module; }
    [[nodiscard]] LRESULT Ask(WPARAM value) const
    {
        const auto ask =
            reinterpret_cast<AskFunction>(reinterpret_cast<void*>(::GetProcAddress(m_module, "AskExtensionDialog")));
        return ask ? ask(value) : -2;
    }

private:
    HMODULE m_module;
};

// A copy of the library's file, loaded for its resources alone: it has not put itself on the chain.
class Copy {
public:
    explicit Copy(const Library& library) : m_file(m_folder.Path() / "copy.dll")
    {
        wchar_t original[MAX_PATH];
        ::GetModuleFileNameW(library.Module(), original, MAX_PATH);
        std::filesystem::copy_file(original, m_file);
        m_module = ::LoadLibraryExW(m_file.c_str(), nullptr, DONT_RESOLVE_DLL_REFERENCES);
    }
    ~Copy() { ::FreeLibrary(m_module); }
    Copy(const Copy&) = delete;
    Copy& operator=(const Copy&) = delete;

    [[nodiscard]] HMODULE Module() const noexcept { return m_module; }

private:
    kztest::TemporaryFolder m_folder;
    std::filesystem::path m_file;
    HMODULE m_module = nullptr;
};

HINSTANCE DialogModule(UINT id)
{
    return AfxFindResourceHandle(MAKEINTRESOURCEW(id), reinterpret_cast<LPCWSTR>(RT_DIALOG));
}

const HINSTANCE program = ::GetModuleHandleW(nullptr);

TEST(Extension, PutsItsResourcesOnTheChainWhileItIsLoaded)
{
    EXPECT_EQ(DialogModule(IDD_EXTENSION), program) << "the program is the answer when nobody has it";
    {
        const Library library;
        ASSERT_NE(library.Module(), nullptr);
        EXPECT_EQ(DialogModule(IDD_EXTENSION), library.Module());
    }
    EXPECT_EQ(DialogModule(IDD_EXTENSION), program);
}

TEST(Extension, ComesAfterTheProgramItself)
{
    const Library library;
    EXPECT_EQ(DialogModule(IDD_SHADOWED), program);
}

TEST(Extension, LetsTheProgramCreateItsDialogs)
{
    const Library library;
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_EXTENSION));
    CString caption;
    dialog.GetWindowText(caption);
    EXPECT_EQ(caption, L"Extension");
    dialog.DestroyWindow();
}

TEST(Extension, CanBeLoadedAndFreedManyTimes)
{
    for (int run = 0; run < 100; ++run) {
        const Library library;
        ASSERT_NE(library.Module(), nullptr);
        // Its message maps are in memory that the next run may have for something else.
        ASSERT_EQ(library.Ask(static_cast<WPARAM>(run)), run + 1);
    }
}

TEST(ResourceChain, SearchesTheNewestLibraryFirstAndSystemLibrariesLast)
{
    const Library library;
    const Copy copy(library);
    ASSERT_NE(copy.Module(), nullptr);
    EXPECT_EQ(DialogModule(IDD_EXTENSION), library.Module());
    AFX_EXTENSION_MODULE second{TRUE, copy.Module(), copy.Module()};
    {
        const CDynLinkLibrary newest(second);
        EXPECT_EQ(DialogModule(IDD_EXTENSION), copy.Module());
    }
    {
        const CDynLinkLibrary system(second, TRUE);
        EXPECT_EQ(DialogModule(IDD_EXTENSION), library.Module());
    }
}

}  // namespace
