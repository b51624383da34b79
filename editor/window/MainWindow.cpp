#include "MainWindow.h"

#include <commctrl.h>

#include <algorithm>

#include "EmbeddedCommand.h"
#include "KZDlgOptions.h"
#include "KZMainCfg.h"
#include "ModuleSummary.h"
#include "WindowIcon.h"
#include "project/ChosenVariables.h"
#include "summary/DeviceSummary.h"
#include "text/EditorText.h"
#include "text/Utf8.h"

namespace {

// The groups of measured quantities, bits 2, 4, 5 and 6. A device that has none of them says so when it is asked.
constexpr KZVariableGroups measuredGroups{0x74};

// The list gets a third of what the window grows in height, the panes below it the rest.
constexpr Anchor anchors[] = {
    {IDC_DEVICES_LABEL, 0, 0, 0, 0},   {IDC_DEVICES, 0, 0, 100, 33},    {IDC_SELECT, 0, 33, 0, 0},
    {IDC_OPTIONS, 0, 33, 0, 0},        {IDC_SAVE, 100, 33, 0, 0},       {IDC_CHOSEN_LABEL, 0, 33, 0, 0},
    {IDC_CHOSEN, 0, 33, 20, 67},       {IDC_REMOVE, 0, 100, 0, 0},      {IDC_SUMMARY_LABEL, 20, 33, 40, 0},
    {IDC_SUMMARY, 20, 33, 40, 67},     {IDC_PANE_LABEL, 60, 33, 40, 0}, {IDC_PANE, 60, 33, 40, 67},
    {IDC_MODULES_LABEL, 0, 100, 0, 0}, {IDC_MODULES, 0, 100, 100, 0},
};

constexpr struct {
    int control;
    unsigned text;
} captions[] = {
    {IDC_DEVICES_LABEL, IDS_DEVICES_LABEL}, {IDC_OPTIONS, IDS_BUTTON_OPTIONS},
    {IDC_SELECT, IDS_BUTTON_SELECT},        {IDC_SAVE, IDS_BUTTON_SAVE},
    {IDC_REMOVE, IDS_BUTTON_REMOVE},        {IDC_SUMMARY_LABEL, IDS_SUMMARY_LABEL},
    {IDC_MODULES_LABEL, IDS_MODULES_LABEL},
};

}  // namespace

const MainWindow::CommandRow MainWindow::commands[] = {
    {IDC_OPTIONS, &MainWindow::OpenOptions, &MainWindow::HasCallbacks},
    {IDC_SELECT, &MainWindow::SelectVariables, &MainWindow::HasCallbacks},
    {IDC_REMOVE, &MainWindow::RemoveVariables, &MainWindow::HasMarkedVariables},
    {IDC_SAVE, &MainWindow::Save, &MainWindow::IsDirty},
    {IDC_EXIT, &MainWindow::Close, &MainWindow::Always},
};

BEGIN_MESSAGE_MAP(MainWindow, CDialog)
    ON_WM_CLOSE()
    ON_WM_DESTROY()
    ON_WM_GETMINMAXINFO()
    ON_WM_SIZE()
    ON_COMMAND_RANGE(IDC_OPTIONS, IDC_EXIT, &MainWindow::OnMenuCommand)
    ON_LBN_SELCHANGE(IDC_CHOSEN, &MainWindow::OnMarkVariable)
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_DEVICES, &MainWindow::OnSelectDevice)
    ON_NOTIFY(NM_DBLCLK, IDC_DEVICES, &MainWindow::OnDoubleClickDevice)
    ON_MESSAGE(WM_VKEYTOITEM, &MainWindow::OnListKey)
    ON_MESSAGE(WM_KZ_OPTIONS_CHANGED, &MainWindow::OnOptionsChanged)
END_MESSAGE_MAP()

bool MainWindow::Create()
{
    if (!CDialog::Create(IDD_MAIN))
        return false;
    // Windows frees the table with the program.
    m_accelerators = ::LoadAcceleratorsW(::GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDA_MAIN));
    ShowWindow(SW_SHOW);
    return true;
}

BOOL MainWindow::OnInitDialog()
{
    CDialog::OnInitDialog();
    AddMenu();
    SetProgramIcon(m_hWnd);
    SetTexts();
    m_pane.CreateInPlaceOf(*this, IDC_PANE);
    m_layout.Capture(m_hWnd, anchors);
    m_chosen.Attach(::GetDlgItem(m_hWnd, IDC_CHOSEN), ::GetDlgItem(m_hWnd, IDC_CHOSEN_LABEL));
    m_summary.Attach(::GetDlgItem(m_hWnd, IDC_SUMMARY));
    m_devices.Fill(::GetDlgItem(m_hWnd, IDC_DEVICES), m_project, m_modules);
    m_devices.Select(0);
    ShowDevice();
    ShowModules();
    GotoDlgCtrl(GetDlgItem(IDC_DEVICES));
    return FALSE;  // the focus is where it should be
}

