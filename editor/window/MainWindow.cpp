#include "MainWindow.h"

#include <commctrl.h>

#include <algorithm>

#include "KZDlgOptions.h"
#include "KZMainCfg.h"
#include "MessageLoop.h"
#include "ModuleSummary.h"
#include "WindowIcon.h"
#include "project/ChosenVariables.h"
#include "text/EditorText.h"
#include "text/Utf8.h"

namespace {

// The groups of measured quantities, bits 2, 4, 5 and 6. A device that has none of them says so when it is asked.
constexpr KZVariableGroups measuredGroups{0x74};

// The list gets a third of what the window grows in height, the panes below it the rest.
constexpr Anchor anchors[] = {
    {IDC_DEVICES_LABEL, 0, 0, 0, 0}, {IDC_DEVICES, 0, 0, 100, 33},      {IDC_SELECT, 0, 33, 0, 0},
    {IDC_OPTIONS, 0, 33, 0, 0},      {IDC_SAVE, 100, 33, 0, 0},         {IDC_CHOSEN_LABEL, 0, 33, 0, 0},
    {IDC_CHOSEN, 0, 33, 30, 67},     {IDC_REMOVE, 0, 100, 0, 0},        {IDC_PANE_LABEL, 30, 33, 70, 0},
    {IDC_PANE, 30, 33, 70, 67},      {IDC_MODULES_LABEL, 0, 100, 0, 0}, {IDC_MODULES, 0, 100, 100, 0},
};

constexpr struct {
    int control;
    unsigned text;
} captions[] = {
    {IDC_DEVICES_LABEL, IDS_DEVICES_LABEL}, {IDC_OPTIONS, IDS_BUTTON_OPTIONS},
    {IDC_SELECT, IDS_BUTTON_SELECT},        {IDC_SAVE, IDS_BUTTON_SAVE},
    {IDC_REMOVE, IDS_BUTTON_REMOVE},        {IDC_MODULES_LABEL, IDS_MODULES_LABEL},
};

}  // namespace

const MainWindow::CommandRow MainWindow::commands[] = {
    {IDC_OPTIONS, &MainWindow::OpenOptions, &MainWindow::HasCallbacks},
    {IDC_SELECT, &MainWindow::SelectVariables, &MainWindow::HasCallbacks},
    {IDC_REMOVE, &MainWindow::RemoveVariables, &MainWindow::HasMarkedVariables},
    {IDC_SAVE, &MainWindow::Save, &MainWindow::IsDirty},
    {IDC_EXIT, &MainWindow::Close, &MainWindow::Always},
};

bool MainWindow::Run()
{
    if (!Create(IDD_MAIN))
        return false;
    const HACCEL accelerators = ::LoadAcceleratorsW(::GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDA_MAIN));
    ::ShowWindow(m_hWnd, SW_SHOW);
    RunMessageLoop(m_hWnd, accelerators);
    return true;
}

BOOL MainWindow::OnInitDialog()
{
    CDialog::OnInitDialog();
    AfxGetApp()->m_pMainWnd = this;
    ::SetMenu(m_hWnd, LoadEditorMenu(IDM_MAIN));
    SetProgramIcon(m_hWnd);
    SetTexts();
    m_pane.CreateInPlaceOf(*this, IDC_PANE);
    m_layout.Capture(m_hWnd, anchors);
    m_chosen.Attach(::GetDlgItem(m_hWnd, IDC_CHOSEN), ::GetDlgItem(m_hWnd, IDC_CHOSEN_LABEL));
    m_devices.Fill(::GetDlgItem(m_hWnd, IDC_DEVICES), m_project, m_modules);
    m_devices.Select(0);
    ShowDevice();
    ::SetDlgItemTextW(m_hWnd, IDC_MODULES, ModuleSummary(m_modules).c_str());
    ::SetFocus(::GetDlgItem(m_hWnd, IDC_DEVICES));
    return FALSE;  // the focus is where it should be
}

void MainWindow::SetTexts()
{
    for (const auto& caption : captions)
        ::SetDlgItemTextW(m_hWnd, caption.control, EditorText(caption.text).c_str());
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
    ::SetDlgItemTextW(m_hWnd, IDC_PANE_LABEL,
                      device ? FormatEditorText(IDS_PANE_LABEL, device->driver->Name().c_str()).c_str()
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

void MainWindow::ShowChosenVariables()
{
    const Device* device = SelectedDevice();
    m_chosen.Show(device ? ChosenVariables(*KZMainCfg::Get(), *device->driver) : VariableList{});
}

void MainWindow::ShowState()
{
    const unsigned title = IsDirty() ? IDS_TITLE_DIRTY : IDS_TITLE;
    ::SetWindowTextW(m_hWnd, FormatEditorText(title, m_project.Name().c_str()).c_str());
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

BOOL MainWindow::OnCommand(WPARAM wParam, LPARAM lParam)
{
    if (LOWORD(wParam) == IDC_CHOSEN && HIWORD(wParam) == LBN_SELCHANGE) {
        ShowState();
        return TRUE;
    }
    // A click, a menu item or an accelerator; buttons tell of their focus under the same id.
    if (const WORD code = HIWORD(wParam); code <= 1) {
        for (const CommandRow& command : commands) {
            if (command.id != LOWORD(wParam))
                continue;
            if ((this->*command.enabled)())
                (this->*command.run)();
            return TRUE;
        }
    }
    return RouteEmbeddedCommand(m_hWnd, wParam) || CDialog::OnCommand(wParam, lParam);
}

bool MainWindow::OnNotification(const NMHDR& header)
{
    if (header.idFrom != IDC_DEVICES)
        return false;
    if (header.code == LVN_ITEMCHANGED && m_devices.Selected() != m_shownRow)
        ShowDevice();
    if (header.code == NM_DBLCLK)
        ::SendMessageW(m_hWnd, WM_COMMAND, IDC_SELECT, 0);
    return true;
}

LRESULT MainWindow::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_SIZE:
        m_layout.Apply();
        m_devices.FitColumns();
        break;
    case WM_GETMINMAXINFO: {
        const SIZE smallest = m_layout.MinimumWindowSize();
        reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {smallest.cx, smallest.cy};
        return 0;
    }
    case WM_NOTIFY:
        OnNotification(*reinterpret_cast<const NMHDR*>(lParam));
        return 0;
    case WM_KZ_OPTIONS_CHANGED:
        ShowState();
        return 0;
    case WM_VKEYTOITEM:
        if (LOWORD(wParam) != VK_DELETE)
            return -1;
        ::SendMessageW(m_hWnd, WM_COMMAND, IDC_REMOVE, 0);
        return -2;
    case WM_CLOSE:
        Close();
        return 0;
    case WM_DESTROY:
        ::PostQuitMessage(0);
        break;
    default:
        break;
    }
    return CDialog::WindowProc(message, wParam, lParam);
}

LRESULT MainWindow::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    // Nothing may be thrown through the system's code that called.
    try {
        return HandleMessage(message, wParam, lParam);
    } catch (const std::exception& error) {
        ::MessageBoxW(m_hWnd, FromUtf8(error.what()).c_str(), EditorText(IDS_PROGRAM_NAME).c_str(),
                      MB_OK | MB_ICONERROR);
        return 0;
    }
}
