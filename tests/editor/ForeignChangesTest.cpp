// Another program changes the project's files while the editor has them open.
#include "ProjectWindowFixture.h"

#include "device/DeviceControls.h"

using editor_tests::CleanTitle;
using editor_tests::DeviceXml;
using editor_tests::DirtyTitle;
using editor_tests::EditorProcess;
using editor_tests::HeldByAnother;
using editor_tests::ListCell;
using editor_tests::MainXml;
using editor_tests::Press;
using editor_tests::TextOf;
using editor_tests::WaitUntil;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace fs = std::filesystem;

namespace {

constexpr char DeviceFile[] = "plant/devices/zep-1.xml";

class ForeignChanges : public editor_tests::ProjectWindowTest {
protected:
    ForeignChanges()
    {
        m_program.AddModule("ready");
        Open();
    }

    // Another device, first in the list, and another name for the first one.
    void ChangeTheDevices() const { ChangeMain(DeviceXml("new-1", "NEW") + DeviceXml("zep-1", "RENAMED")); }

    void ExpectTheirDevices() const
    {
        const HWND list = Control(IDC_DEVICES);
        EXPECT_TRUE(WaitUntil([&] { return ::SendMessageW(list, LVM_GETITEMCOUNT, 0, 0) == 2; }));
        EXPECT_EQ(ListCell(*m_editor, list, 0, 2), L"NEW");
        EXPECT_EQ(ListCell(*m_editor, list, 1, 2), L"RENAMED");
        EXPECT_TRUE(WaitUntil([&] { return TextOf(Control(IDC_PAGE_CAPTION)) == L"RENAMED"; }));
        ShowPage(IDC_SHOW_OPTIONS);
        EXPECT_NE(EmbeddedDialog(), nullptr);
    }
    void ExpectOurDevices() const
    {
        EXPECT_EQ(::SendMessageW(Control(IDC_DEVICES), LVM_GETITEMCOUNT, 0, 0), 3);
        EXPECT_EQ(ListCell(*m_editor, Control(IDC_DEVICES), 0, 2), L"GRÚA.1");
    }

    // The device dialog of the real module, with a change in it, confirmed: now it is writing.
    HWND ConfirmDeviceSettings()
    {
        m_editor.reset();
        fs::remove(m_program.Path() / "KZUsrZEP.dll");
        m_program.AddRealModule();
        m_folder.Write(DeviceFile,
                       "<device><information><transRatio>1000</transRatio><numZEP>4</numZEP></information></device>");
        Open();
        Press(m_window, IDC_OPTIONS);
        m_hub = m_editor->WindowWith(KZSectionButtonBase + KZSectionDevice);
        Press(m_hub, KZSectionButtonBase + KZSectionDevice);
        const HWND dialog = m_editor->WindowWith(IDC_CURRENT);
        ::SendMessageW(::GetDlgItem(dialog, IDC_CURRENT), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"150"));
        m_folder.Write(DeviceFile, Theirs);
        Press(dialog, IDOK);
        EXPECT_THAT(AnswerBox(IDYES), Not(HasSubstr("changed")));
        return dialog;
    }

    static constexpr char Theirs[] =
        "<device><information><transRatio>500</transRatio><numZEP>4</numZEP></information><theirs/></device>";
    HWND m_hub = nullptr;
};

}  // namespace

TEST_F(ForeignChanges, YesSavesOverThem)
{
    MakeDirty();
    ChangeTheDevices();
    Press(m_window, IDC_SAVE);
    EXPECT_THAT(AnswerBox(IDYES), HasSubstr("main.xml"));
    ExpectTitle(CleanTitle);
    EXPECT_THAT(Main(), AllOf(HasSubstr("<changedBy>"), HasSubstr("GRÚA.1"), Not(HasSubstr("RENAMED"))));
    ExpectOurDevices();
}

TEST_F(ForeignChanges, NoTakesThemAndShowsThem)
{
    MakeDirty();
    ChangeTheDevices();
    const std::string theirs = Main();
    Press(m_window, IDC_SAVE);
    AnswerBox(IDNO);
    ExpectTheirDevices();
    ExpectTitle(CleanTitle);
    EXPECT_EQ(Main(), theirs);
    EXPECT_THAT(Leftovers(), IsEmpty());
    MakeDirty();
    SaveWindow();
    EXPECT_THAT(Main(), AllOf(HasSubstr("RENAMED"), HasSubstr("<changedBy>zep-1</changedBy>")));
}

