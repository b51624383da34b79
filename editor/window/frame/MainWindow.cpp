// The main window: its controls and what they show. Its commands are in MainWindowCommands.cpp, its pages in
// MainWindowPages.cpp.
#include "MainWindow.h"

#include <climits>

#include "KZDlgOptions.h"
#include "text/EditorText.h"
#include "window/WindowIcon.h"
#include "window/commands/MenuBar.h"
#include "window/options/EmbeddedCommand.h"

namespace {

constexpr UINT WM_KZ_MARKS_SETTLED = WM_APP + 0x140;

struct ControlText {
    int control;
    unsigned text;
};

constexpr ControlText Captions[] = {
    {IDC_FIND_LABEL, IDS_FIND_LABEL},  {IDC_FIND_CLEAR, IDS_FIND_CLEAR},         {IDC_SELECT, IDS_BUTTON_SELECT},
    {IDC_OPTIONS, IDS_BUTTON_OPTIONS}, {IDC_FINDINGS_CLOSE, IDS_FINDINGS_CLOSE}, {IDC_CANCEL_CHECK, IDS_CANCEL_CHECK},
};

// What neither a label nor a text of its own names.
constexpr ControlText Names[] = {
    {IDC_FIND_CLEAR, IDS_NAME_FIND_CLEAR}, {IDC_DEVICES, IDS_DEVICES},
    {IDC_LIST_BAR, IDS_LIST_BAR},          {IDC_PAGES, IDS_NAME_PAGES},
    {IDC_FINDINGS_BAR, IDS_FINDINGS_BAR},  {IDC_FINDINGS_CLOSE, IDS_NAME_FINDINGS_CLOSE},
};

}  // namespace

BEGIN_MESSAGE_MAP(MainWindow, CDialog)
    ON_WM_CLOSE()
    ON_WM_CTLCOLOR()
    ON_WM_GETMINMAXINFO()
    ON_WM_SIZE()
    ON_COMMAND_RANGE(IDC_FIRST_COMMAND, IDC_LAST_COMMAND, &MainWindow::OnMenuCommand)
    ON_CONTROL(EN_CHANGE, IDC_FIND, &MainWindow::OnFindText)
    ON_NOTIFY(LVN_GETDISPINFO, IDC_DEVICES, &MainWindow::OnDeviceText)
    ON_NOTIFY(LVN_ODFINDITEM, IDC_DEVICES, &MainWindow::OnFindDevice)
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_DEVICES, &MainWindow::OnMarkDevice)
    ON_NOTIFY(LVN_ODSTATECHANGED, IDC_DEVICES, &MainWindow::OnMarkDevice)
    ON_NOTIFY(LVN_KEYDOWN, IDC_DEVICES, &MainWindow::OnDeviceKey)
    ON_NOTIFY(LVN_COLUMNCLICK, IDC_DEVICES, &MainWindow::OnSortDevices)
    ON_NOTIFY(NM_DBLCLK, IDC_DEVICES, &MainWindow::OnDoubleClickDevice)
    ON_NOTIFY(LVN_GETDISPINFO, IDC_FINDINGS, &MainWindow::OnFindingText)
    ON_NOTIFY(NM_DBLCLK, IDC_FINDINGS, &MainWindow::OnDoubleClickFinding)
    ON_NOTIFY(TCN_SELCHANGE, IDC_PAGES, &MainWindow::OnSelectPage)
    ON_MESSAGE(WM_KZ_VARIABLES_MARKED, &MainWindow::OnMarkVariable)
    ON_MESSAGE(WM_CONTEXTMENU, &MainWindow::OnContextMenu)
    ON_MESSAGE(WM_ENABLE, &MainWindow::OnEnable)
    ON_MESSAGE(WM_TIMER, &MainWindow::OnTimer)
    ON_MESSAGE(WM_KZ_CHANGES, &MainWindow::OnChanges)
    ON_MESSAGE(WM_KZ_SPLITTER, &MainWindow::OnSplitter)
    ON_MESSAGE(WM_KZ_OPTIONS_CHANGED, &MainWindow::OnOptionsChanged)
    ON_MESSAGE(WM_KZ_MARKS_SETTLED, &MainWindow::OnMarksSettled)
    ON_MESSAGE(WM_ACTIVATEAPP, &MainWindow::OnActivateProgram)
    ON_MESSAGE(WM_KZ_LOOK_AT_FILES, &MainWindow::OnLookAtFiles)
    ON_MESSAGE(WM_KZ_UNPROTECTED, &MainWindow::OnUnprotected)
    ON_MESSAGE(WM_KZ_WAITING, &MainWindow::OnWaiting)
    ON_MESSAGE(WM_QUERYENDSESSION, &MainWindow::OnQueryEndOfSession)
    ON_MESSAGE(WM_ENDSESSION, &MainWindow::OnEndOfSession)
