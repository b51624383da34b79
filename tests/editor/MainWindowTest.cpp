// The main window: devices, chosen variables, embedded options, saving, keys, sizes.
#include "MainWindowFixture.h"

using editor_tests::CleanTitle;
using editor_tests::DirtyTitle;
using editor_tests::FirstSection;
using editor_tests::ListCell;
using editor_tests::MainWindowTest;
using editor_tests::Press;
using editor_tests::TextOf;
using editor_tests::WaitUntil;
using testing::HasSubstr;

TEST_F(MainWindowTest, ListsTheDevicesWithWhatIsToBeSaidOfThem)
{
    m_program.AddModule("ready");
    Open();
    const HWND list = Control(IDC_DEVICES);
    ASSERT_TRUE(WaitUntil([&] { return ::SendMessageW(list, LVM_GETITEMCOUNT, 0, 0) == 3; }));
    EXPECT_EQ(ListCell(*m_editor, list, 0, 0), L"marked");
    EXPECT_EQ(ListCell(*m_editor, list, 0, 1), L"1");
    EXPECT_EQ(ListCell(*m_editor, list, 0, 2), L"GRÚA.1");
    EXPECT_EQ(ListCell(*m_editor, list, 0, 3), L"Filtro de prueba, línea ñ");
    EXPECT_EQ(ListCell(*m_editor, list, 0, 4), L"0");
    EXPECT_FALSE(ListCell(*m_editor, list, 0, 5).empty());
    EXPECT_EQ(ListCell(*m_editor, list, 2, 0), L"no module");
    EXPECT_EQ(ListCell(*m_editor, list, 2, 2), L"OTHER");
    EXPECT_EQ(ListCell(*m_editor, list, 2, 5), L"XYZ");
    ExpectTitle(CleanTitle);
}

TEST_F(MainWindowTest, SpeaksTheChosenLanguage)
{
    m_program.AddModule("ready");
    TakeWindow(StartBare({"--project", ProjectPath(), "--language", "es"}));
    EXPECT_EQ(TextOf(Control(IDC_SELECT)), L"&Seleccionar variables…");
    EXPECT_EQ(TextOf(Control(IDC_PAGE_CAPTION)), L"GRÚA.1");
}

TEST_F(MainWindowTest, EmbedsTheOptionsOfTheSelectedDeviceAndRebuildsThemWithTheSelection)
{
    m_program.AddModule("ready");
    Open();
    ShowPage(IDC_SHOW_OPTIONS);
    ASSERT_TRUE(WaitUntil([&] { return EmbeddedDialog() != nullptr; }));
    const HWND first = EmbeddedDialog();
    EXPECT_NE(::GetDlgItem(first, FirstSection), nullptr);
    EXPECT_EQ(TextOf(Control(IDC_PAGE_CAPTION)), L"GRÚA.1");
    ChooseRow(1);
    EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(first); }));
    EXPECT_EQ(EmbeddedDialog(), nullptr);
    EXPECT_THAT(ToUtf8(TextOf(::GetDlgItem(Control(IDC_PANE), IDC_PANE_TEXT))), HasSubstr("no options dialog"));
    EXPECT_EQ(TextOf(Control(IDC_PAGE_CAPTION)), L"NODIALOG");
    ChooseRow(0);
    EXPECT_TRUE(WaitUntil([&] { return EmbeddedDialog() != nullptr; }));
}

TEST_F(MainWindowTest, SaysInsteadOfTheOptionsWhyADeviceHasNoModule)
{
    m_program.AddModule("ready");
    Open();
    ShowPage(IDC_SHOW_OPTIONS);
    ChooseRow(2);
    EXPECT_THAT(ToUtf8(TextOf(::GetDlgItem(Control(IDC_PANE), IDC_PANE_TEXT))), HasSubstr("\"XYZ\""));
    EXPECT_FALSE(::IsWindowEnabled(Control(IDC_OPTIONS)));
    EXPECT_FALSE(::IsWindowEnabled(Control(IDC_SELECT)));
    ChooseRow(0);
    EXPECT_TRUE(::IsWindowEnabled(Control(IDC_OPTIONS)));
}

TEST_F(MainWindowTest, MarksItsTitleWhileTheProjectIsUnsavedAndSavesIt)
{
    m_program.AddModule("ready");
    Open();
    MakeDirty();
    Press(m_window, IDC_SAVE);
    ExpectTitle(CleanTitle);
    EXPECT_THAT(m_folder.Read("plant/main.xml"), HasSubstr("<changedBy>zep-1</changedBy>"));
    Close();
    EXPECT_EQ(m_editor->Wait(), 0);
}

TEST_F(MainWindowTest, AddsNewlySelectedVariablesToTheEarlierOnesWithoutDoubles)
{
    m_program.AddModule("ready");
    Open();
    EXPECT_EQ(ChosenCount(), 0);
    Press(m_window, IDC_SELECT);
    Answer(L"test select", IDOK);
    EXPECT_TRUE(WaitUntil([&] { return ChosenCount() == 2; }));
    EXPECT_EQ(Chosen(0), "GRÚA.1.HZIN");
    ExpectTitle(DirtyTitle);
    Press(m_window, IDC_SELECT);
    Answer(L"test select", IDOK);
    EXPECT_TRUE(WaitUntil([&] { return ::IsWindowEnabled(m_window) != FALSE; }));
    EXPECT_EQ(ChosenCount(), 2);
    EXPECT_EQ(ListCell(*m_editor, Control(IDC_DEVICES), 0, 4), L"2");
}

