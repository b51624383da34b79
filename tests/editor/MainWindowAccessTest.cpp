// The main window for those who see, hear or point otherwise: names, access keys, tool tips, small screens.
#include "ClipboardText.h"
#include "EditorWindowFixture.h"
#include "FakeAccessibility.h"
#include "HeldKeys.h"
#include "KZDlgOptions.h"
#include "ModalScript.h"
#include "ParameterNames.h"
#include "PlatformNames.h"
#include "ShownParts.h"
#include "SystemColour.h"
#include "ToolTips.h"
#include "WorkArea.h"
#include "changes/DeviceEdit.h"
#include "project/ChosenVariables.h"

namespace {

constexpr PageName Pages[] = {PageName::Values, PageName::Variables, PageName::Options};

// As the program's loop does, which lets dialogs see their keys first.
void PumpAll()
{
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE))
        AfxPumpMessage();
}

void PressWithControl(HWND control, WPARAM key)
{
    const kztest::HeldKeys held({VK_CONTROL});
    ::PostMessageW(control, WM_KEYDOWN, key, 1);
    PumpAll();
}

class MainWindowAccess : public editor_tests::OpenMainWindow, public testing::WithParamInterface<KZLanguage> {
protected:
    MainWindowAccess() { KZQuorvelantaSetup::Get()->SetLanguage(GetParam()); }
    void SetUp() override
    {
        OpenMainWindow::SetUp();
        kztest::DispatchPending();
        m_window.SendMessage(WM_COMMAND, IDC_CHECK);
    }
    // While the service that takes the names back is there.
    ~MainWindowAccess() override { m_window.DestroyWindow(); }

    [[nodiscard]] std::wstring Name(int id) const { return kztest::PlatformName(Control(id), m_accessibility.names); }
    void MoveMouse() const
    {
        ::PostMessageW(m_window.m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(1, 1));
        PumpAll();
    }
    void ExpectTips() const
    {
        const auto texts = kztest::TextsOf(kztest::TipsOf(m_window.m_hWnd));
        EXPECT_EQ(texts.size(), 2U);
        for (const int id : {IDC_FIND_CLEAR, IDC_FINDINGS_CLOSE})
            EXPECT_EQ(texts.at(Control(id)), Name(id));
    }

    kztest::FakeAccessibility m_accessibility;
};

}  // namespace

TEST_P(MainWindowAccess, NamesEachControlOfEachPageOnce)
{
    m_window.SendMessage(WM_COMMAND, IDC_MARK_ALL);
    kztest::SetText(m_window.m_hWnd, IDC_FIND, L"e");
    for (const PageName page : Pages) {
        m_window.ShowPage(page);
        ChooseDevice(0);
        EXPECT_GT(kztest::ExpectNamesOfTheirOwn(m_window.m_hWnd, m_accessibility.names), 9);
    }
}

TEST_P(MainWindowAccess, NamesItsPartsInTheLanguageThatIsSpoken)
{
    const bool isEnglish = GetParam() == KZLanguage::English;
    EXPECT_EQ(Name(IDC_FIND), isEnglish ? L"Find:" : L"Buscar:");
    EXPECT_EQ(Name(IDC_DEVICES), isEnglish ? L"Devices" : L"Equipos");
    m_window.Speak(isEnglish ? KZLanguage::Spanish : KZLanguage::English);
    EXPECT_EQ(Name(IDC_DEVICES), isEnglish ? L"Equipos" : L"Devices");
    EXPECT_TRUE(Name(IDC_FINDINGS).starts_with(isEnglish ? L"Hallazgos (" : L"Findings (")) << "the label counts them";
}

TEST_P(MainWindowAccess, HasEachAccessKeyOnceTogetherWithWhatIsEmbedded)
{
    for (const PageName page : Pages) {
        m_window.ShowPage(page);
        EXPECT_GT(kztest::ExpectAccessKeysOfTheirOwn(m_window.m_hWnd).size(), page == PageName::Options ? 16U : 8U);
    }
}

TEST_P(MainWindowAccess, TellsBySignsWhatTheirButtonsDo)
{
    EXPECT_FALSE(kztest::TipsOf(m_window.m_hWnd));
    MoveMouse();
    ExpectTips();
    m_window.Speak(GetParam() == KZLanguage::English ? KZLanguage::Spanish : KZLanguage::English);
    MoveMouse();
    ExpectTips();
}

