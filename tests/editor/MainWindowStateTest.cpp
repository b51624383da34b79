// The main window's menu, focus, marks, icon and pane: what a look at its layout does not show.
#include <gmock/gmock.h>

#include <set>
#include <vector>

#include "EditorWindowFixture.h"
#include "KZDlgOptions.h"
#include "ModalScript.h"
#include "project/ChosenVariables.h"

namespace {

using Texts = std::vector<std::wstring>;

std::wstring MenuText(HMENU menu, UINT item, UINT by)
{
    std::array<wchar_t, 128> text{};
    ::GetMenuStringW(menu, item, text.data(), static_cast<int>(text.size()), by);
    return text.data();
}

std::wstring Cell(HWND list, int row, int column)
{
    std::array<wchar_t, 256> text{};
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(text.size());
    ::SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return text.data();
}

class MainWindowState : public editor_tests::OpenMainWindow {
protected:
    ~MainWindowState() override { KZMainCfg::Get()->SetDirty(false); }

    // Whether a command can be chosen; its menu item and its button, where it has one, must agree.
    [[nodiscard]] bool IsOffered(int command) const
    {
        const UINT state = ::GetMenuState(::GetMenu(m_window.m_hWnd), static_cast<UINT>(command), MF_BYCOMMAND);
        const bool offered = (state & (MF_GRAYED | MF_DISABLED)) == 0;
        const HWND button = Control(command);
        EXPECT_TRUE(!button || (::IsWindowEnabled(button) != FALSE) == offered) << command;
        return offered;
    }

    void MakeDirty()
    {
        KZMainCfg::Get()->SetDirty(true);
        m_window.SendMessage(WM_KZ_OPTIONS_CHANGED, KZSectionUnits);
    }

    // Gives the first device these variables, which the window then shows.
    void Choose(const plant::VariableList& variables)
    {
        plant::StoreChosenVariables(*KZMainCfg::Get(), m_project.Devices().front().driverId, variables);
        ChooseDevice(1);
        ChooseDevice(0);
    }
    void Mark(int row) const
    {
        const HWND list = Control(IDC_CHOSEN);
        ::SendMessageW(list, LB_SETSEL, TRUE, row);
        ::SendMessageW(::GetParent(list), WM_COMMAND, MAKEWPARAM(IDC_CHOSEN, LBN_SELCHANGE),
                       reinterpret_cast<LPARAM>(list));
    }
    [[nodiscard]] Texts Chosen() const
    {
        Texts texts;
        for (LRESULT row = 0; row < ::SendMessageW(Control(IDC_CHOSEN), LB_GETCOUNT, 0, 0); ++row) {
            std::array<wchar_t, 256> text{};
            ::SendMessageW(Control(IDC_CHOSEN), LB_GETTEXT, static_cast<WPARAM>(row),
                           reinterpret_cast<LPARAM>(text.data()));
            texts.emplace_back(text.data());
        }
        return texts;
    }
    void Run(int command) const { m_window.SendMessage(WM_COMMAND, static_cast<WPARAM>(command)); }
};

}  // namespace

TEST_F(MainWindowState, HasAMenuWithTheCommands)
{
    const HMENU menu = ::GetMenu(m_window.m_hWnd);
    EXPECT_EQ(MenuText(menu, 0, MF_BYPOSITION), L"&File");
    for (const UINT command : {IDC_OPTIONS, IDC_SELECT, IDC_REMOVE, IDC_SAVE, IDC_EXIT})
        EXPECT_NE(MenuText(menu, command, MF_BYCOMMAND), L"") << command;
}

TEST_F(MainWindowState, ShowsTheProgramsIcon)
{
    ExpectProgramIcon(m_window.m_hWnd);
}

TEST_F(MainWindowState, OpensWithTheFocusOnItsFirstDevice)
{
    EXPECT_EQ(::GetFocus(), Control(IDC_DEVICES));
    EXPECT_EQ(ListView_GetNextItem(Control(IDC_DEVICES), -1, LVNI_SELECTED), 0);
    EXPECT_EQ(ListView_GetNextItem(Control(IDC_DEVICES), -1, LVNI_FOCUSED), 0);
}

TEST_F(MainWindowState, OffersSavingWhileThereIsSomethingToSave)
{
    EXPECT_FALSE(IsOffered(IDC_SAVE));
    MakeDirty();
    EXPECT_TRUE(IsOffered(IDC_SAVE));
    EXPECT_TRUE(IsOffered(IDC_OPTIONS));
    EXPECT_TRUE(IsOffered(IDC_SELECT));
}

