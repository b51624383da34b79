// The main window of the running editor, acted on from outside by control id.
#include <windows.h>

#include <commctrl.h>
#include <gmock/gmock.h>

#include <stdexcept>

#include "EditorFixture.h"
#include "resources/EditorIds.h"
#include "text/Utf8.h"

namespace {

using editor_tests::EditorProcess;
using editor_tests::EditorTest;
using editor_tests::ListCell;
using editor_tests::Press;
using editor_tests::TextOf;
using editor_tests::WaitUntil;
using testing::HasSubstr;

constexpr wchar_t cleanTitle[] = L"KZEditor – plant";
constexpr wchar_t dirtyTitle[] = L"KZEditor – plant *";
constexpr int firstSection = 1200;  // the first button of a driver's options dialog
constexpr int unitsSection = firstSection + 3;

class MainWindowTest : public EditorTest {
protected:
    void Open() { TakeWindow(Start({})); }

    void TakeWindow(EditorProcess& editor)
    {
        m_window = editor.WindowTitled(cleanTitle);
        if (!m_window)
            throw std::runtime_error("the main window does not appear");
    }

    [[nodiscard]] HWND Control(int id) const { return ::GetDlgItem(m_window, id); }

    // Answers a dialog that a command opens.
    void Answer(const std::wstring& title, int button)
    {
        const HWND box = m_editor->WindowTitled(title);
        if (!box)
            throw std::runtime_error("the dialog does not appear: " + ToUtf8(title));
        Press(box, button);
        EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(box); }));
    }

    void ExpectTitle(const std::wstring& title) const
    {
        EXPECT_TRUE(WaitUntil([&] { return TextOf(m_window) == title; })) << ToUtf8(TextOf(m_window));
    }

    // Types a key as the keyboard would, into the control that has the focus or would have it.
    static void Type(HWND control, WPARAM key) { ::PostMessageW(control, WM_KEYDOWN, key, 0); }

    void ChooseRow(int row)
    {
        const HWND list = Control(IDC_DEVICES);
        const auto selected = [&] {
            return static_cast<int>(::SendMessageW(list, LVM_GETNEXTITEM, ~WPARAM{0}, LVNI_SELECTED));
        };
        for (int now = selected(); now != row; now = selected())
            ::SendMessageW(list, WM_KEYDOWN, now < row ? VK_DOWN : VK_UP, 0);
    }

    // The embedded options dialog; null when the pane shows a text.
    [[nodiscard]] HWND EmbeddedDialog() const
    {
        return ::FindWindowExW(Control(IDC_PANE), nullptr, L"#32770", nullptr);
    }

    [[nodiscard]] LRESULT ChosenCount() const { return ::SendMessageW(Control(IDC_CHOSEN), LB_GETCOUNT, 0, 0); }

    [[nodiscard]] std::string Chosen(int row) const
    {
        wchar_t text[256] = L"";
        ::SendMessageW(Control(IDC_CHOSEN), LB_GETTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text));
        return ToUtf8(text);
    }

    // A value of the summary by its name; empty when it has no row of that name.
    [[nodiscard]] std::wstring Summary(const std::wstring& name) const
    {
        const HWND list = Control(IDC_SUMMARY);
        const auto rows = static_cast<int>(::SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
        for (int row = 0; row < rows; ++row)
            if (ListCell(*m_editor, list, row, 1) == name)
                return ListCell(*m_editor, list, row, 2);
        return {};
    }

    void MakeDirty()
    {
        Press(m_window, IDC_OPTIONS);
        Answer(L"test options", IDOK);
        ExpectTitle(dirtyTitle);
    }

    void Close() { ::PostMessageW(m_window, WM_CLOSE, 0, 0); }

    HWND m_window = nullptr;
};

}  // namespace

TEST_F(MainWindowTest, ListsTheDevicesWithTheStateOfTheirModule)
{
    m_program.AddModule("ready");
    Open();
    const HWND list = Control(IDC_DEVICES);
    ASSERT_TRUE(WaitUntil([&] { return ::SendMessageW(list, LVM_GETITEMCOUNT, 0, 0) == 3; }));
    EXPECT_EQ(ListCell(*m_editor, list, 0, 0), L"1");
    EXPECT_EQ(ListCell(*m_editor, list, 0, 1), L"GRÚA.1");
    EXPECT_FALSE(ListCell(*m_editor, list, 0, 2).empty());
    EXPECT_EQ(ListCell(*m_editor, list, 0, 3), L"Filtro de prueba, línea ñ");
    EXPECT_EQ(ListCell(*m_editor, list, 0, 4), L"ready");
    EXPECT_EQ(ListCell(*m_editor, list, 2, 1), L"OTHER");
    EXPECT_EQ(ListCell(*m_editor, list, 2, 2), L"XYZ");
    EXPECT_EQ(ListCell(*m_editor, list, 2, 4), L"no module");
    ExpectTitle(cleanTitle);
}