TEST_P(MainWindowAccess, ShowsTheWholeTextOfACutCellAndSignsInWords)
{
    const HWND list = Control(IDC_DEVICES);
    ListView_SetColumnWidth(list, static_cast<int>(DeviceColumn::Signs), 200);
    ListView_SetColumnWidth(list, static_cast<int>(DeviceColumn::Name), 12);
    const struct {
        DeviceColumn column;
        std::wstring tip;
    } cells[] = {{DeviceColumn::Signs, GetParam() == KZLanguage::English ? L"marked" : L"marcado"},
                 {DeviceColumn::Name, m_project.Devices().front().name.c_str()}};
    for (const auto& [column, tip] : cells) {
        CRect cell;
        ListView_GetSubItemRect(list, 0, static_cast<int>(column), LVIR_BOUNDS, &cell);
        ::SendMessageW(list, WM_MOUSEMOVE, 0, MAKELPARAM(cell.left + 3, cell.top + 3));
        const auto tips = kztest::TextsOfAllTips(m_window.m_hWnd);
        EXPECT_EQ(std::count(tips.begin(), tips.end(), tip), 1) << testing::PrintToString(tip);
    }
}

TEST_P(MainWindowAccess, ChangesThePageByControlAndThePageKeys)
{
    m_window.ShowPage(PageName::Values);
    PressWithControl(Control(IDC_DEVICES), VK_NEXT);
    EXPECT_EQ(m_window.ShownPage(), PageName::Variables);
    PressWithControl(Control(IDC_CHOSEN), VK_NEXT);
    EXPECT_EQ(m_window.ShownPage(), PageName::Options);
    PressWithControl(Control(IDC_FIND), VK_PRIOR);
    EXPECT_EQ(m_window.ShownPage(), PageName::Variables);
}

TEST_P(MainWindowAccess, CopiesTheMarkedDevices)
{
    m_window.SendMessage(WM_COMMAND, IDC_MARK_ALL);
    ListView_SetItemState(Control(IDC_DEVICES), 1, 0, LVIS_SELECTED);
    {
        const kztest::HeldKeys held({VK_CONTROL});
        ::SendMessageW(Control(IDC_DEVICES), WM_KEYDOWN, 'C', 1);
    }
    const std::wstring copied = editor_tests::ClipboardText();
    EXPECT_EQ(std::count(copied.begin(), copied.end(), L'\n'), static_cast<int>(m_project.Devices().size()) - 1);
    EXPECT_NE(copied.find(m_project.Devices()[0].name.c_str()), std::wstring::npos);
    EXPECT_EQ(copied.find(m_project.Devices()[1].name.c_str()), std::wstring::npos);
    EXPECT_TRUE(copied.starts_with(GetParam() == KZLanguage::English ? L"marked\t1\t" : L"marcado\t1\t"));
}

TEST_P(MainWindowAccess, CopiesTheMarkedVariables)
{
    m_window.ShowPage(PageName::Variables);
    const plant::VariableList chosen = plant::ChosenVariables(*KZMainCfg::Get(), m_project.Devices().front().driverId);
    {
        const kztest::HeldKeys held({VK_CONTROL});
        ::SendMessageW(Control(IDC_CHOSEN), WM_KEYDOWN, 'A', 1);
        ::SendMessageW(Control(IDC_CHOSEN), WM_KEYDOWN, 'C', 1);
    }
    std::wstring names;
    for (const KZBasicString& name : chosen)
        names.append(name.View()).append(L"\r\n");
    EXPECT_FALSE(names.empty());
    EXPECT_EQ(editor_tests::ClipboardText(), names);
    EXPECT_TRUE(::IsWindowEnabled(Control(IDC_REMOVE)));
}

TEST_P(MainWindowAccess, OpensTheOptionsByAltAndEnter)
{
    std::wstring title;
    kztest::ModalScript script([&] {
        const HWND hub = kztest::WaitForDialog({m_window.m_hWnd});
        title = kztest::TextOf(hub);
        kztest::PostClick(hub, IDCANCEL);
    });
    const kztest::HeldKeys held({VK_MENU});
    const MSG enter{Control(IDC_DEVICES), WM_SYSKEYDOWN, VK_RETURN, 1, 0, {}};
    EXPECT_TRUE(m_window.TranslateKey(enter));
    EXPECT_NE(title.find(m_project.Devices()[0].name.c_str()), std::wstring::npos);
}

TEST_P(MainWindowAccess, ShowsNamesWithAnAmpersandInItsMenus)
{
    const std::vector<KZBasicString> driverIds{m_project.Devices()[0].driverId};
    plant::DeviceNaming naming = plant::NamingOf(m_project.Devices()[0]);
    naming.name = L"A&B";
    EXPECT_TRUE(m_window.Change({IDS_PLANT_STEP_RENAME, {L"A&B"}}, driverIds,
                                [&] { plant::RenameDevice(m_project, 0, naming); }));
    EXPECT_TRUE(m_window.UndoCaption().ends_with(L"A&&B"));
    m_window.Undo();
    EXPECT_TRUE(m_window.RedoCaption().ends_with(L"A&&B"));
}

