// The editor's commands, run as an engineer's script runs them; dialogs are answered from outside.
#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>

#include "EditorFixture.h"
#include "text/Utf8.h"

namespace {

using editor_tests::EditorProcess;
using editor_tests::EditorTest;
using editor_tests::MainXml;
using editor_tests::Press;
using editor_tests::TextOf;
using editor_tests::WaitUntil;
using testing::HasSubstr;

class CommandLine : public EditorTest {
protected:
    void Answer(EditorProcess& editor, const std::wstring& title, int button)
    {
        const HWND box = editor.WindowTitled(title);
        ASSERT_NE(box, nullptr);
        Press(box, button);
    }

    // The text that a message box shows.
    static std::wstring Message(HWND box)
    {
        std::wstring text;
        ::EnumChildWindows(
            box,
            [](HWND child, LPARAM parameter) {
                wchar_t name[16] = L"";
                ::GetClassNameW(child, name, 16);
                if (lstrcmpiW(name, L"Static") == 0 && !TextOf(child).empty())
                    *reinterpret_cast<std::wstring*>(parameter) = TextOf(child);
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&text));
        return text;
    }
};

class BadInput : public EditorTest {
protected:
    // The same, and no file of the project may have changed.
    void ExpectRefusal(EditorProcess& editor, const std::vector<std::string>& parts,
                       const std::map<std::string, std::string>& before)
    {
        ExpectError(editor, parts);
        EXPECT_EQ(ProjectFiles(), before);
    }
};

}  // namespace

TEST_F(CommandLine, DevicesPrintsOneLineForEachDevice)
{
    EditorProcess& editor = Start({"devices"});
    EXPECT_EQ(editor.Wait(), 0);
    EXPECT_EQ(editor.Output(), "zep-1\tGRÚA.1\tZEP\t0x74\nzep-2\tNODIALOG\tZEP\t0x8B\nxyz-1\tOTHER\tXYZ\t0x0\n");
    EXPECT_EQ(editor.Errors(), "");
}

TEST_F(CommandLine, TakesTheCurrentFolderAsTheProjectUnlessTold)
{
    m_folder.Write("program/main.xml", MainXml(""));
    EditorProcess& editor = StartBare({"devices"});
    EXPECT_EQ(editor.Wait(), 0);
    EXPECT_EQ(editor.Output(), "");
}

TEST_F(CommandLine, StringPrintsTheHostsTextInTheChosenLanguage)
{
    EditorProcess& english = StartBare({"--language", "en", "string", "312"});
    EXPECT_EQ(english.Wait(), 0);
    const std::string englishText = english.Output();
    EditorProcess& spanish = StartBare({"--language", "es", "string", "312"});
    EXPECT_EQ(spanish.Wait(), 0);
    EXPECT_THAT(englishText, HasSubstr("Cancel"));
    EXPECT_THAT(spanish.Output(), HasSubstr("Cancelar"));
}

TEST_F(CommandLine, OptionsTellsTheCallbacksTrueAndSavesTheDirtyConfiguration)
{
    m_program.AddModule("ready");
    EditorProcess& editor = Start({"options", "GRÚA.1"});
    Answer(editor, L"test options", IDOK);
    EXPECT_EQ(editor.Wait(), 0);
    EXPECT_EQ(editor.Output(), "options: true\n");
    EXPECT_THAT(m_folder.Read("plant/main.xml"), HasSubstr("<changedBy>zep-1</changedBy>"));
}

TEST_F(CommandLine, OptionsTellsTheCallbacksFalseAndLeavesTheFiles)
{
    m_program.AddModule("ready");
    const auto before = ProjectFiles();
    EditorProcess& editor = Start({"options", "GRÚA.1"});
    Answer(editor, L"test options", IDCANCEL);
    EXPECT_EQ(editor.Wait(), 1);
    EXPECT_EQ(editor.Output(), "options: false\n");
    EXPECT_EQ(ProjectFiles(), before);
}

