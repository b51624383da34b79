#include <gtest/gtest.h>

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
        CString text;
        EXPECT_TRUE(text.LoadString(IDS_EXTENSION));
        EXPECT_EQ(text, L"text of the extension");
    }
    EXPECT_EQ(DialogModule(IDD_EXTENSION), program);
    CString text;
    EXPECT_FALSE(text.LoadString(IDS_EXTENSION));
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

TEST(Extension, KeepsItsClassesOnItsOwnList)
{
    CRuntimeClass* const programClasses = AfxGetModuleState()->m_classList;
    {
        const Library library;
        EXPECT_EQ(AfxGetModuleState()->m_classList, programClasses);
        const CRuntimeClass* found = CRuntimeClass::FromName("ExtensionObject");
        ASSERT_NE(found, nullptr);
        delete found->CreateObject();
    }
    EXPECT_EQ(CRuntimeClass::FromName("ExtensionObject"), nullptr);
    EXPECT_EQ(AfxGetModuleState()->m_classList, programClasses);
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
    // A second entry of the chain that has the program's resources.
    AFX_EXTENSION_MODULE second{TRUE, program, program, nullptr, nullptr};
    AfxSetResourceHandle(::GetModuleHandleW(L"KZMfc.dll"));
    EXPECT_EQ(DialogModule(IDD_SHADOWED), library.Module());
    {
        const CDynLinkLibrary newest(second);
        EXPECT_EQ(DialogModule(IDD_SHADOWED), program);
    }
    {
        const CDynLinkLibrary system(second, TRUE);
        EXPECT_EQ(DialogModule(IDD_SHADOWED), library.Module());
        EXPECT_EQ(DialogModule(IDD_CONTROLS), program);
    }
    AfxSetResourceHandle(program);
}

}  // namespace
