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

    // Whether a command can be chosen; its button and its menu item must agree.
    [[nodiscard]] bool IsOffered(int command) const
    {
        const UINT state = ::GetMenuState(::GetMenu(m_window.m_hWnd), static_cast<UINT>(command), MF_BYCOMMAND);
        const bool offered = (state & (MF_GRAYED | MF_DISABLED)) == 0;
        EXPECT_EQ(::IsWindowEnabled(Control(command)) != FALSE, offered) << command;
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
        ::SendMessageW(Control(IDC_CHOSEN), LB_SETSEL, TRUE, row);
        m_window.SendMessage(WM_COMMAND, MAKEWPARAM(IDC_CHOSEN, LBN_SELCHANGE),
                             reinterpret_cast<LPARAM>(Control(IDC_CHOSEN)));
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

TEST_F(MainWindowState, HasAMenuWithEveryCommand)
{
    const HMENU menu = ::GetMenu(m_window.m_hWnd);
    ASSERT_EQ(::GetMenuItemCount(menu), 2);
    EXPECT_EQ(MenuText(menu, 0, MF_BYPOSITION), L"&File");
    EXPECT_EQ(MenuText(menu, 1, MF_BYPOSITION), L"&Device");
    for (const UINT command : {IDC_OPTIONS, IDC_SELECT, IDC_REMOVE, IDC_SAVE, IDC_EXIT})
        EXPECT_NE(MenuText(menu, command, MF_BYCOMMAND), L"") << command;
}

// The menu takes its height from the window, not from what the template draws in it.
TEST_F(MainWindowState, LeavesItsControlsTheirRoomBelowTheMenu)
{
    CRect margin(7, 7, 0, 0);
    ::MapDialogRect(m_window.m_hWnd, &margin);
    EXPECT_NEAR(ClientOf(m_window.m_hWnd).bottom - PlaceOf(Control(IDC_MODULES)).bottom, margin.top, 1);
}

TEST_F(MainWindowState, NamesEveryButtonAndLabel)
{
    std::set<std::wstring> names;
    for (const int id : {IDC_DEVICES_LABEL, IDC_OPTIONS, IDC_SELECT, IDC_SAVE, IDC_REMOVE, IDC_CHOSEN_LABEL,
                         IDC_SUMMARY_LABEL, IDC_PANE_LABEL, IDC_MODULES_LABEL}) {
        EXPECT_NE(kztest::TextOf(Control(id)), L"") << id;
        names.insert(kztest::TextOf(Control(id)));
    }
    EXPECT_EQ(names.size(), 9U);
    EXPECT_THAT(kztest::TextOf(Control(IDC_MODULES)), testing::HasSubstr(L"KZUsrZEP.dll"));
}

TEST_F(MainWindowState, ScrollsTheModulesOnlyWhenTheyNeedIt)
{
    EXPECT_EQ(::GetWindowLongPtrW(Control(IDC_MODULES), GWL_STYLE) & WS_VSCROLL, 0);
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
    MakeDirty();
    ::SetFocus(Control(IDC_SAVE));
    ASSERT_EQ(::GetFocus(), Control(IDC_SAVE));
    KZMainCfg::Get()->SetDirty(false);
    m_window.SendMessage(WM_KZ_OPTIONS_CHANGED, KZSectionUnits);
    EXPECT_EQ(::GetFocus(), Control(IDC_DEVICES));
}

TEST_F(MainWindowState, ListsTheChosenVariablesInTheirOrder)
{
    Choose({L"A.FREQ", L"B.FREQ", L"A.TREN1"});
    EXPECT_EQ(Chosen(), (Texts{L"A.FREQ", L"B.FREQ", L"A.TREN1"}));
    EXPECT_THAT(kztest::TextOf(Control(IDC_CHOSEN_LABEL)), testing::HasSubstr(L"(3)"));
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
    EXPECT_THAT(kztest::TextOf(Control(IDC_CHOSEN_LABEL)), testing::HasSubstr(L"(2)"));
}

TEST_F(MainWindowState, ShowsTheSummaryOfEachDeviceRowByRow)
{
    const HWND list = Control(IDC_SUMMARY);
    for (const std::size_t device : {0U, 4U, 1U, 5U, 0U}) {
        ChooseDevice(static_cast<int>(device));
        const SummaryRows rows = DeviceSummary(m_project, m_project.Devices()[device]);
        ASSERT_EQ(ListView_GetItemCount(list), static_cast<int>(rows.size()));
        std::wstring section;
        int index = 0;
        for (const SummaryRow& row : rows) {
            EXPECT_EQ(Cell(list, index, 0), row.section == section ? L"" : row.section);
            EXPECT_EQ(Cell(list, index, 1), row.name);
            EXPECT_EQ(Cell(list, index, 2), row.unit);
            EXPECT_EQ(Cell(list, index++, 3), row.value);
            section = row.section;
        }
    }
}

TEST_F(MainWindowState, SelectsWholeRowsOfItsLists)
{
    for (const int id : {IDC_DEVICES, IDC_SUMMARY}) {
        const DWORD styles = ListView_GetExtendedListViewStyle(Control(id));
        EXPECT_TRUE((styles & LVS_EX_FULLROWSELECT) != 0 && (styles & LVS_EX_LABELTIP) != 0) << id;
    }
}

TEST_F(MainWindowState, HasItsPaneWhereTheTemplateDrawsIt)
{
    const HWND pane = Control(IDC_PANE);
    EXPECT_EQ(kztest::ClassOf(pane), L"#32770");
    EXPECT_TRUE(::IsWindowVisible(pane));
    EXPECT_EQ(::GetWindow(pane, GW_HWNDPREV), Control(IDC_PANE_LABEL)) << "its place in the tab order";
    EXPECT_EQ(::GetWindow(pane, GW_HWNDNEXT), Control(IDC_MODULES_LABEL)) << "nothing else stands there";
}

TEST_F(MainWindowState, EmbedsOneOptionsDialogAndHidesThePanesText)
{
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
