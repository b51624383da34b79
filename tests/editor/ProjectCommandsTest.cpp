// The commands on the project as a whole: its history, what can be restored, what was left unsaved.
#include "ProjectWindowFixture.h"

#include <regex>

using editor_tests::DeviceXml;
using editor_tests::EditorProcess;
using editor_tests::HeldByAnother;
using editor_tests::Press;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::Not;
using testing::SizeIs;

namespace fs = std::filesystem;

namespace {

using Lines = std::vector<std::string>;

class ProjectCommands : public editor_tests::ProjectWindowTest {
protected:
    ProjectCommands() { m_program.AddModule("ready"); }

    // The lines that a command prints which is to end with this status, and says nothing on standard error.
    Lines Run(const std::vector<std::string>& arguments, int status = 0)
    {
        EditorProcess& editor = Start(arguments);
        EXPECT_EQ(editor.Wait(), status) << editor.Errors();
        EXPECT_EQ(editor.Errors(), "");
        Lines lines;
        std::istringstream output(editor.Output());
        for (std::string line; std::getline(output, line);)
            lines.push_back(line);
        return lines;
    }

    // The command "options", answered with OK.
    void RunOptions(const std::string& device)
    {
        EditorProcess& editor = Start({"options", device});
        Press(editor.WindowTitled(L"test options"), IDOK);
        EXPECT_EQ(editor.Wait(), 0) << editor.Errors();
    }

    static std::string Entry(const std::string& number, const std::string& cause, const std::string& documents)
    {
        return number + "\t\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\dZ\t" + cause + "\t" + documents;
    }
    void ExpectHistory(const Lines& patterns)
    {
        const Lines lines = Run({"history"});
        ASSERT_THAT(lines, SizeIs(patterns.size()));
        for (std::size_t index = 0; index < lines.size(); ++index)
            EXPECT_TRUE(std::regex_match(lines[index], std::regex(patterns[index]))) << lines[index];
    }

    // The moment in UTC as the history writes it.
    static std::string Now()
    {
        SYSTEMTIME now{};
        ::GetSystemTime(&now);
        char text[32];
        std::snprintf(text, sizeof text, "%04d-%02d-%02dT%02d:%02d:%02dZ", now.wYear, now.wMonth, now.wDay, now.wHour,
                      now.wMinute, now.wSecond);
        return text;
    }
};

}  // namespace

TEST_F(ProjectCommands, HistoryListsTheSavesOldestFirst)
{
    EXPECT_THAT(Run({"history"}), IsEmpty());
    const std::string before = Now();
    RunOptions("GRÚA.1");
    Open();
    ChooseVariables();
    SaveWindow();
    Close();
    EXPECT_EQ(m_editor->Wait(), 0);
    const std::string after = Now();
    ExpectHistory({Entry("1", "options", "main\\.xml"), Entry("2", "window", "main\\.xml")});
    for (const std::string& line : Run({"history"})) {
        const std::string time = line.substr(2, before.size());
        EXPECT_LE(before, time);
        EXPECT_LE(time, after);
    }
}

TEST_F(ProjectCommands, ASaveThatChangesNothingMakesNoEntry)
{
    RunOptions("GRÚA.1");
    RunOptions("GRÚA.1");
    ExpectHistory({Entry("1", "options", "main\\.xml")});
}