TEST_F(MainWindowState, GivesTheFocusToTheDevicesWhenItDisablesTheButtonThatHasIt)
{
    Choose({L"V0", L"V1"});
    Run(IDC_SHOW_VARIABLES);
    Mark(0);
    ::SetFocus(Control(IDC_REMOVE));
    ASSERT_EQ(::GetFocus(), Control(IDC_REMOVE));
    Run(IDC_REMOVE);
    EXPECT_EQ(::GetFocus(), Control(IDC_DEVICES));
}

TEST_F(MainWindowState, ListsTheChosenVariablesInTheirOrder)
{
    Choose({L"A.FREQ", L"B.FREQ", L"A.TREN1"});
    EXPECT_EQ(Chosen(), (Texts{L"A.FREQ", L"B.FREQ", L"A.TREN1"}));
    EXPECT_EQ(kztest::TabText(Control(IDC_PAGES), 1), L"Variables 3");
}

TEST_F(MainWindowState, RemovesJustTheMarkedVariables)
{
    Choose({L"V0", L"V1", L"V2", L"V3"});
    EXPECT_FALSE(IsOffered(IDC_REMOVE));
    Run(IDC_REMOVE);
    EXPECT_EQ(Chosen().size(), 4U);
    Mark(0);
    EXPECT_TRUE(IsOffered(IDC_REMOVE)) << "one mark is enough";
    Mark(2);
    Run(IDC_REMOVE);
    EXPECT_EQ(Chosen(), (Texts{L"V1", L"V3"}));
    EXPECT_FALSE(IsOffered(IDC_REMOVE));
    EXPECT_TRUE(IsOffered(IDC_SAVE));
    EXPECT_EQ(kztest::TabText(Control(IDC_PAGES), 1), L"Variables 2");
}

TEST_F(MainWindowState, ShowsTheValuesOfEachDeviceUnderTheNamesOfTheirSections)
{
    const HWND list = Control(IDC_VALUES);
    for (const std::size_t device : {0U, 4U, 1U, 5U, 0U}) {
        ChooseDevice(static_cast<int>(device));
        std::wstring section;
        int index = 0;
        for (const SummaryRow& row : DeviceSummary(m_project, m_project.Devices()[device])) {
            if (row.section != section) {
                EXPECT_EQ(Cell(list, index++, 0), row.section);
            }
            EXPECT_EQ(Cell(list, index, 0), L"    " + row.name);
            EXPECT_EQ(Cell(list, index, 1), row.value);
            EXPECT_EQ(Cell(list, index++, 2), row.unit);
            section = row.section;
        }
        EXPECT_EQ(ListView_GetItemCount(list), index);
    }
}

TEST_F(MainWindowState, SaysOfSeveralDevicesWhichValuesDiffer)
{
    ChooseDevice(0);
    ListView_SetItemState(Control(IDC_DEVICES), 2, LVIS_SELECTED, LVIS_SELECTED);
    kztest::DispatchPending();
    EXPECT_EQ(kztest::TextOf(Control(IDC_PAGE_CAPTION)), L"2 devices marked");
    const auto values = [this](std::size_t device) { return DeviceSummary(m_project, m_project.Devices()[device]); };
    const SummaryRows first = values(0);
    const SummaryRows third = values(2);
    const HWND list = Control(IDC_VALUES);
    int different = 0;
    for (int row = 0; row < ListView_GetItemCount(list); ++row) {
        for (std::size_t field = 0; field < first.size(); ++field) {
            if (Cell(list, row, 0) != L"    " + first[field].name)
                continue;
            const bool isSame = first[field].value == third[field].value;
            EXPECT_EQ(Cell(list, row, 1), isSame ? first[field].value : L"(different)") << row;
            different += isSame ? 0 : 1;
        }
    }
    EXPECT_GT(different, 0);
    EXPECT_FALSE(IsOffered(IDC_SELECT));
}

TEST_F(MainWindowState, SelectsWholeRowsOfItsLists)
{
    for (const int id : {IDC_DEVICES, IDC_VALUES}) {
        EXPECT_NE(ListView_GetExtendedListViewStyle(Control(id)) & LVS_EX_FULLROWSELECT, 0U) << id;
    }
}