TEST_F(ForeignChanges, CancelWritesNothingAndKeepsWhatIsUnsaved)
{
    MakeDirty();
    ChangeTheDevices();
    const std::string theirs = Main();
    Press(m_window, IDC_SAVE);
    AnswerBox(IDCANCEL);
    ExpectNothingAsked();
    ExpectTitle(DirtyTitle);
    EXPECT_EQ(Main(), theirs);
    ExpectOurDevices();
}

TEST_F(ForeignChanges, CancelIsWhatReturnPresses)
{
    MakeDirty();
    ChangeTheDevices();
    const std::string theirs = Main();
    Press(m_window, IDC_SAVE);
    TypeIntoBox(VK_RETURN);
    ExpectTitle(DirtyTitle);
    EXPECT_EQ(Main(), theirs);
}

TEST_F(ForeignChanges, ClosingKeepsTheWindowWhenTheQuestionIsCancelled)
{
    MakeDirty();
    ChangeTheDevices();
    Close();
    AnswerBox(IDYES);
    EXPECT_THAT(AnswerBox(IDCANCEL), HasSubstr("Another program has changed"));
    ExpectNothingAsked();
    ExpectTitle(DirtyTitle);
}

TEST_F(ForeignChanges, TheDeviceDialogsYesWritesOverThem)
{
    const HWND dialog = ConfirmDeviceSettings();
    EXPECT_THAT(AnswerBox(IDYES), HasSubstr("devices/zep-1.xml (GRÚA.1)"));
    EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(dialog); }));
    EXPECT_THAT(m_folder.Read(DeviceFile),
                AllOf(HasSubstr("<minCurrent>150</minCurrent>"), HasSubstr("1000"), Not(HasSubstr("theirs"))));
}

TEST_F(ForeignChanges, TheDeviceDialogsNoTakesThem)
{
    const HWND dialog = ConfirmDeviceSettings();
    AnswerBox(IDNO);
    EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(dialog); }));
    EXPECT_EQ(m_folder.Read(DeviceFile), Theirs);
    Press(m_hub, IDOK);
    EXPECT_TRUE(WaitUntil([&] { return Summary(L"Current transformer ratio") == L"500"; }));
}

TEST_F(ForeignChanges, TheDeviceDialogStaysOnCancelAndCanWriteLater)
{
    const HWND dialog = ConfirmDeviceSettings();
    AnswerBox(IDCANCEL);
    EXPECT_THAT(AnswerBox(IDOK), HasSubstr("You have cancelled"));
    EXPECT_EQ(m_folder.Read(DeviceFile), Theirs);
    ASSERT_TRUE(WaitUntil([&] { return ::IsWindowEnabled(dialog) != FALSE; }));
    Press(dialog, IDOK);
    AnswerBox(IDYES);
    EXPECT_THAT(AnswerBox(IDYES), HasSubstr("devices/zep-1.xml"));
    EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(dialog); }));
    EXPECT_THAT(m_folder.Read(DeviceFile), HasSubstr("<minCurrent>150</minCurrent>"));
}

TEST_F(ForeignChanges, ComingBackAsksAndYesShowsThem)
{
    ChangeTheDevices();
    Activate();
    EXPECT_THAT(AnswerBox(IDYES), AllOf(HasSubstr("main.xml"), Not(HasSubstr("lost"))));
    ExpectTheirDevices();
    ExpectTitle(CleanTitle);
}

TEST_F(ForeignChanges, NoIsNotAskedAgainForTheSameChange)
{
    ChangeTheDevices();
    Activate();
    AnswerBox(IDNO);
    Activate();
    ExpectNothingAsked();
    ExpectOurDevices();
    ChangeMain(DeviceXml("zep-1", "THIRD"));
    Activate();
    AnswerBox(IDYES);
    EXPECT_TRUE(WaitUntil([&] { return TextOf(Control(IDC_PAGE_CAPTION)) == L"THIRD"; }));
}

TEST_F(ForeignChanges, SavingAsksAfterTheNoToo)
{
    ChangeTheDevices();
    Activate();
    AnswerBox(IDNO);
    MakeDirty();
    Press(m_window, IDC_SAVE);
    EXPECT_THAT(AnswerBox(IDNO), HasSubstr("main.xml"));
    ExpectTheirDevices();
}