TEST_F(CommandLine, SelectHandsTheArgumentsOverAndPrintsTheListAsTheCallbackLeftIt)
{
    m_program.AddModule("ready");
    EditorProcess& editor = Start(
        {"select", "GRÚA.1", "--groups", "0x70", "--max", "3", "--list", "GRÚA.1.AI1N,X.HZIN", "--text", "¿Cuáles?"});
    const HWND box = editor.WindowTitled(L"test select");
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(Message(box), L"70|3|¿Cuáles?|GRÚA.1.AI1N|X.HZIN");
    Press(box, IDOK);
    EXPECT_EQ(editor.Wait(), 0);
    EXPECT_EQ(editor.Output(), "select: true\nvariable: GRÚA.1.HZIN\nvariable: GRÚA.1.VI1N\n");
}

TEST_F(CommandLine, SelectAsksForAllGroupsWithoutLimitUnlessToldAndKeepsTheListOnCancel)
{
    m_program.AddModule("ready");
    const auto before = ProjectFiles();
    EditorProcess& editor = Start({"select", "GRÚA.1", "--list", "A.B"});
    const HWND box = editor.WindowTitled(L"test select");
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(Message(box), L"3FFFFFFFF|0|(null)|A.B");
    Press(box, IDCANCEL);
    EXPECT_EQ(editor.Wait(), 1);
    EXPECT_EQ(editor.Output(), "select: false\nvariable: A.B\n");
    EXPECT_EQ(ProjectFiles(), before);
}

TEST_F(CommandLine, ThirdPrintsFalse)
{
    m_program.AddModule("ready");
    EditorProcess& editor = Start({"third", "GRÚA.1"});
    EXPECT_EQ(editor.Wait(), 1);
    EXPECT_EQ(editor.Output(), "third: false\n");
}

TEST_F(CommandLine, ChildShowsTheEmbeddedDialogUntilTheWindowIsClosed)
{
    m_program.AddModule("ready");
    EditorProcess& editor = Start({"child", "GRÚA.1"});
    const HWND window = editor.WindowTitled(L"GRÚA.1");
    ASSERT_NE(window, nullptr);
    // The window holds the pane, the pane its text and the dialog.
    const HWND pane = ::GetWindow(window, GW_CHILD);
    EXPECT_TRUE(WaitUntil([&] {
        return ::GetDlgItem(::GetWindow(pane, GW_CHILD), 1200) || ::FindWindowExW(pane, nullptr, L"#32770", nullptr);
    }));
    ::PostMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(editor.Wait(), 0);
    EXPECT_EQ(editor.Output(), "child: created\n");
}

TEST_F(CommandLine, ChildPrintsNullWhenTheFactoryMakesNoDialog)
{
    m_program.AddModule("ready");
    EditorProcess& editor = Start({"child", "NODIALOG"});
    const HWND window = editor.WindowTitled(L"NODIALOG");
    ASSERT_NE(window, nullptr);
    ::PostMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(editor.Wait(), 1);
    EXPECT_EQ(editor.Output(), "child: null\n");
}

TEST_F(CommandLine, HelpListsTheCommands)
{
    EditorProcess& editor = StartBare({"--help"});
    EXPECT_EQ(editor.Wait(), 0);
    EXPECT_THAT(editor.Output(), HasSubstr("select"));
}

TEST_F(BadInput, AMissingProjectFolderIsNamed)
{
    ExpectError(StartBare({"--project", ProjectPath() + "-gone", "devices"}), {"plant-gone", "--project"});
}

TEST_F(BadInput, AMissingProjectFolderIsNamedInsteadOfAWindow)
{
    ExpectError(StartBare({"--project", ProjectPath() + "-gone"}), {"plant-gone", "--project"});
}

TEST_F(BadInput, AMissingMainXmlIsNamed)
{
    std::filesystem::remove(m_folder.Path() / "plant" / "main.xml");
    ExpectError(Start({"devices"}), {"main.xml", "--project"});
}

TEST_F(BadInput, ABrokenMainXmlIsNamedWithThePlaceAndStaysAsItIs)
{
    m_program.AddModule("ready");
    m_folder.Write("plant/main.xml", "<configuration>\n  <devices>\n</configuration>\n");
    const auto before = ProjectFiles();
    ExpectRefusal(Start({"options", "GRÚA.1"}), {"main.xml", "3"}, before);
}