TEST_F(MainWindowState, ShowsOnePageAtATime)
{
    const struct {
        int command, control, tab;
    } pages[] = {
        {IDC_SHOW_VARIABLES, IDC_CHOSEN, 1}, {IDC_SHOW_OPTIONS, IDC_PANE, 2}, {IDC_SHOW_VALUES, IDC_VALUES, 0}};
    for (const auto& page : pages) {
        Run(page.command);
        EXPECT_EQ(::SendMessageW(Control(IDC_PAGES), TCM_GETCURSEL, 0, 0), page.tab);
        for (const auto& other : pages) {
            EXPECT_EQ(::IsWindowVisible(Control(other.control)) != FALSE, other.tab == page.tab) << other.control;
            const UINT state =
                ::GetMenuState(::GetMenu(m_window.m_hWnd), static_cast<UINT>(other.command), MF_BYCOMMAND);
            EXPECT_EQ((state & MF_CHECKED) != 0, other.tab == page.tab) << other.command;
        }
    }
}

TEST_F(MainWindowState, WalksItsPagesRoundAndRound)
{
    for (const int tab : {1, 2, 0, 1}) {
        Run(IDC_NEXT_PAGE);
        EXPECT_EQ(::SendMessageW(Control(IDC_PAGES), TCM_GETCURSEL, 0, 0), tab);
    }
    Run(IDC_PREVIOUS_PAGE);
    Run(IDC_PREVIOUS_PAGE);
    EXPECT_EQ(::SendMessageW(Control(IDC_PAGES), TCM_GETCURSEL, 0, 0), 2);
}

TEST_F(MainWindowState, WalksItsPanesInBothDirections)
{
    for (const int pane : {IDC_LIST_BAR, IDC_VALUES, IDC_FIND, IDC_DEVICES}) {
        Run(IDC_NEXT_PANE);
        EXPECT_EQ(::GetFocus(), Control(pane)) << pane;
    }
    for (const int pane : {IDC_FIND, IDC_VALUES, IDC_LIST_BAR, IDC_DEVICES}) {
        Run(IDC_PREVIOUS_PANE);
        EXPECT_EQ(::GetFocus(), Control(pane)) << pane;
    }
}

TEST_F(MainWindowState, FindsDevicesByWordsOfTheirTexts)
{
    const auto find = [this](const wchar_t* text) {
        ::SetWindowTextW(Control(IDC_FIND), text);
        return ListView_GetItemCount(Control(IDC_DEVICES));
    };
    EXPECT_EQ(find(L"GRUA"), 1);
    EXPECT_EQ(Cell(Control(IDC_DEVICES), 0, 2), L"GRUA.NORTE");
    EXPECT_EQ(kztest::TextOf(Control(IDC_PAGE_CAPTION)), L"Choose a device in the list.");
    EXPECT_EQ(kztest::TextOf(Control(IDC_FIND_COUNT)), L"1 of 6");
    EXPECT_FALSE(IsOffered(IDC_SELECT)) << "a hidden device is not marked";
    EXPECT_EQ(find(L"grúa puente"), 1) << "words in any order, with or without accents";
    EXPECT_EQ(find(L"no such device"), 0);
    Run(IDC_FIND_CLEAR);
    EXPECT_EQ(ListView_GetItemCount(Control(IDC_DEVICES)), 6);
    EXPECT_EQ(::GetFocus(), Control(IDC_FIND));
    EXPECT_FALSE(::IsWindowEnabled(Control(IDC_FIND_CLEAR)));
}

TEST_F(MainWindowState, KeepsADeviceMarkedThatTheFilterShows)
{
    ChooseDevice(3);
    ::SetWindowTextW(Control(IDC_FIND), L"norte");
    EXPECT_EQ(m_window.MarkedDevices(), std::vector{m_project.Devices()[3].driverId});
    ::SetWindowTextW(Control(IDC_FIND), L"");
    EXPECT_EQ(m_window.MarkedDevices(), std::vector{m_project.Devices()[3].driverId});
    EXPECT_EQ(ListView_GetNextItem(Control(IDC_DEVICES), -1, LVNI_SELECTED), 3);
}

