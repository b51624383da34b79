// What the user can do in the main window: menu items, buttons and shortcuts of the same ids, and closing it.
#include "KZMainCfg.h"
#include "MainWindow.h"
#include "crash/CrashReport.h"
#include "project/GroupMask.h"
#include "window/commands/CommandKeys.h"
#include "window/commands/MenuBar.h"
#include "window/save/SaveQuestion.h"

bool MainWindow::HasCallbacks() const
{
    return OnlyCallbacks() != nullptr;
}

bool MainWindow::HasMarkedVariables() const
{
    return m_pageVariables.HasMarked();
}

bool MainWindow::HasDevices() const
{
    return m_open && !m_rows->Shown().empty();
}

bool MainWindow::IsDirty() const
{
    return m_open && m_open->project.IsDirty();
}

bool MainWindow::IsFiltered() const
{
    return m_edtFind.GetWindowTextLength() > 0;
}

void MainWindow::ShowCommands()
{
    ShowStateIn(::GetMenu(m_hWnd), *this);
    for (const WindowCommand& command : WindowCommands())
        if (command.id != 0)
            EnableButton(command.id, command.isEnabled(*this));
}

// A button stands in the window or on one of its pages.
void MainWindow::EnableButton(int id, bool enabled)
{
    CWnd* button = GetDlgItem(id);
    for (const CWnd* page : {static_cast<const CWnd*>(&m_pageVariables), static_cast<const CWnd*>(&m_paneStart)})
        if (!button)
            button = page->GetDlgItem(id);
    if (!button)
        return;
    // A window that is disabled while it has the focus would swallow the keyboard.
    if (!enabled && GetFocus() == button && m_open)
        m_lstDevices.SetFocus();
    button->EnableWindow(enabled);
}

void MainWindow::OnMenuCommand(UINT id)
{
    const WindowCommand* command = FindWindowCommand(static_cast<int>(id));
    NoteCommand(id);
    if (command && command->isEnabled(*this))
        command->run(*this);
}

bool MainWindow::TranslateKey(const MSG& message)
{
    const bool isOurs = message.hwnd == m_hWnd || ::IsChild(m_hWnd, message.hwnd);
    const WindowCommand* command = isOurs && IsWindowEnabled() ? CommandOfKey(message) : nullptr;
    if (command)
        SendMessage(WM_COMMAND, MAKEWPARAM(command->id, 1));
    return command != nullptr;
}

LRESULT MainWindow::OnContextMenu(WPARAM wParam, LPARAM lParam)
{
    if (reinterpret_cast<HWND>(wParam) != m_lstDevices.m_hWnd)
        return Default();
    // What was marked just now may not have been shown yet.
    OnMarksSettled(0, 0);
    CPoint place(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)));
    // By the keyboard: below the row that has the focus.
    if (lParam == -1) {
        CRect row(LVIR_LABEL, 0, 0, 0);
        m_lstDevices.SendMessage(LVM_GETITEMRECT, static_cast<WPARAM>(m_lstDevices.GetNextItem(-1, LVNI_FOCUSED)),
                                 reinterpret_cast<LPARAM>(static_cast<LPRECT>(row)));
        place = {row.left, row.bottom};
        m_lstDevices.ClientToScreen(&place);
    }
    const MenuHandle menu = MakeMenu(MenuName::Device, this);
    ShowStateIn(menu.get(), *this);
    ::TrackPopupMenu(menu.get(), TPM_RIGHTBUTTON, place.x, place.y, 0, m_hWnd, nullptr);
    return 0;
}

// A project that cannot be written is looked at without a step to undo.
void MainWindow::OpenOptions()
{
    const KZDeviceIdentity device = *OnlyDevice();
    const auto open = [this] { OnlyCallbacks()->options(this, OnlyDriver()); };
    if (m_open->project.IsReadOnly())
        open();
    else
        Change({IDS_PLANT_STEP_OPTIONS, {device.name.c_str()}}, {device.driverId}, open);
}

void MainWindow::SelectVariables()
{
    const KZDeviceIdentity device = *OnlyDevice();
    Change({IDS_PLANT_STEP_VARIABLES, {device.name.c_str()}}, {device.driverId}, [this, &device] {
        const plant::VariableList earlier = plant::ChosenVariables(*KZMainCfg::Get(), device.driverId);
        plant::VariableList variables = earlier;
        if (OnlyCallbacks()->selectVariables(this, OnlyDriver(), variables, plant::MeasuredGroups, 0, nullptr))
            plant::StoreChosenVariables(*KZMainCfg::Get(), device.driverId, plant::MergeChoices(earlier, variables));
    });
}

void MainWindow::RemoveVariables()
{
    const KZDeviceIdentity device = *OnlyDevice();
    Change({IDS_PLANT_STEP_VARIABLES, {device.name.c_str()}}, {device.driverId}, [this, &device] {
        const plant::VariableList chosen = plant::ChosenVariables(*KZMainCfg::Get(), device.driverId);
        plant::StoreChosenVariables(*KZMainCfg::Get(), device.driverId, m_pageVariables.Unmarked(chosen));
    });
}

void MainWindow::MarkAll()
{
    m_lstDevices.MarkAll();
}

void MainWindow::GoToFind()
{
    GotoDlgCtrl(&m_edtFind);
}

void MainWindow::ClearFind()
{
    m_edtFind.SetWindowText(L"");
    GoToFind();
}

void MainWindow::GoToList()
{
    m_lstDevices.SetFocus();
    if (m_lstDevices.MarkedCount() == 0)
        m_lstDevices.MarkOnly(0);
}

void MainWindow::GoToNextDevice()
{
    m_lstDevices.SelectNext(1);
}

void MainWindow::GoToPreviousDevice()
{
    m_lstDevices.SelectNext(-1);
}

void MainWindow::Save()
{
    if (MaySave(m_open->project))
        SaveOrSayWhy();
}

void MainWindow::Close()
{
    if (!MayClose())
        return;
    if (m_bUnwanted)
        m_open->project.Discard();
    StorePlace();
    DestroyWindow();
}

void MainWindow::OnClose()
{
    Close();
}