TEST_F(ProjectCommands, RestoreBringsEveryDocumentBackAndIsASaveItself)
{
    const std::string first = Main();
    const std::string device = m_folder.Read("plant/devices/zep-1.xml");
    RunOptions("GRÚA.1");
    const std::string second = Main();
    m_folder.Write("plant/devices/zep-1.xml", "<device><changed/></device>");
    m_folder.Write("plant/devices/made-since.xml", "<device/>");
    fs::remove(m_folder.Path() / "plant" / "devices" / "zep-2.xml");

    EXPECT_THAT(Run({"restore", "1"}), ElementsAre("devices/made-since.xml\tremoved", "devices/zep-1.xml\trestored",
                                                   "devices/zep-2.xml\trestored", "main.xml\trestored"));
    EXPECT_EQ(Main(), first);
    EXPECT_EQ(m_folder.Read("plant/devices/zep-1.xml"), device);
    EXPECT_TRUE(fs::exists(m_folder.Path() / "plant" / "devices" / "zep-2.xml"));
    EXPECT_FALSE(fs::exists(m_folder.Path() / "plant" / "devices" / "made-since.xml"));
    ExpectHistory(
        {Entry("1", "options", "main\\.xml"),
         Entry("2", "restore", "devices/made-since\\.xml,devices/zep-1\\.xml,devices/zep-2\\.xml,main\\.xml")});

    Run({"restore", "2"});
    EXPECT_EQ(Main(), second);
    EXPECT_EQ(m_folder.Read("plant/devices/zep-1.xml"), "<device><changed/></device>");
    EXPECT_TRUE(fs::exists(m_folder.Path() / "plant" / "devices" / "made-since.xml"));
    EXPECT_FALSE(fs::exists(m_folder.Path() / "plant" / "devices" / "zep-2.xml"));
    EditorProcess& again = Start({"restore", "2"});
    EXPECT_EQ(again.Wait(), 1) << "there was nothing to bring back";
    EXPECT_EQ(again.Output(), "");
    EXPECT_THAT(Run({"history"}), SizeIs(3));
}

TEST_F(ProjectCommands, RestoreOnlySaysWhatItWouldDoOnADryRun)
{
    RunOptions("GRÚA.1");
    const auto before = ProjectFiles();
    EXPECT_THAT(Run({"restore", "1", "--dry-run"}), ElementsAre("main.xml\trestored"));
    EXPECT_EQ(ProjectFiles(), before);
}

TEST_F(ProjectCommands, RestoreTellsWhichNumbersThereAre)
{
    ExpectError(Start({"restore", "1"}), {"no save"});
    RunOptions("GRÚA.1");
    ExpectError(Start({"restore", "2"}), {"2", "from 1 to 1"});
    ExpectError(Start({"restore", "0"}), {"NUMBER", "\"0\""});
    ExpectError(Start({"restore", "one"}), {"NUMBER", "\"one\""});
    ExpectError(Start({"restore"}), {"NUMBER"});
}

TEST_F(ProjectCommands, RestoreRefusesAProjectThatCouldNotBeOpened)
{
    Open();
    MakeDirty();
    m_folder.Write("plant/main.xml", "<configuration><broken>");
    Press(m_window, IDC_SAVE);
    AnswerBox(IDYES);
    ExpectTitle(editor_tests::CleanTitle);
    const auto before = ProjectFiles();
    ExpectError(Start({"restore", "1"}), {"Save 1", "could not open"});
    EXPECT_EQ(ProjectFiles(), before);
}

TEST_F(ProjectCommands, RestoreMendsAProjectThatCannotBeOpened)
{
    const std::string first = Main();
    RunOptions("GRÚA.1");
    for (const char* broken :
         {"<configuration><broken>", "<configuration><devices><device/></devices></configuration>"}) {
        m_folder.Write("plant/main.xml", broken);
        EXPECT_FALSE(Run({"history"}).empty()) << broken;
        EXPECT_THAT(Run({"restore", "1"}), ElementsAre("main.xml\trestored")) << broken;
        EXPECT_EQ(Main(), first) << broken;
    }
    fs::remove(m_folder.Path() / "plant" / "main.xml");
    EXPECT_THAT(Run({"restore", "1"}), ElementsAre("main.xml\trestored"));
    EXPECT_EQ(Main(), first);
}

TEST_F(ProjectCommands, AHistoryThatCannotBeWrittenRefusesTheSave)
{
    const std::string main = Main();
    m_folder.Write("plant/history", "in the way");
    Open();
    MakeDirty();
    Press(m_window, IDC_SAVE);
    EXPECT_THAT(AnswerBox(IDOK), AllOf(HasSubstr("Nothing was saved"), HasSubstr("history"), HasSubstr("move it")));
    ExpectTitle(editor_tests::DirtyTitle);
    EXPECT_EQ(Main(), main);

    EditorProcess& editor = Start({"options", "GRÚA.1"});
    Press(editor.WindowTitled(L"test options"), IDOK);
    EXPECT_EQ(editor.Wait(), 2);
    EXPECT_THAT(editor.Errors(), AllOf(HasSubstr("history"), HasSubstr("move it")));
    EXPECT_THAT(editor.Output(), IsEmpty()) << "an answer though nothing was saved";
    EXPECT_EQ(Main(), main);
}