TEST_F(MainWindowTest, TellsTheStateOfEachModule)
{
    m_program.AddModule("ready");
    m_program.AddModule("noentry", "AAA");
    Open();
    const std::string text = ToUtf8(TextOf(Control(IDC_MODULES)));
    EXPECT_THAT(text, HasSubstr("InitializeUsrDriver_AAA"));
    EXPECT_THAT(text, HasSubstr("KZUsrZEP.dll: ready"));
}

TEST_F(MainWindowTest, SpeaksTheChosenLanguage)
{
    m_program.AddModule("ready");
    TakeWindow(StartBare({"--project", ProjectPath(), "--language", "es"}));
    EXPECT_EQ(TextOf(Control(IDC_SELECT)), L"&Seleccionar variables…");
    EXPECT_EQ(ListCell(*m_editor, Control(IDC_DEVICES), 0, 4), L"listo");
}

TEST_F(MainWindowTest, EmbedsTheOptionsOfTheSelectedDeviceAndRebuildsThemWithTheSelection)
{
    m_program.AddModule("ready");
    Open();
    ASSERT_TRUE(WaitUntil([&] { return EmbeddedDialog() != nullptr; }));
    const HWND first = EmbeddedDialog();
    EXPECT_NE(::GetDlgItem(first, firstSection), nullptr);
    EXPECT_EQ(TextOf(Control(IDC_PANE_LABEL)), L"Options of GRÚA.1");
    ChooseRow(1);
    EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(first); }));
    EXPECT_EQ(EmbeddedDialog(), nullptr);
    EXPECT_THAT(ToUtf8(TextOf(::GetDlgItem(Control(IDC_PANE), IDC_PANE_TEXT))), HasSubstr("no options dialog"));
    EXPECT_EQ(TextOf(Control(IDC_PANE_LABEL)), L"Options of NODIALOG");
    ChooseRow(0);
    EXPECT_TRUE(WaitUntil([&] { return EmbeddedDialog() != nullptr; }));
}

TEST_F(MainWindowTest, SaysInsteadOfTheOptionsWhyADeviceHasNoModule)
{
    m_program.AddModule("ready");
    Open();
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
    EXPECT_FALSE(::IsWindowEnabled(Control(IDC_SAVE)));
    MakeDirty();
    EXPECT_TRUE(::IsWindowEnabled(Control(IDC_SAVE)));
    Press(m_window, IDC_SAVE);
    ExpectTitle(cleanTitle);
    EXPECT_THAT(m_folder.Read("plant/main.xml"), HasSubstr("<changedBy>zep-1</changedBy>"));
    Close();
    EXPECT_EQ(m_editor->Wait(), 0);
}

