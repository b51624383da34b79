// Which folders the editor takes libraries from: its own and Windows', never the project's or the current one, where
// anybody may have put a library of the same name.
#include <gmock/gmock.h>

#include "EditorFixture.h"
#include "KZUtf8.h"

namespace fs = std::filesystem;

namespace {

using editor_tests::EditorFolder;
using editor_tests::EditorProcess;
using editor_tests::EditorTest;
using testing::HasSubstr;
using testing::IsEmpty;

// Ours, those of the compiler, and some of Windows' that editor, dialogs and pictures use.
constexpr const char* Names[] = {
    "KZHost.dll",          "KZMfc.dll",     "KZUsrZEP.dll", "libcsv.dll",  "libstdc++-6.dll",   "libgcc_s_seh-1.dll",
    "libwinpthread-1.dll", "version.dll",   "comctl32.dll", "uxtheme.dll", "windowscodecs.dll", "dwmapi.dll",
    "oleacc.dll",          "cryptbase.dll", "profapi.dll",  "dbghelp.dll", "KZNeeded.dll",
};

fs::path NeededLibrary()
{
    return EditorFolder::ModuleFile("needed").parent_path() / "KZNeeded.dll";
}

class LibrarySearch : public EditorTest {
protected:
    LibrarySearch()
    {
        fs::create_directory(m_current);
        for (const fs::path& folder : {m_current, m_folder.Path() / "plant"}) {
            for (const char* name : Names)
                fs::copy_file(NeededLibrary(), folder / name);
        }
    }

    // What was loaded of what lies in the current folder and in the project.
    [[nodiscard]] std::vector<std::string> Loaded() const
    {
        std::vector<std::string> loaded;
        for (const auto& entry : fs::recursive_directory_iterator(m_folder.Path())) {
            if (entry.path().extension() == ".loaded")
                loaded.push_back(entry.path().filename().string());
        }
        return loaded;
    }

    // Starts the editor in the current folder.
    EditorProcess& StartThere(std::vector<std::string> arguments)
    {
        arguments.insert(arguments.begin(), {"--project", ProjectPath(), "--language", "en"});
        m_editor.reset();
        m_editor = std::make_unique<EditorProcess>(m_program, arguments, m_current);
        return *m_editor;
    }

    fs::path m_current = m_folder.Path() / "current";
};

}  // namespace

TEST_F(LibrarySearch, CommandsTakeNoLibraryFromTheProjectOrTheCurrentFolder)
{
    m_program.AddRealModule();
    for (const char* command : {"devices", "get", "modules"}) {
        EXPECT_EQ(StartThere({command}).Wait(), 0) << command;
        EXPECT_THAT(Loaded(), IsEmpty()) << command;
    }
}

TEST_F(LibrarySearch, TheWindowTakesNoLibraryFromTheProjectOrTheCurrentFolder)
{
    m_program.AddRealModule();
    const HWND window = StartThere({}).WindowTitled(L"KZEditor – plant");
    ASSERT_NE(window, nullptr);
    ::PostMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(m_editor->Wait(), 0);
    EXPECT_THAT(Loaded(), IsEmpty());
}

TEST_F(LibrarySearch, AModuleGetsNoLibraryFromTheCurrentFolder)
{
    m_program.AddModule("needing", "AAA");
    auto& editor = StartThere({"modules"});
    EXPECT_EQ(editor.Wait(), 0);
    EXPECT_THAT(editor.Output(), HasSubstr("KZUsrAAA.dll\tAAA\t-\tcannot-load\t"));
    EXPECT_THAT(Loaded(), IsEmpty());
}

// This is also what shows that a library which is loaded leaves its mark.
TEST_F(LibrarySearch, AModuleGetsTheLibraryBesideIt)
{
    m_program.AddModule("needing", "AAA");
    fs::copy_file(NeededLibrary(), m_program.Path() / "KZNeeded.dll");
    auto& editor = StartThere({"modules"});
    EXPECT_EQ(editor.Wait(), 0);
    EXPECT_THAT(editor.Output(), HasSubstr("KZUsrAAA.dll\tAAA\t-\tready\t"));
    EXPECT_THAT(Loaded(), testing::ElementsAre("KZNeeded.dll.loaded"));
    EXPECT_TRUE(fs::exists(m_program.Path() / "KZNeeded.dll.loaded"));
}
