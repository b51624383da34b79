// What a killed editor has left: the next one offers it.
#include "ProjectWindowFixture.h"

#include "options/UnitsControls.h"

using editor_tests::CleanTitle;
using editor_tests::DirtyTitle;
using editor_tests::EditorProcess;
using editor_tests::Press;
using editor_tests::TextOf;
using editor_tests::UnitsSection;
using editor_tests::WaitUntil;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

namespace fs = std::filesystem;

namespace {

class RecoveryWindow : public editor_tests::ProjectWindowTest {
protected:
    RecoveryWindow() { m_program.AddModule("ready"); }

    // Today as the user writes it.
    static std::string Today()
    {
        wchar_t date[80] = L"";
        ::GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, nullptr, nullptr, date, 80, nullptr);
        return ToUtf8(date);
    }

    fs::path CopyLeftover(const std::string& name) const
    {
        return m_folder.Write("plant/" + name, m_folder.Read(Leftovers().at(0)));
    }
};

struct Keyboard {
    std::string name;
    std::string language;
    WORD yes;
    WORD no;
};

class RecoveryByKeyboard : public RecoveryWindow, public testing::WithParamInterface<Keyboard> {};

}  // namespace

TEST_F(RecoveryWindow, NamesTheTimeAndTheDocumentsOfWhatItOffers)
{
    LeaveUnsavedChanges();
    ASSERT_THAT(Leftovers(), SizeIs(1));
    Open();
    EXPECT_THAT(AnswerBox(IDYES),
                AllOf(HasSubstr("main.xml"), HasSubstr(Today()), Not(HasSubstr("has been changed since"))));
}

TEST_F(RecoveryWindow, YesBringsTheChangesBackUnsaved)
{
    const auto before = Documents();
    LeaveUnsavedChanges();
    EXPECT_EQ(Documents(), before);
    Open();
    EXPECT_EQ(ChosenCount(), 0);
    AnswerBox(IDYES);
    ExpectTitle(DirtyTitle);
    EXPECT_EQ(ChosenCount(), 2);
    EXPECT_EQ(Documents(), before);
    SaveWindow();
    EXPECT_THAT(Main(), AllOf(HasSubstr("<changedBy>zep-1</changedBy>"), HasSubstr("GRÚA.1.HZIN")));
    EXPECT_THAT(Leftovers(), IsEmpty());
}

TEST_F(RecoveryWindow, NoThrowsTheChangesAway)
{
    const auto before = ProjectFiles();
    LeaveUnsavedChanges();
    Open();
    AnswerBox(IDNO);
    ExpectNothingAsked();
    ExpectTitle(CleanTitle);
    EXPECT_EQ(ChosenCount(), 0);
    EXPECT_EQ(ProjectFiles(), before);
}

TEST_F(RecoveryWindow, SaysThatTheDocumentsHaveChangedSince)
{
    LeaveUnsavedChanges();
    ChangeMain(editor_tests::DeviceXml("zep-1", "GRÚA.1"));
    Open();
    EXPECT_THAT(AnswerBox(IDYES), HasSubstr("main.xml has been changed since"));
    ExpectTitle(DirtyTitle);
    EXPECT_EQ(::SendMessageW(Control(IDC_DEVICES), LVM_GETITEMCOUNT, 0, 0), 3);
    // The user knows of that change; nobody asks about it again.
    SaveWindow();
    EXPECT_THAT(Main(), HasSubstr("zep-2"));
}

TEST_F(RecoveryWindow, SurvivesTheSecondKillToo)
{
    LeaveUnsavedChanges();
    Open();
    AnswerBox(IDYES);
    ExpectTitle(DirtyTitle);
    m_editor->Kill();
    EXPECT_THAT(Leftovers(), SizeIs(1));
    Open();
    EXPECT_THAT(AnswerBox(IDYES), Not(HasSubstr("has been changed since")));
    ExpectTitle(DirtyTitle);
    EXPECT_EQ(ChosenCount(), 2);
}

TEST_F(RecoveryWindow, LosesNothingWhenItIsKilledBeforeTheAnswer)
{
    LeaveUnsavedChanges();
    Open();
    EXPECT_TRUE(WaitUntil([&] { return HasBox(); }));
    m_editor->Kill();
    Open();
    AnswerBox(IDYES);
    ExpectTitle(DirtyTitle);
}

TEST_F(RecoveryWindow, OffersTheSecondOnceTheFirstIsSaved)
{
    LeaveUnsavedChanges();
    CopyLeftover("unsaved changes 99999.kzrecovery");
    Open();
    AnswerBox(IDYES);
    ExpectNothingAsked();
    ExpectTitle(DirtyTitle);
    EXPECT_THAT(Leftovers(), SizeIs(2));
    Press(m_window, IDC_SAVE);
    EXPECT_THAT(AnswerBox(IDNO), HasSubstr("has been changed since"));
    ExpectNothingAsked();
    EXPECT_THAT(Leftovers(), IsEmpty());
}