TEST_P(MainWindowAccess, FollowsNewColours)
{
    m_window.ShowPage(PageName::Options);
    const HWND before = EmbeddedIn(Control(IDC_PANE));
    ::SetFocus(::GetDlgItem(before, KZSectionButtonBase + KZSectionUnits));
    const kztest::SystemColour dark(COLOR_WINDOW, RGB(20, 0, 40));
    for (const int list : {IDC_DEVICES, IDC_VALUES, IDC_FINDINGS})
        EXPECT_EQ(ListView_GetBkColor(Control(list)), RGB(20, 0, 40)) << list;
    ASSERT_TRUE(kztest::WaitUntil([&] {
        kztest::DispatchPending();
        return !::IsWindow(before);
    }));
    const HWND after = EmbeddedIn(Control(IDC_PANE));
    EXPECT_EQ(::GetFocus(), ::GetDlgItem(after, KZSectionButtonBase + KZSectionUnits));
    const HDC dc = ::GetDC(after);
    const auto brush = reinterpret_cast<HBRUSH>(
        ::SendMessageW(after, WM_CTLCOLORDLG, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(after)));
    ::ReleaseDC(after, dc);
    LOGBRUSH background{};
    ASSERT_NE(::GetObjectW(brush, sizeof background, &background), 0);
    EXPECT_EQ(background.lbColor, RGB(20, 0, 40));
}

// The embedded dialog may be in the middle of a command.
TEST_P(MainWindowAccess, MakesTheEmbeddedDialogAnewOnlyWhenNothingIsOpenInFront)
{
    m_window.ShowPage(PageName::Options);
    const HWND before = EmbeddedIn(Control(IDC_PANE));
    const auto turn = [this] { ::SendMessageW(Control(IDC_PANE), WM_TIMER, 1, 0); };
    m_window.EnableWindow(FALSE);
    turn();
    EXPECT_EQ(EmbeddedIn(Control(IDC_PANE)), before);
    m_window.EnableWindow(TRUE);
    turn();
    EXPECT_FALSE(::IsWindow(before));
}

TEST_P(MainWindowAccess, ShrinksToASmallerScreen)
{
    const CSize smallest = kztest::SmallestScreen();
    m_window.MoveWindow(0, 0, smallest.cx + 100, smallest.cy + 100);
    const kztest::WorkArea screen(nullptr, smallest.cx, smallest.cy);
    m_window.SendMessage(WM_DISPLAYCHANGE, 32);
    EXPECT_EQ(kztest::PlaceIn(nullptr, m_window.m_hWnd), CRect(0, 0, smallest.cx, smallest.cy));
    EXPECT_FALSE(kztest::IsCut(m_window.m_hWnd));
}

INSTANTIATE_TEST_SUITE_P(Languages, MainWindowAccess, testing::Values(KZLanguage::English, KZLanguage::Spanish),
                         kztest::ByLanguage);

class StartPageAccess : public editor_tests::EditorWindows, public testing::WithParamInterface<KZLanguage> {
protected:
    StartPageAccess() { KZQuorvelantaSetup::Get()->SetLanguage(GetParam()); }
    ~StartPageAccess() override { m_window.DestroyWindow(); }

    kztest::FakeAccessibility m_accessibility;
    MainWindow m_window{m_modules, m_settings, nullptr};
};

TEST_P(StartPageAccess, HasNamesAndAccessKeysOfTheirOwn)
{
    ASSERT_TRUE(m_window.Create());
    kztest::DispatchPending();
    EXPECT_GE(kztest::ExpectNamesOfTheirOwn(m_window.m_hWnd, m_accessibility.names), 3);
    EXPECT_GT(kztest::ExpectAccessKeysOfTheirOwn(m_window.m_hWnd).size(), 8U);
}

TEST_P(StartPageAccess, LeavesTheHiddenPagesAlone)
{
    ASSERT_TRUE(m_window.Create());
    PressWithControl(kztest::ControlIn(m_window.m_hWnd, IDC_RECENT), VK_NEXT);
    EXPECT_EQ(m_window.ShownPage(), PageName::Values);
    EXPECT_FALSE(::IsWindowVisible(kztest::ControlIn(m_window.m_hWnd, IDC_CHOSEN)));
}

INSTANTIATE_TEST_SUITE_P(Languages, StartPageAccess, testing::Values(KZLanguage::English, KZLanguage::Spanish),
                         kztest::ByLanguage);