TEST_F(ForeignChanges, ComingBackSaysWhatWouldBeLost)
{
    MakeDirty();
    ChangeTheDevices();
    Activate();
    EXPECT_THAT(AnswerBox(IDNO), HasSubstr("lost"));
    ExpectTitle(DirtyTitle);
    m_folder.Write(DeviceFile, "<device><theirs/></device>");
    Activate();
    EXPECT_THAT(AnswerBox(IDYES),
                AllOf(HasSubstr("devices/zep-1.xml (GRÚA.1)"), Not(HasSubstr("main.xml")), Not(HasSubstr("lost"))));
    ExpectTitle(DirtyTitle);
}

TEST_F(ForeignChanges, ABrokenFileIsToldAndWhatIsShownStays)
{
    MakeDirty();
    m_folder.Write("plant/main.xml", "<configuration><devices>");
    Activate();
    AnswerBox(IDYES);
    EXPECT_THAT(AnswerBox(IDOK), AllOf(HasSubstr("main.xml"), HasSubstr("correct the file")));
    Activate();
    ExpectNothingAsked();
    ExpectOurDevices();
    ExpectTitle(DirtyTitle);
    // It is not forgotten either.
    Press(m_window, IDC_SAVE);
    EXPECT_THAT(AnswerBox(IDYES), HasSubstr("Another program has changed"));
    ExpectTitle(CleanTitle);
    EXPECT_THAT(Main(), HasSubstr("<changedBy>"));
}

TEST_F(ForeignChanges, ARemovedFileIsToldAndSavingMakesItAgain)
{
    MakeDirty();
    fs::remove(m_folder.Path() / "plant" / "main.xml");
    Activate();
    AnswerBox(IDYES);
    EXPECT_THAT(AnswerBox(IDOK), HasSubstr("does not exist"));
    Press(m_window, IDC_SAVE);
    AnswerBox(IDYES);
    ExpectTitle(CleanTitle);
    EXPECT_THAT(Main(), HasSubstr("<changedBy>"));
}

TEST_F(ForeignChanges, NothingIsAskedWhileADialogIsOpen)
{
    Press(m_window, IDC_OPTIONS);
    const HWND dialog = m_editor->WindowTitled(L"test options");
    ASSERT_NE(dialog, nullptr);
    const HWND focus = FocusIn(dialog);
    ChangeTheDevices();
    Activate();
    // The key comes after what the activation has posted.
    Type(focus, VK_TAB);
    EXPECT_TRUE(WaitUntil([&] { return FocusIn(dialog) != focus; }));
    EXPECT_FALSE(HasBox());
    Answer(L"test options", IDCANCEL);
    Activate();
    AnswerBox(IDYES);
    ExpectTheirDevices();
}

TEST_F(ForeignChanges, ACommandEndsWithTwoAndWritesNothing)
{
    EditorProcess& editor = Start({"options", "GRÚA.1"});
    const HWND box = editor.WindowTitled(L"test options");
    ASSERT_NE(box, nullptr);
    ChangeTheDevices();
    const auto theirs = Documents();
    Press(box, IDOK);
    EXPECT_EQ(editor.Wait(), 2);
    const std::string errors = editor.Errors();
    EXPECT_EQ(std::count(errors.begin(), errors.end(), '\n'), 1) << errors;
    EXPECT_THAT(errors, AllOf(HasSubstr("main.xml"), HasSubstr("nothing was written")));
    EXPECT_EQ(Documents(), theirs);
}

TEST_F(ForeignChanges, ThatAreBeingSavedLetTheWindowSayThatItWaits)
{
    // The window's thread waits, so it cannot be asked; the system knows its title.
    const auto hasTitle = [this](std::wstring_view end) {
        wchar_t title[200] = L"";
        ::GetWindowTextW(m_window, title, 200);
        return std::wstring_view(title).ends_with(end);
    };
    MakeDirty();
    {
        const HeldByAnother lock(m_folder.Path() / "plant" / "project.lock");
        Press(m_window, IDC_SAVE);
        EXPECT_TRUE(WaitUntil([&] { return hasTitle(L"waiting until another editor has saved"); }));
    }
    ExpectTitle(CleanTitle);
}

TEST_F(ForeignChanges, ThatTakeTooLongToSaveLeaveTheUsersOwnUnsaved)
{
    MakeDirty();
    const HeldByAnother lock(m_folder.Path() / "plant" / "project.lock");
    Press(m_window, IDC_SAVE);
    EXPECT_THAT(AnswerBox(IDOK), AllOf(HasSubstr("project.lock"), HasSubstr("another editor is saving")));
    ExpectTitle(DirtyTitle);
}