TEST_F(MainWindowTest, KeepsTheChosenVariablesWhenTheSelectionIsCancelled)
{
    m_program.AddModule("ready");
    Open();
    Press(m_window, IDC_SELECT);
    Answer(L"test select", IDOK);
    EXPECT_TRUE(WaitUntil([&] { return ChosenCount() == 2; }));
    Press(m_window, IDC_SELECT);
    Answer(L"test select", IDCANCEL);
    EXPECT_EQ(ChosenCount(), 2);
}

TEST_F(MainWindowTest, RemovesTheMarkedVariablesAndKeepsTheRestInTheProject)
{
    m_program.AddModule("ready");
    Open();
    Press(m_window, IDC_SELECT);
    Answer(L"test select", IDOK);
    ASSERT_TRUE(WaitUntil([&] { return ChosenCount() == 2; }));
    ShowPage(IDC_SHOW_VARIABLES);
    EXPECT_FALSE(::IsWindowEnabled(Control(IDC_REMOVE)));
    ::SendMessageW(Control(IDC_CHOSEN), WM_KEYDOWN, VK_HOME, 0);
    ASSERT_TRUE(WaitUntil([&] { return ::IsWindowEnabled(Control(IDC_REMOVE)) != FALSE; }));
    Type(Control(IDC_CHOSEN), VK_DELETE);
    EXPECT_TRUE(WaitUntil([&] { return ChosenCount() == 1; }));
    EXPECT_EQ(Chosen(0), "GRÚA.1.VI1N");
    Press(m_window, IDC_SAVE);
    ExpectTitle(CleanTitle);
    const std::string saved = m_folder.Read("plant/main.xml");
    EXPECT_THAT(saved, HasSubstr("GRÚA.1.VI1N"));
    EXPECT_THAT(saved, Not(HasSubstr("HZIN")));
}

TEST_F(MainWindowTest, ShowsTheChosenVariablesOfTheSelectedDeviceOnly)
{
    m_program.AddModule("ready");
    Open();
    Press(m_window, IDC_SELECT);
    Answer(L"test select", IDOK);
    ASSERT_TRUE(WaitUntil([&] { return ChosenCount() == 2; }));
    ChooseRow(1);
    EXPECT_EQ(ChosenCount(), 0);
    ChooseRow(0);
    EXPECT_EQ(ChosenCount(), 2);
}

TEST_F(MainWindowTest, ClosesWithoutQuestionWhenNothingChanged)
{
    m_program.AddModule("ready");
    const auto before = ProjectFiles();
    Open();
    Close();
    EXPECT_EQ(m_editor->Wait(), 0);
    EXPECT_EQ(ProjectFiles(), before);
}

TEST_F(MainWindowTest, SavesOnYes)
{
    m_program.AddModule("ready");
    Open();
    MakeDirty();
    Close();
    Answer(L"KZEditor", IDYES);
    EXPECT_EQ(m_editor->Wait(), 0);
    EXPECT_THAT(m_folder.Read("plant/main.xml"), HasSubstr("<changedBy>"));
}

TEST_F(MainWindowTest, DropsTheChangesOnNo)
{
    m_program.AddModule("ready");
    const auto before = ProjectFiles();
    Open();
    MakeDirty();
    Close();
    Answer(L"KZEditor", IDNO);
    EXPECT_EQ(m_editor->Wait(), 0);
    EXPECT_EQ(ProjectFiles(), before);
}

TEST_F(MainWindowTest, StaysOpenOnCancel)
{
    m_program.AddModule("ready");
    const auto before = Documents();
    Open();
    MakeDirty();
    Close();
    Answer(L"KZEditor", IDCANCEL);
    EXPECT_TRUE(WaitUntil([&] { return ::IsWindowEnabled(m_window) != FALSE; }));
    ExpectTitle(DirtyTitle);
    EXPECT_EQ(Documents(), before);
}

TEST_F(MainWindowTest, StaysOpenAndSaysWhyWhenSavingFails)
{
    m_program.AddModule("ready");
    Open();
    MakeDirty();
    // A folder in the file's place cannot be replaced by a file, whoever runs the test.
    const std::filesystem::path file = m_folder.Path() / "plant" / "main.xml";
    std::filesystem::remove(file);
    std::filesystem::create_directories(file / "occupied");
    Close();
    Answer(L"KZEditor", IDYES);
    Answer(L"KZEditor", IDOK);
    EXPECT_TRUE(WaitUntil([&] { return ::IsWindowEnabled(m_window) != FALSE; }));
    ExpectTitle(DirtyTitle);
}

TEST_F(MainWindowTest, EscapeDoesNotCloseIt)
{
    m_program.AddModule("ready");
    Open();
    Type(Control(IDC_DEVICES), VK_ESCAPE);
    Type(Control(IDC_DEVICES), VK_F4);
    Answer(L"test options", IDCANCEL);
    EXPECT_TRUE(::IsWindow(m_window));
}

TEST_F(MainWindowTest, OpensOptionsWithF4AndSelectWithF5AndReturn)
{
    m_program.AddModule("ready");
    Open();
    Type(Control(IDC_DEVICES), VK_F4);
    Answer(L"test options", IDCANCEL);
    Type(Control(IDC_DEVICES), VK_F5);
    Answer(L"test select", IDCANCEL);
    Type(Control(IDC_DEVICES), VK_RETURN);
    Answer(L"test select", IDCANCEL);
}

TEST_F(MainWindowTest, CannotBeMadeSmallerThanItsControlsNeed)
{
    m_program.AddModule("ready");
    Open();
    ::SetWindowPos(m_window, nullptr, 0, 0, 100, 100, SWP_NOMOVE | SWP_NOZORDER);
    RECT window{};
    ::GetWindowRect(m_window, &window);
    RECT options{};
    ::GetWindowRect(Control(IDC_OPTIONS), &options);
    EXPECT_GT(window.right - window.left, 500);
    EXPECT_LE(options.right, window.right);
}
