// The main window: its controls and what they show. Its commands are in MainWindowCommands.cpp.
#include "MainWindow.h"

#include <climits>

#include "KZDlgOptions.h"
#include "KZMainCfg.h"
#include "KZUtf8.h"
#include "modules/ModuleSummary.h"
#include "text/EditorText.h"
#include "window/EmbeddedCommand.h"
#include "window/WindowIcon.h"
#include "window/commands/MenuBar.h"

namespace {

// The list gets a third of what the window grows in height, the panes below it the rest.
constexpr Anchor Anchors[] = {
    {IDC_DEVICES_LABEL, 0, 0, 0, 0},   {IDC_DEVICES, 0, 0, 100, 33},    {IDC_SELECT, 0, 33, 0, 0},
    {IDC_OPTIONS, 0, 33, 0, 0},        {IDC_SAVE, 100, 33, 0, 0},       {IDC_CHOSEN_LABEL, 0, 33, 0, 0},
    {IDC_CHOSEN, 0, 33, 20, 67},       {IDC_REMOVE, 0, 100, 0, 0},      {IDC_SUMMARY_LABEL, 20, 33, 40, 0},
    {IDC_SUMMARY, 20, 33, 40, 67},     {IDC_PANE_LABEL, 60, 33, 40, 0}, {IDC_PANE, 60, 33, 40, 67},
    {IDC_MODULES_LABEL, 0, 100, 0, 0}, {IDC_MODULES, 0, 100, 100, 0},
};

constexpr UINT WM_KZ_SELECTION_SETTLED = WM_APP + 0x140;

constexpr struct {
    int control;
    unsigned text;
} Captions[] = {
    {IDC_DEVICES_LABEL, IDS_DEVICES_LABEL}, {IDC_OPTIONS, IDS_BUTTON_OPTIONS},
    {IDC_SELECT, IDS_BUTTON_SELECT},        {IDC_SAVE, IDS_BUTTON_SAVE},
    {IDC_REMOVE, IDS_BUTTON_REMOVE},        {IDC_SUMMARY_LABEL, IDS_SUMMARY_LABEL},
    {IDC_MODULES_LABEL, IDS_MODULES_LABEL},
};

}  // namespace

BEGIN_MESSAGE_MAP(MainWindow, CDialog)
    ON_WM_CLOSE()
    ON_WM_GETMINMAXINFO()
    ON_WM_SIZE()
    ON_COMMAND_RANGE(IDC_FIRST_COMMAND, IDC_LAST_COMMAND, &MainWindow::OnMenuCommand)
    ON_LBN_SELCHANGE(IDC_CHOSEN, &MainWindow::OnMarkVariable)
    ON_NOTIFY(LVN_GETDISPINFO, IDC_DEVICES, &MainWindow::OnDeviceText)
    ON_NOTIFY(LVN_ODFINDITEM, IDC_DEVICES, &MainWindow::OnFindDevice)
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_DEVICES, &MainWindow::OnSelectDevice)
    ON_NOTIFY(LVN_KEYDOWN, IDC_DEVICES, &MainWindow::OnDeviceKey)
    ON_NOTIFY(NM_DBLCLK, IDC_DEVICES, &MainWindow::OnDoubleClickDevice)
    ON_MESSAGE(WM_KZ_OPTIONS_CHANGED, &MainWindow::OnOptionsChanged)
    ON_MESSAGE(WM_KZ_SELECTION_SETTLED, &MainWindow::OnSelectionSettled)
    ON_MESSAGE(WM_ACTIVATEAPP, &MainWindow::OnActivateProgram)
    ON_MESSAGE(WM_KZ_LOOK_AT_FILES, &MainWindow::OnLookAtFiles)
    ON_MESSAGE(WM_KZ_UNPROTECTED, &MainWindow::OnUnprotected)
    ON_MESSAGE(WM_KZ_WAITING, &MainWindow::OnWaiting)
    ON_MESSAGE(WM_QUERYENDSESSION, &MainWindow::OnQueryEndOfSession)
    ON_MESSAGE(WM_ENDSESSION, &MainWindow::OnEndOfSession)