TEST_F(BadInput, AMainXmlWithAnotherRootIsRefused)
{
    m_folder.Write("plant/main.xml", "<something/>");
    const auto before = ProjectFiles();
    ExpectRefusal(Start({"devices"}), {"main.xml", "configuration"}, before);
}

TEST_F(BadInput, AnUnknownDeviceIsNamedTogetherWithTheKnownOnes)
{
    m_program.AddModule("ready");
    const auto before = ProjectFiles();
    ExpectRefusal(Start({"options", "GRUA"}), {"\"GRUA\"", "GRÚA.1, NODIALOG, OTHER"}, before);
}

TEST_F(BadInput, BadArgumentsAreRefusedBeforeAnyDocumentIsRead)
{
    const std::string gone = ProjectPath() + "-gone";
    ExpectError(StartBare({"--project", gone, "select", "A", "--groups", "0xZZ"}), {"--groups", "0xZZ"});
    ExpectError(StartBare({"--project", gone, "select", "A", "--max", "-3"}), {"--max", "-3"});
    ExpectError(StartBare({"--project", gone, "--language", "fr"}), {"--language", "fr", "en or es"});
    ExpectError(StartBare({"--project", gone, "string", "65536"}), {"65536"});
    ExpectError(StartBare({"--project", gone, "explode"}), {"explode", "--help"});
}

TEST_F(BadInput, ATextIdThatTheHostDoesNotHaveIsNamed)
{
    ExpectError(StartBare({"--language", "en", "string", "65000"}), {"65000"});
}

TEST_F(BadInput, ErrorsOfTheProjectComeInTheChosenLanguage)
{
    ExpectError(StartBare({"--project", ProjectPath() + "-gone", "--language", "es", "devices"}), {"no existe"});
}

TEST_F(BadInput, AMissingModuleIsNamed)
{
    const auto before = ProjectFiles();
    ExpectRefusal(Start({"options", "GRÚA.1"}), {"KZUsrZEP.dll", "Copy"}, before);
}

TEST_F(BadInput, ADeviceTypeWithoutModuleIsNamed)
{
    m_program.AddModule("ready");
    const auto before = ProjectFiles();
    ExpectRefusal(Start({"select", "OTHER"}), {"\"XYZ\""}, before);
}

TEST_F(BadInput, AModuleThatIsNoLibraryIsNamed)
{
    m_folder.Write("program/KZUsrZEP.dll", "no library");
    ExpectError(Start({"third", "GRÚA.1"}), {"KZUsrZEP.dll", "cannot be loaded"});
}

TEST_F(BadInput, AModuleOfAnotherArchitectureIsNamedWithBoth)
{
    m_program.AddModule("ready");
    const std::filesystem::path file = m_program.Path() / "KZUsrZEP.dll";
    {
        std::fstream stream(file, std::ios::binary | std::ios::in | std::ios::out);
        std::uint32_t header = 0;
        stream.seekg(0x3C).read(reinterpret_cast<char*>(&header), sizeof header);
        stream.seekp(header + 4).write("\x4C\x01", 2);
    }
    ExpectError(Start({"child", "GRÚA.1"}), {"KZUsrZEP.dll", "x86", "x64"});
}

TEST_F(BadInput, AModuleWithoutItsEntryIsNamedWithTheEntry)
{
    m_program.AddModule("noentry");
    ExpectError(Start({"third", "GRÚA.1"}), {"KZUsrZEP.dll", "InitializeUsrDriver_ZEP"});
}

TEST_F(BadInput, AModuleWhoseEntryAnswersFalseIsNamed)
{
    m_program.AddModule("refusing");
    ExpectError(Start({"third", "GRÚA.1"}), {"KZUsrZEP.dll", "false"});
}

TEST_F(BadInput, ABadModuleOfAnotherModelDoesNotStopTheGoodOne)
{
    m_program.AddModule("ready");
    m_program.AddModule("noentry", "AAA");
    m_folder.Write("program/KZUsrBBB.dll", "no library");
    EditorProcess& editor = Start({"third", "GRÚA.1"});
    EXPECT_EQ(editor.Wait(), 1);
    EXPECT_EQ(editor.Output(), "third: false\n");
    EXPECT_EQ(editor.Errors(), "");
}