END_MESSAGE_MAP()

MainWindow::MainWindow(const ModuleLoader& modules, SettingsFile& settings, std::unique_ptr<OpenProject> project)
    : m_modules(modules), m_settings(settings), m_open(std::move(project)), m_questions(*this)
{
}

MainWindow::~MainWindow()
{
    Detach();
}

bool MainWindow::Create()
{
    if (!CDialog::Create(IDD_MAIN))
        return false;
    RestorePlace();
    ShowWindow(m_settings.settings.isMaximized ? SW_SHOWMAXIMIZED : SW_SHOW);
    PostMessage(WM_KZ_LOOK_AT_FILES);
    return true;
}

void MainWindow::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_FIND, m_edtFind);
    DDX_Control(pDX, IDC_DEVICES, m_lstDevices);
    DDX_Control(pDX, IDC_PAGES, m_tab);
    DDX_Control(pDX, IDC_FINDINGS, m_lstFindings);
}

BOOL MainWindow::OnInitDialog()
{
    if (!CDialog::OnInitDialog())
        return FALSE;
    SetProgramIcon(*this);
    if (!m_barList.CreateBehind(*this, IDC_DEVICES, IDC_LIST_BAR) ||
        !m_barFindings.CreateBehind(*this, IDC_PAGE_CAPTION, IDC_FINDINGS_BAR) || !m_pageValues.CreateIn(*this) ||
        !m_pageVariables.CreateIn(*this) || !m_pageOptions.CreateIn(*this) || !m_paneStart.CreateIn(*this)) {
        EndDialog(-1);
        return FALSE;
    }
    // Behind the tabs in the order of Tab.
    CWnd* before = GetDlgItem(IDC_PAGE_CAPTION);
    for (CWnd* page : {static_cast<CWnd*>(&m_pageValues), static_cast<CWnd*>(&m_pageVariables),
                       static_cast<CWnd*>(&m_pageOptions)}) {
        page->SetWindowPos(before, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        before = page;
    }
    if (m_settings.settings.listShare != 0)
        m_layout.SetListShare(m_settings.settings.listShare);
    if (m_settings.settings.findingsShare != 0)
        m_layout.SetFindingsShare(m_settings.settings.findingsShare);
    m_pageOptions.SetAround([this](const std::function<void()>& command) { RunEmbedded(command); });
    SetTexts();
    m_lstDevices.SetWidths(m_settings.settings.deviceColumns);
    m_lstFindings.SetWidths(m_settings.settings.findingColumns);
    m_access.Attach(m_hWnd, {.tabs = m_tab, .nameControls = [this](AccessibleNames& names) { NameControls(names); }});
    Attach();
    return FALSE;  // the focus is where it should be
}

void MainWindow::SetTexts()
{
    for (const auto& caption : Captions)
        SetDlgItemText(caption.control, EditorText(caption.text).c_str());
    ShowMenu();
    m_lstDevices.SetUp();
    m_lstFindings.SetUp();
    m_lstFindings.Invalidate();
    ShowFindingsState();
    m_pageValues.SetTexts();
    m_pageVariables.SetTexts();
    m_paneStart.Show(RecentProjects());
    ShowTabs();
    Arrange();
    m_access.NameAnew();
}

void MainWindow::NameControls(AccessibleNames& names)
{
    for (const auto& [control, text] : Names)
        names.Set(*GetDlgItem(control), EditorText(text));
    m_pageValues.NameControls(names);
}

void MainWindow::ShowMenu()
{
    CMenu menu;
    menu.Attach(MakeMenuBar(this).release());
    const HMENU before = ::GetMenu(m_hWnd);
    SetMenu(&menu);
    menu.Detach();  // the window destroys it
    if (before)
        ::DestroyMenu(before);
}

const KZDeviceIdentity* MainWindow::OnlyDevice() const
{
    return m_places.size() == 1 ? &m_open->project.Devices()[m_places.front()] : nullptr;
}

KZDriver* MainWindow::OnlyDriver()
{
    return m_places.size() == 1 ? &m_open->drivers[m_places.front()] : nullptr;
}

const KZDriverCallbacks* MainWindow::OnlyCallbacks() const
{
    const KZDeviceIdentity* device = OnlyDevice();
    return device ? m_modules.CallbacksOf(device->typeName) : nullptr;
}

void MainWindow::ShowState()
{
    ShowTitle();
    ShowStatus();
    ShowCommands();
}

void MainWindow::ShowTitle()
{
    if (!m_open) {
        SetWindowText(EditorText(IDS_TITLE_NONE).c_str());
        return;
    }
    const unsigned title = m_questions.IsWaiting()        ? IDS_TITLE_WAITING
                           : IsDirty()                    ? IDS_TITLE_DIRTY
                           : m_open->project.IsReadOnly() ? IDS_TITLE_READ_ONLY
                                                          : IDS_TITLE;
    SetWindowText(FormatEditorText(title, m_open->project.Name().c_str()).c_str());
}

void MainWindow::ShowStatus()
{
    if (!m_open) {
        for (WPARAM part = 0; part < 4; ++part)
            GetDlgItem(IDC_STATUS_BAR)->SendMessage(SB_SETTEXTW, part, reinterpret_cast<LPARAM>(L""));
        return;
    }
    const int shown = static_cast<int>(m_rows->Shown().size());
    const int all = static_cast<int>(m_open->project.Devices().size());
    const std::wstring count = FormatEditorText(IDS_COUNT, shown, all);
    SetDlgItemText(IDC_FIND_COUNT, count.c_str());
    const int changed = static_cast<int>(m_open->project.ChangedDevices().size());
    const std::wstring parts[] = {
        count,
        FormatEditorText(IDS_STATUS_MARKED, static_cast<int>(m_places.size())),
        FormatEditorText(changed == 1 ? IDS_STATUS_ONE_CHANGED : IDS_STATUS_CHANGED, changed),
        CheckText(),
    };
    const CWnd* status = GetDlgItem(IDC_STATUS_BAR);
    for (WPARAM part = 0; part < std::size(parts); ++part)
        status->SendMessage(SB_SETTEXTW, part, reinterpret_cast<LPARAM>(parts[part].c_str()));
}

void MainWindow::Arrange()
{
    m_layout.Arrange(*this);
    const CRect page = FrameLayout::PageArea(*this);
    for (CWnd* window :
         {static_cast<CWnd*>(&m_pageValues), static_cast<CWnd*>(&m_pageVariables), static_cast<CWnd*>(&m_pageOptions)})
        window->MoveWindow(page);
    m_lstDevices.FitColumns();
    m_lstFindings.FitColumns();
    CRect client;
    GetClientRect(&client);
    CRect status;
    GetDlgItem(IDC_STATUS_BAR)->GetWindowRect(&status);
    m_paneStart.MoveWindow(0, 0, client.Width(), client.Height() - status.Height());
    const int edges[] = {client.Width() / 4, client.Width() / 2, client.Width() * 3 / 4, -1};
    GetDlgItem(IDC_STATUS_BAR)->SendMessage(SB_SETPARTS, std::size(edges), reinterpret_cast<LPARAM>(edges));
}

void MainWindow::OnSize(UINT type, int cx, int cy)
{
    CDialog::OnSize(type, cx, cy);
    // Windows tells the size before there are pages.
    if (type != SIZE_MINIMIZED && m_pageOptions.m_hWnd)
        Arrange();
}

void MainWindow::OnGetMinMaxInfo(MINMAXINFO* information)
{
    const CSize client = FrameLayout::Smallest(*this);
    CRect smallest(0, 0, client.cx, client.cy);
    ::AdjustWindowRectEx(&smallest, GetStyle(), TRUE, 0);
    information->ptMinTrackSize = {smallest.Width(), smallest.Height()};
    // Windows cuts a new window to the screen, and its controls with it; one that sticks out can at least be moved.
    information->ptMaxTrackSize = {SHRT_MAX, SHRT_MAX};
}

// The caption stands on the page, which has the colour of a window.
HBRUSH MainWindow::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
{
    if (pWnd->m_hWnd != GetDlgItem(IDC_PAGE_CAPTION)->m_hWnd)
        return CDialog::OnCtlColor(pDC, pWnd, nCtlColor);
    pDC->SetBkColor(::GetSysColor(COLOR_WINDOW));
    pDC->SetTextColor(::GetSysColor(COLOR_WINDOWTEXT));
    return ::GetSysColorBrush(COLOR_WINDOW);
}

LRESULT MainWindow::OnSplitter(WPARAM wParam, LPARAM lParam)
{
    const auto pixels = static_cast<int>(lParam);
    if (wParam == IDC_LIST_BAR ? m_layout.MoveListBar(*this, pixels) : m_layout.MoveFindingsBar(*this, pixels))
        Arrange();
    return 0;
}

void MainWindow::OnFindText()
{
    if (!m_open)
        return;
    CString text;
    m_edtFind.GetWindowText(text);
    m_rows->Filter(text.GetString());
    m_lstDevices.Refresh(m_marked, m_open->project);
    ShowMarked();
}

LRESULT MainWindow::OnMarkVariable(WPARAM, LPARAM)
{
    ShowCommands();
    return 0;
}

void MainWindow::OnDeviceText(NMHDR* header, LRESULT* result)
{
    *result = 0;
    m_lstDevices.Answer(*header, *result);
}

void MainWindow::OnFindDevice(NMHDR* header, LRESULT* result)
{
    *result = m_lstDevices.Find(*reinterpret_cast<NMLVFINDITEMW*>(header));
}

// The list takes the mark from one row before it marks the next, and it marks many one by one: what is marked counts
// once it stays so. A single row that has its mark is shown at once.
void MainWindow::OnMarkDevice(NMHDR*, LRESULT* result)
{
    *result = 0;
    if (m_lstDevices.MarkedCount() == 1 && m_lstDevices.MarkedPlaces() != m_places) {
        ShowMarked();
    } else if (!m_bMarksSettling) {
        m_bMarksSettling = true;
        PostMessage(WM_KZ_MARKS_SETTLED);
    }
}

LRESULT MainWindow::OnMarksSettled(WPARAM, LPARAM)
{
    m_bMarksSettling = false;
    if (m_lstDevices.MarkedPlaces() != m_places)
        ShowMarked();
    return 0;
}

void MainWindow::OnDeviceKey(NMHDR* header, LRESULT* result)
{
    *result = 0;
    m_lstDevices.LeaveRow(reinterpret_cast<NMLVKEYDOWN*>(header)->wVKey);
}

void MainWindow::OnSortDevices(NMHDR* header, LRESULT* result)
{
    *result = 0;
    m_lstDevices.SortBy(reinterpret_cast<NMLISTVIEW*>(header)->iSubItem);
    m_lstDevices.Refresh(m_marked, m_open->project);
    ShowMarked();
}

void MainWindow::OnDoubleClickDevice(NMHDR*, LRESULT* result)
{
    *result = 0;
    OnMenuCommand(IDC_SELECT);
}

LRESULT MainWindow::OnOptionsChanged(WPARAM, LPARAM)
{
    ShowState();
    return 0;
}

// Escape closes dialogs, not the program.
void MainWindow::OnCancel()
{
    if (GetFocus() == &m_edtFind)
        ClearFind();
}

BOOL MainWindow::OnCommand(WPARAM wParam, LPARAM lParam)
{
    return RouteEmbeddedCommand(*this, wParam, lParam) || CDialog::OnCommand(wParam, lParam);
}
