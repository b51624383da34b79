// What the main window's pages show of the marked devices.
#include <algorithm>

#include "KZMainCfg.h"
#include "MainWindow.h"
#include "text/EditorText.h"

namespace {

constexpr UINT_PTR ValuesTimer = 1;

}  // namespace

void MainWindow::ShowMarked()
{
    m_places = m_lstDevices.MarkedPlaces();
    m_marked.clear();
    for (const std::size_t place : m_places)
        m_marked.push_back(m_open->project.Devices()[place].driverId);
    ShowCaption();
    ShowVariables();
    ShowPageContent();
    ShowState();
}

void MainWindow::ShowCaption()
{
    const KZDeviceIdentity* device = OnlyDevice();
    const std::wstring caption = device             ? std::wstring(device->name.View())
                                 : m_places.empty() ? EditorText(IDS_PANE_NO_DEVICE)
                                                    : FormatEditorText(IDS_MARKED, static_cast<int>(m_places.size()));
    SetDlgItemText(IDC_PAGE_CAPTION, caption.c_str());
}

// Only what is seen; another page is filled when it is shown.
void MainWindow::ShowPageContent()
{
    if (m_page == PageName::Values)
        ShowValues();
    if (m_page == PageName::Options)
        ShowOptions();
    else
        m_pageOptions.ShowText({});
}

// Many devices are read a slice at a time, behind everything that the user does.
void MainWindow::ShowValues()
{
    m_values.reset();
    if (m_places.empty()) {
        m_pageValues.Show({});
        return;
    }
    m_values.emplace(m_open->project, m_places);
    ContinueValues();
}

void MainWindow::ContinueValues()
{
    constexpr std::chrono::milliseconds Slice{30};
    if (!m_values)
        return;
    if (m_values->Work(Slice)) {
        ::SetTimer(m_hWnd, ValuesTimer, 1, nullptr);
        return;
    }
    m_pageValues.Show(m_values->Rows());
    m_values.reset();
}

LRESULT MainWindow::OnTimer(WPARAM wParam, LPARAM)
{
    ::KillTimer(m_hWnd, wParam);
    if (wParam == CheckTimer)
        ContinueCheck();
    else
        ContinueValues();
    return 0;
}

void MainWindow::ShowVariables()
{
    const KZDeviceIdentity* device = OnlyDevice();
    m_pageVariables.Show(device ? plant::ChosenVariables(*KZMainCfg::Get(), device->driverId) : plant::VariableList{});
    ShowTabs();
}

void MainWindow::ShowOptions()
{
    const KZDeviceIdentity* device = OnlyDevice();
    if (!device) {
        m_pageOptions.ShowText(EditorText(m_places.empty() ? IDS_PANE_NO_DEVICE : IDS_PANE_ONE_DEVICE));
    } else if (const KZDriverCallbacks* callbacks = OnlyCallbacks()) {
        m_pageOptions.Embed(OnlyDriver(), callbacks->createChildOptions);
    } else {
        const ModuleStatus status = m_modules.StatusOf(device->typeName);
        m_pageOptions.ShowText(status.reason + L"\n" + status.remedy);
    }
}

void MainWindow::ShowTabs()
{
    const std::wstring captions[] = {
        EditorText(IDS_PAGE_VALUES),
        OnlyDevice() ? FormatEditorText(IDS_PAGE_VARIABLES_COUNTED, m_pageVariables.Count())
                     : EditorText(IDS_PAGE_VARIABLES),
        EditorText(IDS_PAGE_OPTIONS),
    };
    int tab = 0;
    for (const std::wstring& caption : captions) {
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = const_cast<wchar_t*>(caption.c_str());
        const bool isThere = tab < m_tab.GetItemCount();
        m_tab.SendMessage(isThere ? TCM_SETITEMW : TCM_INSERTITEMW, static_cast<WPARAM>(tab++),
                          reinterpret_cast<LPARAM>(&item));
    }
}

CWnd& MainWindow::PageWindow()
{
    switch (m_page) {
    case PageName::Variables:
        return m_pageVariables;
    case PageName::Options:
        return m_pageOptions;
    default:
        return m_pageValues;
    }
}

void MainWindow::ShowPage(PageName page)
{
    CWnd& before = PageWindow();
    const bool hadFocus = ::IsChild(before, ::GetFocus()) != FALSE;
    m_page = page;
    m_tab.SetCurSel(static_cast<int>(page));
    ShowPageContent();
    PageWindow().ShowWindow(SW_SHOW);
    if (&before != &PageWindow()) {
        if (hadFocus)
            GotoDlgCtrl(GetNextDlgTabItem(&m_tab));
        before.ShowWindow(SW_HIDE);
    }
    ShowCommands();
}

void MainWindow::ShowNextPage(int step)
{
    constexpr int pages = 3;
    ShowPage(static_cast<PageName>((static_cast<int>(m_page) + pages + step) % pages));
}

void MainWindow::OnSelectPage(NMHDR*, LRESULT* result)
{
    *result = 0;
    ShowPage(static_cast<PageName>(m_tab.GetCurSel()));
}

void MainWindow::GoToPane(int step)
{
    std::vector<CWnd*> panes{&m_edtFind, &m_lstDevices, &m_barList, &m_tab};
    // A page without a control that takes the focus leaves it to the tabs.
    CWnd* const page = GetNextDlgTabItem(&m_tab);
    if (::IsChild(PageWindow(), *page))
        panes.back() = page;
    if (ShowsFindings())
        panes.insert(panes.end(), {&m_barFindings, &m_lstFindings});
    const HWND focus = ::GetFocus();
    int now = 0;
    const int count = static_cast<int>(panes.size());
    for (int pane = 0; pane < count; ++pane)
        if (panes[static_cast<std::size_t>(pane)]->m_hWnd == focus)
            now = pane;
    if (::IsChild(PageWindow(), focus))
        now = 3;
    now += step;
    if (now < 0)
        now = count - 1;
    else if (now == count)
        now = 0;
    GotoDlgCtrl(panes[static_cast<std::size_t>(now)]);
}