END_MESSAGE_MAP()

MainWindow::MainWindow(plant::Project& project, const ModuleLoader& modules)
    : m_project(project), m_modules(modules), m_drivers(project.Devices()), m_questions(*this, project)
{
    m_project.SetUser(&m_questions);
}

MainWindow::~MainWindow()
{
    m_project.SetUser(nullptr);
}

bool MainWindow::Create()
{
    if (!CDialog::Create(IDD_MAIN))
        return false;
    ShowWindow(SW_SHOW);
    PostMessage(WM_KZ_LOOK_AT_FILES);
    return true;
}

void MainWindow::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_DEVICES, m_lstDevices);
    DDX_Control(pDX, IDC_CHOSEN, m_lstChosen);
    DDX_Control(pDX, IDC_SUMMARY, m_lstSummary);
}

BOOL MainWindow::OnInitDialog()
{
    if (!CDialog::OnInitDialog())
        return FALSE;
    AddMenu();
    SetProgramIcon(*this);
    SetTexts();
    if (!m_pane.CreateInPlaceOf(*this, IDC_PANE)) {
        EndDialog(-1);
        return FALSE;
    }
    m_layout.Capture(*this, Anchors);
    m_lstSummary.SetUp();
    m_lstDevices.Fill(m_project, m_modules);
    m_lstDevices.Select(0);
    ShowDevice();
    ShowModules();
    GotoDlgCtrl(&m_lstDevices);
    return FALSE;  // the focus is where it should be
}