TEST_F(RecoveryWindow, TellsOfADamagedLeftoverAndLeavesIt)
{
    const std::string name = "plant/unsaved changes 77.kzrecovery";
    m_folder.Write(name, "no such thing");
    Open();
    EXPECT_THAT(AnswerBox(IDOK), HasSubstr("unsaved changes 77.kzrecovery is damaged"));
    ExpectNothingAsked();
    EXPECT_EQ(m_folder.Read(name), "no such thing");
}

// The documents' paths are as long as Windows allows, that of the file for the changes would be longer.
TEST_F(RecoveryWindow, WarnsOnceThatWhatADialogHasChangedIsNotProtected)
{
    const fs::path parent = m_folder.Path() / "long";
    const std::size_t length = 238 - parent.native().size() - std::wstring_view(L"\\\\plant").size();
    const fs::path project = parent / std::wstring(length, L'x') / "plant";
    fs::create_directories(project.parent_path());
    fs::copy(m_folder.Path() / "plant", project, fs::copy_options::recursive);
    TakeWindow(StartBare({"--project", ToUtf8(project.wstring()), "--language", "en"}));
    MakeDirty();
    EXPECT_THAT(AnswerBox(IDOK), AllOf(HasSubstr("would be lost"), HasSubstr(".kzrecovery")));
    ChooseVariables();
    ExpectNothingAsked();
    ExpectTitle(DirtyTitle);
}

TEST_F(RecoveryWindow, LeavesTheChangesOfARunningEditorAlone)
{
    Open();
    MakeDirty();
    const std::unique_ptr<EditorProcess> first = std::move(m_editor);
    const HWND window = m_window;
    Open();
    ExpectNothingAsked();
    EXPECT_THAT(Leftovers(), SizeIs(1));
    EXPECT_EQ(TextOf(window), DirtyTitle);
}

TEST_F(RecoveryWindow, HasTheEmbeddedOptionsChangesOnDiskAtOnce)
{
    Open();
    ShowPage(IDC_SHOW_OPTIONS);
    ASSERT_TRUE(WaitUntil([&] { return EmbeddedDialog() != nullptr; }));
    Press(EmbeddedDialog(), UnitsSection);
    ExpectTitle(DirtyTitle);
    m_editor->Kill();
    Open();
    AnswerBox(IDYES);
    ExpectTitle(DirtyTitle);
    SaveWindow();
    EXPECT_THAT(Main(), HasSubstr("<name>RP</name>"));
}

TEST_F(RecoveryWindow, BringsBackThatVariablesWereRemoved)
{
    Open();
    ChooseVariables();
    SaveWindow();
    ShowPage(IDC_SHOW_VARIABLES);
    ::SendMessageW(Control(IDC_CHOSEN), WM_KEYDOWN, VK_HOME, 0);
    ASSERT_TRUE(WaitUntil([&] { return ::IsWindowEnabled(Control(IDC_REMOVE)) != FALSE; }));
    Press(m_window, IDC_REMOVE);
    ExpectTitle(DirtyTitle);
    m_editor->Kill();
    Open();
    EXPECT_EQ(ChosenCount(), 2);
    AnswerBox(IDYES);
    EXPECT_TRUE(WaitUntil([&] { return ChosenCount() == 1; }));
}

TEST_F(RecoveryWindow, HasWhatADialogCommittedWhileTheOptionsAreOpen)
{
    fs::remove(m_program.Path() / "KZUsrZEP.dll");
    m_program.AddRealModule();
    Open();
    Press(m_window, IDC_OPTIONS);
    const HWND hub = m_editor->WindowWith(UnitsSection);
    ASSERT_NE(hub, nullptr);
    Press(hub, UnitsSection);
    const HWND units = m_editor->WindowWith(IDC_APPARENT_DEC_3);
    ASSERT_NE(units, nullptr);
    ::SendMessageW(::GetDlgItem(units, IDC_APPARENT_DEC_3), BM_CLICK, 0, 0);
    Press(units, IDOK);
    ASSERT_TRUE(WaitUntil([&] { return !::IsWindow(units) && ::IsWindowEnabled(hub) != FALSE; }));
    m_editor->Kill();
    Open();
    AnswerBox(IDYES);
    ExpectTitle(DirtyTitle);
    SaveWindow();
    EXPECT_THAT(Main(), HasSubstr("<unitSetup>"));
}

TEST_P(RecoveryByKeyboard, YesAndNoHaveTheirLetters)
{
    LeaveUnsavedChanges();
    OpenIn(GetParam().language);
    TypeIntoBox(GetParam().yes);
    ExpectTitle(DirtyTitle);
    m_editor->Kill();
    OpenIn(GetParam().language);
    TypeIntoBox(GetParam().no);
    EXPECT_TRUE(WaitUntil([&] { return Leftovers().empty(); }));
    ExpectTitle(CleanTitle);
}

// The letters are those of Windows' own buttons, in the language of the test's Windows.
INSTANTIATE_TEST_SUITE_P(Languages, RecoveryByKeyboard,
                         testing::Values(Keyboard{"English", "en", 'Y', 'N'}, Keyboard{"Spanish", "es", 'Y', 'N'},
                                         Keyboard{"ReturnIsYes", "en", VK_RETURN, 'N'}),
                         [](const auto& tested) { return tested.param.name; });