TEST_F(MainWindowState, SortsByTheColumnWhoseHeadIsClicked)
{
    const auto click = [this](int column) {
        NMLISTVIEW clicked{};
        clicked.hdr = {Control(IDC_DEVICES), IDC_DEVICES, static_cast<UINT>(LVN_COLUMNCLICK)};
        clicked.iSubItem = column;
        m_window.SendMessage(WM_NOTIFY, IDC_DEVICES, reinterpret_cast<LPARAM>(&clicked));
        Texts names;
        for (int row = 0; row < 6; ++row)
            names.push_back(Cell(Control(IDC_DEVICES), row, 2));
        return names;
    };
    ChooseDevice(2);
    const Texts byName{L"BOMBAS", L"CPD", L"GRUA.NORTE", L"LAB ENSAYOS", L"PINTURA", L"TREN1"};
    EXPECT_EQ(click(2), byName);
    EXPECT_EQ(click(2), Texts(byName.rbegin(), byName.rend())) << "again: the other way round";
    EXPECT_EQ(kztest::TextOf(Control(IDC_PAGE_CAPTION)), L"PINTURA") << "it stays marked";
    EXPECT_EQ(click(1), (Texts{L"TREN1", L"CPD", L"PINTURA", L"GRUA.NORTE", L"BOMBAS", L"LAB ENSAYOS"}));
    EXPECT_EQ(click(4).back(), L"TREN1") << "it has the most variables";
}

TEST_F(MainWindowState, GoesToTheNextDeviceOnTheSamePage)
{
    Run(IDC_SHOW_OPTIONS);
    Run(IDC_NEXT_DEVICE);
    EXPECT_EQ(kztest::TextOf(Control(IDC_PAGE_CAPTION)), L"CPD");
    EXPECT_TRUE(EmbeddedIn(Control(IDC_PANE)));
    Run(IDC_PREVIOUS_DEVICE);
    Run(IDC_PREVIOUS_DEVICE);
    EXPECT_EQ(kztest::TextOf(Control(IDC_PAGE_CAPTION)), L"TREN1") << "there is none before the first";
}

TEST_F(MainWindowState, MarksAllDevicesThatAreShown)
{
    Run(IDC_MARK_ALL);
    kztest::DispatchPending();
    EXPECT_EQ(m_window.MarkedDevices().size(), 6U);
    EXPECT_EQ(kztest::TextOf(Control(IDC_PAGE_CAPTION)), L"6 devices marked");
}

TEST_F(MainWindowState, EmbedsOneOptionsDialogAndHidesThePanesText)
{
    Run(IDC_SHOW_OPTIONS);
    ForEachDevice([this] {
        const HWND pane = Control(IDC_PANE);
        const HWND embedded = EmbeddedIn(pane);
        ASSERT_TRUE(embedded);
        EXPECT_TRUE(::IsWindowVisible(embedded));
        EXPECT_FALSE(::FindWindowExW(pane, embedded, L"#32770", nullptr)) << "the earlier device's";
        EXPECT_FALSE(::IsWindowVisible(::GetDlgItem(pane, IDC_PANE_TEXT)));
        EXPECT_EQ(PlaceOf(embedded), ClientOf(pane));
    });
}

TEST_F(MainWindowState, ColoursItsPaneAsTheDialogInIt)
{
    const HWND pane = Control(IDC_PANE);
    const HWND text = ::GetDlgItem(pane, IDC_PANE_TEXT);
    const HDC dc = ::GetDC(text);
    const LRESULT brush =
        ::SendMessageW(pane, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(text));
    LOGBRUSH described{};
    ::GetObjectW(reinterpret_cast<HGDIOBJ>(brush), sizeof described, &described);
    EXPECT_EQ(described.lbColor, ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(::GetBkColor(dc), ::GetSysColor(COLOR_WINDOW));
    ::ReleaseDC(text, dc);
}

TEST_F(MainWindowState, OpensTheSelectionForADoubleClickOnADevice)
{
    NMITEMACTIVATE click{};
    click.hdr = {Control(IDC_DEVICES), IDC_DEVICES, static_cast<UINT>(NM_DBLCLK)};
    std::wstring title;
    {
        kztest::ModalScript script([&] {
            const HWND dialog = kztest::WaitForDialog({m_window.m_hWnd});
            title = kztest::TextOf(dialog);
            kztest::PostClick(dialog, IDCANCEL);
        });
        m_window.SendMessage(WM_NOTIFY, IDC_DEVICES, reinterpret_cast<LPARAM>(&click));
    }
    EXPECT_THAT(title, testing::HasSubstr(m_project.Devices().front().name.c_str()));
}