TEST_F(ProjectCommands, WaitsForTheLockAndThenTells)
{
    RunOptions("GRÚA.1");
    const auto before = Documents();
    {
        const HeldByAnother lock(m_folder.Path() / "plant" / "project.lock");
        const auto start = std::chrono::steady_clock::now();
        ExpectError(Start({"restore", "1"}), {"project.lock", "try again"});
        EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
    }
    fs::remove(m_folder.Path() / "plant" / "project.lock");
    EXPECT_EQ(Documents(), before);
}

TEST_F(ProjectCommands, EveryCommandSaysInOneLineThatUnsavedChangesAreThere)
{
    LeaveUnsavedChanges();
    EditorProcess& editor = Start({"devices"});
    EXPECT_EQ(editor.Wait(), 0);
    EXPECT_THAT(editor.Output(), HasSubstr("GRÚA.1"));
    const std::string errors = editor.Errors();
    EXPECT_EQ(std::count(errors.begin(), errors.end(), '\n'), 1) << errors;
    EXPECT_THAT(errors, AllOf(HasSubstr(".kzrecovery"), HasSubstr("recover --discard"), HasSubstr("Z ")));
    EXPECT_THAT(Leftovers(), SizeIs(1));
}

TEST_F(ProjectCommands, RecoverSavesWhatWasLeft)
{
    LeaveUnsavedChanges();
    EXPECT_THAT(Run({"recover"}), ElementsAre("main.xml\trecovered"));
    EXPECT_THAT(Main(), AllOf(HasSubstr("<changedBy>zep-1</changedBy>"), HasSubstr("GRÚA.1.HZIN")));
    EXPECT_THAT(Leftovers(), IsEmpty());
    ExpectHistory({Entry("1", "recover", "main\\.xml")});
    EXPECT_THAT(Run({"recover"}, 1), IsEmpty());
}

TEST_F(ProjectCommands, RecoverDiscardTakesItAway)
{
    const auto before = ProjectFiles();
    LeaveUnsavedChanges();
    EXPECT_THAT(Run({"recover", "--discard"}), ElementsAre("main.xml\tdiscarded"));
    EXPECT_EQ(ProjectFiles(), before);
    EXPECT_THAT(Run({"recover", "--discard"}, 1), IsEmpty());
}

TEST_F(ProjectCommands, RecoverLeavesDocumentsThatHaveChangedSince)
{
    LeaveUnsavedChanges();
    ChangeMain(DeviceXml("zep-1", "THEIRS"));
    const auto before = ProjectFiles();
    ExpectError(Start({"recover"}), {"main.xml", "changed since", "window", "recover --discard"});
    EXPECT_EQ(ProjectFiles(), before);
}

TEST_F(ProjectCommands, RecoverTellsOfADamagedLeftover)
{
    m_folder.Write("plant/unsaved changes 77.kzrecovery", "no such thing");
    const auto before = ProjectFiles();
    ExpectError(Start({"recover"}), {"unsaved changes 77.kzrecovery", "damaged"});
    ExpectError(Start({"recover", "--discard"}), {"unsaved changes 77.kzrecovery", "damaged"});
    EXPECT_EQ(ProjectFiles(), before);
}

TEST_F(ProjectCommands, WhatACommandCouldNotSaveCanBeRecovered)
{
    m_folder.Write("plant/history", "in the way");
    EditorProcess& editor = Start({"options", "GRÚA.1"});
    Press(editor.WindowTitled(L"test options"), IDOK);
    EXPECT_EQ(editor.Wait(), 2);
    fs::remove(m_folder.Path() / "plant" / "history");
    EXPECT_THAT(Run({"recover"}), ElementsAre("main.xml\trecovered"));
    EXPECT_THAT(Main(), HasSubstr("<changedBy>zep-1</changedBy>"));
}