// The template draws the client area without the menu, which is not in it because it has a language.
void MainWindow::AddMenu()
{
    CRect before;
    CRect after;
    CRect window;
    GetClientRect(&before);
    ::SetMenu(m_hWnd, LoadEditorMenu(IDM_MAIN));
    GetClientRect(&after);
    GetWindowRect(&window);
    SetWindowPos(nullptr, 0, 0, window.Width(), window.Height() + before.Height() - after.Height(),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void MainWindow::SetTexts()
{
    for (const auto& caption : captions)
        SetDlgItemText(caption.control, EditorText(caption.text).c_str());
}

const Device* MainWindow::SelectedDevice() const
{
    const int row = m_devices.Selected();
    return row < 0 ? nullptr : &m_project.Devices()[static_cast<std::size_t>(row)];
}

const KZDriverCallbacks* MainWindow::SelectedCallbacks() const
{
    const Device* device = SelectedDevice();
    return device ? m_modules.CallbacksOf(*device) : nullptr;
}

void MainWindow::ShowDevice()
{
    const Device* device = SelectedDevice();
    m_shownRow = m_devices.Selected();
    ShowChosenVariables();
    ShowSummary();
    SetDlgItemText(IDC_PANE_LABEL, device ? FormatEditorText(IDS_PANE_LABEL, device->driver->Name().c_str()).c_str()
                                          : EditorText(IDS_PANE_LABEL_NONE).c_str());
    if (!device) {
        m_pane.ShowText(EditorText(IDS_PANE_NO_DEVICE));
    } else if (const KZDriverCallbacks* callbacks = m_modules.CallbacksOf(*device)) {
        m_pane.Embed(device->driver.get(), callbacks->createChildOptions);
    } else {
        const ModuleStatus status = m_modules.StatusOf(*device);
        m_pane.ShowText(status.reason + L"\n" + status.remedy);
    }
    ShowState();
}

void MainWindow::ShowModules()
{
    constexpr std::size_t visibleLines = 2;
    SetDlgItemText(IDC_MODULES, ModuleSummary(m_modules).c_str());
    ::ShowScrollBar(::GetDlgItem(m_hWnd, IDC_MODULES), SB_VERT, m_modules.Modules().size() > visibleLines);
}

void MainWindow::ShowChosenVariables()
{
    const Device* device = SelectedDevice();
    m_chosen.Show(device ? ChosenVariables(*KZMainCfg::Get(), *device->driver) : VariableList{});
}

void MainWindow::ShowSummary()
{
    const Device* device = SelectedDevice();
    m_summary.Show(device ? DeviceSummary(*KZMainCfg::Get(), *device->driver) : SummaryRows{});
}

void MainWindow::ShowState()
{
    const unsigned title = IsDirty() ? IDS_TITLE_DIRTY : IDS_TITLE;
    SetWindowText(FormatEditorText(title, m_project.Name().c_str()).c_str());
    const HMENU menu = ::GetMenu(m_hWnd);
    for (const CommandRow& command : commands) {
        const bool enabled = (this->*command.enabled)();
        ::EnableMenuItem(menu, static_cast<UINT>(command.id), enabled ? MF_ENABLED : MF_GRAYED);
        const HWND button = ::GetDlgItem(m_hWnd, command.id);
        if (!button)
            continue;
        // A window that is disabled while it has the focus would swallow the keyboard.
        if (!enabled && ::GetFocus() == button)
            ::SetFocus(::GetDlgItem(m_hWnd, IDC_DEVICES));
        ::EnableWindow(button, enabled);
    }
}

bool MainWindow::HasCallbacks() const
{
    return SelectedCallbacks() != nullptr;
}

bool MainWindow::HasMarkedVariables() const
{
    return m_chosen.HasMarked();
}

bool MainWindow::IsDirty() const
{
    return m_project.IsDirty();
}

bool MainWindow::Always() const
{
    return true;
}

void MainWindow::OpenOptions()
{
    const KZDriverCallbacks* callbacks = SelectedCallbacks();
    callbacks->options(this, SelectedDevice()->driver.get());
    ShowSummary();
    ShowState();
}

void MainWindow::SelectVariables()
{
    KZDriver* driver = SelectedDevice()->driver.get();
    const VariableList earlier = ChosenVariables(*KZMainCfg::Get(), *driver);
    VariableList variables = earlier;
    if (SelectedCallbacks()->selectVariables(this, driver, variables, measuredGroups, 0, nullptr))
        StoreChosenVariables(*KZMainCfg::Get(), *driver, MergeChoices(earlier, variables));
    ShowChosenVariables();
    ShowState();
}

void MainWindow::RemoveVariables()
{
    const KZDriver& driver = *SelectedDevice()->driver;
    const VariableList chosen = ChosenVariables(*KZMainCfg::Get(), driver);
    StoreChosenVariables(*KZMainCfg::Get(), driver, m_chosen.Unmarked(chosen));
    ShowChosenVariables();
    ShowState();
}

bool MainWindow::SaveOrSayWhy()
{
    const KZDocumentResult saved = m_project.Save();
    if (!saved)
        AfxMessageBox(FormatEditorText(IDS_SAVE_FAILED, saved.message.c_str()).c_str(), MB_OK | MB_ICONERROR);
    ShowState();
    return saved.ok;
}

void MainWindow::Save()
{
    SaveOrSayWhy();
}

bool MainWindow::MayClose()
{
    if (!IsDirty())
        return true;
    const std::wstring question = FormatEditorText(IDS_ASK_SAVE, m_project.Name().c_str());
    switch (AfxMessageBox(question.c_str(), MB_YESNOCANCEL | MB_ICONQUESTION)) {
    case IDYES:
        return SaveOrSayWhy();
    case IDNO:
        return true;
    default:
        return false;
    }
}

void MainWindow::Close()
{
    if (MayClose())
        DestroyWindow();
}

void MainWindow::OnClose()
{
    Close();
}

void MainWindow::OnDestroy()
{
    CDialog::OnDestroy();
    ::PostQuitMessage(0);
}

void MainWindow::OnSize(UINT type, int cx, int cy)
{
    CDialog::OnSize(type, cx, cy);
    m_layout.Apply();
    m_devices.FitColumns();
    m_summary.FitColumns();
}

void MainWindow::OnGetMinMaxInfo(MINMAXINFO* information)
{
    const SIZE smallest = m_layout.MinimumWindowSize();
    information->ptMinTrackSize = {smallest.cx, smallest.cy};
    // Windows cuts a new window to the screen, and its controls with it; one that sticks out can at least be moved.
    information->ptMaxTrackSize = {SHRT_MAX, SHRT_MAX};
}

void MainWindow::OnMenuCommand(UINT id)
{
    for (const CommandRow& command : commands) {
        if (static_cast<UINT>(command.id) == id && (this->*command.enabled)())
            (this->*command.run)();
    }
}

void MainWindow::OnMarkVariable()
{
    ShowState();
}

void MainWindow::OnSelectDevice(NMHDR*, LRESULT* result)
{
    *result = 0;
    if (m_devices.Selected() != m_shownRow)
        ShowDevice();
}

void MainWindow::OnDoubleClickDevice(NMHDR*, LRESULT* result)
{
    *result = 0;
    OnMenuCommand(IDC_SELECT);
}

LRESULT MainWindow::OnListKey(WPARAM wParam, LPARAM)
{
    constexpr LRESULT keyIsDone = -2;
    constexpr LRESULT listHandlesKey = -1;
    if (LOWORD(wParam) != VK_DELETE)
        return listHandlesKey;
    OnMenuCommand(IDC_REMOVE);
    return keyIsDone;
}

LRESULT MainWindow::OnOptionsChanged(WPARAM, LPARAM)
{
    ShowSummary();
    ShowState();
    return 0;
}

bool MainWindow::TranslateShortcut(MSG* message)
{
    const bool isOurs = message->hwnd == m_hWnd || ::IsChild(m_hWnd, message->hwnd);
    return isOurs && ::IsWindowEnabled(m_hWnd) && ::TranslateAcceleratorW(m_hWnd, m_accelerators, message) != 0;
}

BOOL MainWindow::OnCommand(WPARAM wParam, LPARAM lParam)
{
    return RouteEmbeddedCommand(m_hWnd, wParam) || CDialog::OnCommand(wParam, lParam);
}

LRESULT MainWindow::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    // Nothing may be thrown through the system's code that called.
    try {
        return CDialog::WindowProc(message, wParam, lParam);
    } catch (const std::exception& error) {
        MessageBox(FromUtf8(error.what()).c_str(), EditorText(IDS_PROGRAM_NAME).c_str(), MB_OK | MB_ICONERROR);
        return 0;
    }
}