// The template draws the client area without the menu, which is not in it because it has a language.
void MainWindow::AddMenu()
{
    CRect before;
    CRect after;
    CRect window;
    GetClientRect(&before);
    CMenu menu;
    menu.Attach(MakeMenuBar().release());
    SetMenu(&menu);
    menu.Detach();  // the window destroys it
    GetClientRect(&after);
    GetWindowRect(&window);
    SetWindowPos(nullptr, 0, 0, window.Width(), window.Height() + before.Height() - after.Height(),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void MainWindow::SetTexts()
{
    for (const auto& caption : Captions)
        SetDlgItemText(caption.control, EditorText(caption.text).c_str());
}

const KZDeviceIdentity* MainWindow::SelectedDevice() const
{
    return m_nShownRow < 0 ? nullptr : &m_project.Devices()[static_cast<std::size_t>(m_nShownRow)];
}

KZDriver* MainWindow::SelectedDriver()
{
    return m_nShownRow < 0 ? nullptr : &m_drivers[static_cast<std::size_t>(m_nShownRow)];
}

const KZDriverCallbacks* MainWindow::SelectedCallbacks() const
{
    const KZDeviceIdentity* device = SelectedDevice();
    return device ? m_modules.CallbacksOf(device->typeName) : nullptr;
}

void MainWindow::ShowDevice()
{
    m_nShownRow = m_lstDevices.Selected();
    const KZDeviceIdentity* device = SelectedDevice();
    if (device)
        m_shownDevice = device->driverId;
    ShowChosenVariables();
    ShowSummary();
    SetDlgItemText(IDC_PANE_LABEL, device ? FormatEditorText(IDS_PANE_LABEL, device->name.c_str()).c_str()
                                          : EditorText(IDS_PANE_LABEL_NONE).c_str());
    if (!device) {
        m_pane.ShowText(EditorText(IDS_PANE_NO_DEVICE));
    } else if (const KZDriverCallbacks* callbacks = m_modules.CallbacksOf(device->typeName)) {
        m_pane.Embed(SelectedDriver(), callbacks->createChildOptions);
    } else {
        const ModuleStatus status = m_modules.StatusOf(device->typeName);
        m_pane.ShowText(status.reason + L"\n" + status.remedy);
    }
    ShowState();
}

void MainWindow::ShowModules()
{
    constexpr std::size_t VisibleLines = 2;
    SetDlgItemText(IDC_MODULES, ModuleSummary(m_modules).c_str());
    GetDlgItem(IDC_MODULES)->ShowScrollBar(SB_VERT, m_modules.Modules().size() > VisibleLines);
}

void MainWindow::ShowChosenVariables()
{
    const KZDeviceIdentity* device = SelectedDevice();
    const plant::VariableList chosen =
        device ? plant::ChosenVariables(*KZMainCfg::Get(), device->driverId) : plant::VariableList{};
    m_lstChosen.Show(chosen);
    SetDlgItemText(IDC_CHOSEN_LABEL, FormatEditorText(IDS_CHOSEN_LABEL, static_cast<int>(chosen.size())).c_str());
}

void MainWindow::ShowSummary()
{
    const KZDeviceIdentity* device = SelectedDevice();
    m_lstSummary.Show(device ? DeviceSummary(m_project, *device) : SummaryRows{});
}

void MainWindow::ShowState()
{
    ShowTitle();
    ShowCommands();
}

void MainWindow::ShowTitle()
{
    const unsigned title = m_questions.IsWaiting() ? IDS_TITLE_WAITING : IsDirty() ? IDS_TITLE_DIRTY : IDS_TITLE;
    SetWindowText(FormatEditorText(title, m_project.Name().c_str()).c_str());
}

void MainWindow::OnSize(UINT type, int cx, int cy)
{
    CDialog::OnSize(type, cx, cy);
    m_layout.Apply();
    m_lstDevices.FitColumns();
    m_lstSummary.FitColumns();
}

void MainWindow::OnGetMinMaxInfo(MINMAXINFO* information)
{
    const CSize smallest = m_layout.MinimumWindowSize();
    information->ptMinTrackSize = {smallest.cx, smallest.cy};
    // Windows cuts a new window to the screen, and its controls with it; one that sticks out can at least be moved.
    information->ptMaxTrackSize = {SHRT_MAX, SHRT_MAX};
}

void MainWindow::OnMarkVariable()
{
    ShowState();
}

void MainWindow::OnDeviceText(NMHDR* header, LRESULT* result)
{
    *result = 0;
    m_lstDevices.GiveText(reinterpret_cast<NMLVDISPINFOW*>(header)->item);
}

void MainWindow::OnFindDevice(NMHDR* header, LRESULT* result)
{
    *result = m_lstDevices.Find(*reinterpret_cast<NMLVFINDITEMW*>(header));
}

void MainWindow::OnSelectDevice(NMHDR*, LRESULT* result)
{
    *result = 0;
    const int row = m_lstDevices.Selected();
    // The list takes the mark from one row before it marks the next: that there is none counts only if it stays so.
    if (row < 0)
        PostMessage(WM_KZ_SELECTION_SETTLED);
    else if (row != m_nShownRow)
        ShowDevice();
}

LRESULT MainWindow::OnSelectionSettled(WPARAM, LPARAM)
{
    if (m_lstDevices.Selected() != m_nShownRow)
        ShowDevice();
    return 0;
}

void MainWindow::OnDeviceKey(NMHDR* header, LRESULT* result)
{
    *result = 0;
    m_lstDevices.LeaveRow(reinterpret_cast<NMLVKEYDOWN*>(header)->wVKey);
}

void MainWindow::OnDoubleClickDevice(NMHDR*, LRESULT* result)
{
    *result = 0;
    OnMenuCommand(IDC_SELECT);
}

LRESULT MainWindow::OnOptionsChanged(WPARAM, LPARAM)
{
    ShowSummary();
    ShowState();
    return 0;
}

BOOL MainWindow::OnCommand(WPARAM wParam, LPARAM lParam)
{
    return RouteEmbeddedCommand(*this, wParam, lParam) || CDialog::OnCommand(wParam, lParam);
}
