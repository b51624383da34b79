// The editor's commands, run as an engineer's script runs them; dialogs are answered from outside.
#include <gmock/gmock.h>

#include "EditorFixture.h"
#include "KZUtf8.h"

namespace {

using editor_tests::DeviceXml;
using editor_tests::EditorProcess;
using editor_tests::EditorTest;
using editor_tests::MainXml;
using editor_tests::MessageOf;
using editor_tests::Press;
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
};

}  // namespace

TEST_F(CommandLine, DevicesPrintsOneLineForEachDevice)
{
    EditorProcess& editor = Start({"devices"});
    EXPECT_EQ(editor.Wait(), 0);
    EXPECT_EQ(editor.Output(), "zep-1\tGRÚA.1\tZEP\t0x74\nzep-2\tNODIALOG\tZEP\t0x8B\nxyz-1\tOTHER\tXYZ\t0x0\n");
    EXPECT_EQ(editor.Errors(), "");
}

TEST_F(CommandLine, DevicesPrintsEveryLineOfALongList)
{
    std::string devices;
    std::string lines;
    for (int number = 1; number <= 3000; ++number) {
        const std::string digits = std::to_string(number);
        devices += DeviceXml("zep-" + digits, "F" + digits);
        lines += "zep-" + digits + "\tF" + digits + "\tZEP\t0x74\n";
    }
    m_folder.Write("plant/main.xml", MainXml(devices));
    EditorProcess& editor = Start({"devices"});
    EXPECT_EQ(editor.Wait(), 0);
    EXPECT_EQ(editor.Output(), lines);
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
    EXPECT_EQ(MessageOf(box), L"70|3|¿Cuáles?|GRÚA.1.AI1N|X.HZIN");
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
    EXPECT_EQ(MessageOf(box), L"3FFFFFFFF|0|(null)|A.B");
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
    const HWND window = editor.WindowTitled(L"GRÚA.1 – options");
    ASSERT_NE(window, nullptr);
    const HWND pane = ::GetWindow(window, GW_CHILD);
    EXPECT_TRUE(WaitUntil([&] { return ::FindWindowExW(pane, nullptr, L"#32770", nullptr) != nullptr; }));
    ::PostMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(editor.Wait(), 0);
    EXPECT_EQ(editor.Output(), "child: created\n");
}

TEST_F(CommandLine, ChildPrintsNullWhenTheFactoryMakesNoDialog)
{
    m_program.AddModule("ready");
    EditorProcess& editor = Start({"child", "NODIALOG"});
    const HWND window = editor.WindowTitled(L"NODIALOG – options");
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