TEST_F(MainWindowTest, AddsNewlySelectedVariablesToTheEarlierOnesWithoutDoubles)
{
    m_program.AddModule("ready");
    Open();
    EXPECT_EQ(ChosenCount(), 0);
    EXPECT_EQ(TextOf(Control(IDC_CHOSEN_LABEL)), L"C&hosen variables (0):");
    Press(m_window, IDC_SELECT);
    Answer(L"test select", IDOK);
    EXPECT_TRUE(WaitUntil([&] { return ChosenCount() == 2; }));
    EXPECT_EQ(Chosen(0), "GRÚA.1.HZIN");
    ExpectTitle(dirtyTitle);
    Press(m_window, IDC_SELECT);
    Answer(L"test select", IDOK);
    EXPECT_TRUE(WaitUntil([&] { return ::IsWindowEnabled(m_window) != FALSE; }));
    EXPECT_EQ(ChosenCount(), 2);
    EXPECT_EQ(TextOf(Control(IDC_CHOSEN_LABEL)), L"C&hosen variables (2):");
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
    EXPECT_FALSE(::IsWindowEnabled(Control(IDC_REMOVE)));
    ::SendMessageW(Control(IDC_CHOSEN), WM_KEYDOWN, VK_HOME, 0);
    ASSERT_TRUE(WaitUntil([&] { return ::IsWindowEnabled(Control(IDC_REMOVE)) != FALSE; }));
    ::SendMessageW(Control(IDC_CHOSEN), WM_KEYDOWN, VK_DELETE, 0);
    EXPECT_TRUE(WaitUntil([&] { return ChosenCount() == 1; }));
    EXPECT_EQ(Chosen(0), "GRÚA.1.VI1N");
    Press(m_window, IDC_SAVE);
    ExpectTitle(cleanTitle);
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

TEST_F(MainWindowTest, ShowsTheSettingsUnitsAndLimitsOfTheSelectedDevice)
{
    m_program.AddModule("ready");
    m_folder.Write("plant/devices/zep-1.xml", "<device><information><numZEP>3</numZEP></information></device>");
    m_folder.Write("plant/devices/zep-2.xml", "<device><information><numZEP>8</numZEP></information></device>");
    Open();
    const HWND list = Control(IDC_SUMMARY);
    EXPECT_EQ(ListCell(*m_editor, list, 0, 0), L"Device");
    EXPECT_EQ(ListCell(*m_editor, list, 1, 0), L"");
    EXPECT_EQ(Summary(L"Number of ZEP units"), L"3");
    EXPECT_EQ(Summary(L"Reactive power"), L"VAR, 1 decimal");
    EXPECT_EQ(Summary(L"–"), L"no limits set");
    ChooseRow(1);
    EXPECT_TRUE(WaitUntil([&] { return Summary(L"Number of ZEP units") == L"8"; }));
}

TEST_F(MainWindowTest, ShowsAChangeMadeInTheEmbeddedOptionsAtOnce)
{
    m_program.AddModule("ready");
    Open();
    ASSERT_TRUE(WaitUntil([&] { return EmbeddedDialog() != nullptr; }));
    Press(EmbeddedDialog(), unitsSection);
    EXPECT_TRUE(WaitUntil([&] { return Summary(L"Reactive power") == L"kVAR, 1 decimal"; }));
    ExpectTitle(dirtyTitle);
}

TEST_F(MainWindowTest, ShowsWhatChangedWhileTheOptionsWereOpen)
{
    m_program.AddModule("ready");
    Open();
    Press(m_window, IDC_OPTIONS);
    m_folder.Write("plant/devices/zep-1.xml", "<device><information><numZEP>5</numZEP></information></device>");
    Answer(L"test options", IDCANCEL);
    EXPECT_TRUE(WaitUntil([&] { return Summary(L"Number of ZEP units") == L"5"; }));
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
    const auto before = ProjectFiles();
    Open();
    MakeDirty();
    Close();
    Answer(L"KZEditor", IDCANCEL);
    EXPECT_TRUE(WaitUntil([&] { return ::IsWindowEnabled(m_window) != FALSE; }));
    ExpectTitle(dirtyTitle);
    EXPECT_EQ(ProjectFiles(), before);
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
    ExpectTitle(dirtyTitle);
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
    RECT client{};
    ::GetClientRect(m_window, &client);
    RECT lowest{};
    ::GetWindowRect(Control(IDC_MODULES), &lowest);
    EXPECT_GT(window.right - window.left, 500);
    EXPECT_LE(lowest.bottom, window.bottom);
}

TEST_F(MainWindowTest, KeepsItsControlsApartWhenItGrows)
{
    m_program.AddModule("ready");
    Open();
    ::SetWindowPos(m_window, nullptr, 0, 0, 1250, 950, SWP_NOZORDER);
    const int controls[] = {IDC_DEVICES, IDC_SELECT,  IDC_OPTIONS, IDC_SAVE,   IDC_CHOSEN,
                            IDC_REMOVE,  IDC_SUMMARY, IDC_PANE,    IDC_MODULES};
    RECT client{};
    ::GetClientRect(m_window, &client);
    ::MapWindowPoints(m_window, nullptr, reinterpret_cast<POINT*>(&client), 2);
    for (const int first : controls) {
        RECT a{};
        ::GetWindowRect(Control(first), &a);
        RECT inside{};
        ::IntersectRect(&inside, &a, &client);
        EXPECT_TRUE(::EqualRect(&inside, &a))
            << first << ": " << a.right << ", " << a.bottom << " in " << client.right << ", " << client.bottom;
        for (const int second : controls) {
            RECT b{};
            RECT common{};
            ::GetWindowRect(Control(second), &b);
            EXPECT_TRUE(first == second || !::IntersectRect(&common, &a, &b)) << first << " and " << second;
        }
    }
}
