// What the user can do in the main window: menu items, buttons and shortcuts of the same ids, and closing it.
#include "KZMainCfg.h"
#include "MainWindow.h"
#include "project/GroupMask.h"
#include "text/PlantMessage.h"
#include "window/commands/CommandKeys.h"

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

bool MainWindow::Change(const std::function<void()>& change)
{
    std::wstring failure;
    try {
        change();
    } catch (const plant::Refusal& refusal) {
        failure = PlantMessage(refusal.What());
    }
    ShowProject();
    if (!failure.empty())
        AfxMessageBox(failure.c_str(), MB_OK | MB_ICONERROR);
    return failure.empty();
}

void MainWindow::ShowCommands()
{
    CMenu* menu = GetMenu();
    for (const WindowCommand& command : WindowCommands()) {
        if (command.id == 0)
            continue;
        const bool enabled = command.isEnabled(*this);
        menu->EnableMenuItem(static_cast<UINT>(command.id), enabled ? MF_ENABLED : MF_GRAYED);
        if (command.isChosen)
            ::CheckMenuItem(menu->m_hMenu, static_cast<UINT>(command.id),
                            command.isChosen(*this) ? MF_CHECKED : MF_UNCHECKED);
        EnableButton(command.id, enabled);
    }
}

// A button stands in the window or on one of its pages.
void MainWindow::EnableButton(int id, bool enabled)
{
    CWnd* button = GetDlgItem(id);
    if (!button)
        button = m_pageVariables.GetDlgItem(id);
    if (!button)
        return;
    // A window that is disabled while it has the focus would swallow the keyboard.
    if (!enabled && GetFocus() == button)
        m_lstDevices.SetFocus();
    button->EnableWindow(enabled);
}

void MainWindow::OnMenuCommand(UINT id)
{
    const WindowCommand* command = FindWindowCommand(static_cast<int>(id));
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

void MainWindow::OpenOptions()
{
    OnlyCallbacks()->options(this, OnlyDriver());
    ShowPageContent();
    ShowState();
}

void MainWindow::SelectVariables()
{
    const KZBasicString driverId = OnlyDevice()->driverId;
    const plant::VariableList earlier = plant::ChosenVariables(*KZMainCfg::Get(), driverId);
    plant::VariableList variables = earlier;
    if (OnlyCallbacks()->selectVariables(this, OnlyDriver(), variables, plant::MeasuredGroups, 0, nullptr))
        StoreVariables(driverId, plant::MergeChoices(earlier, variables));
}

void MainWindow::RemoveVariables()
{
    const KZBasicString driverId = OnlyDevice()->driverId;
    StoreVariables(driverId, m_pageVariables.Unmarked(plant::ChosenVariables(*KZMainCfg::Get(), driverId)));
}

void MainWindow::StoreVariables(const KZBasicString& driverId, const plant::VariableList& variables)
{
    plant::StoreChosenVariables(*KZMainCfg::Get(), driverId, variables);
    m_rows->Refresh({false, false, {&driverId, 1}});
    m_lstDevices.Invalidate();
    ShowVariables();
    ShowState();
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
        m_lstDevices.Select(0);
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
    SaveOrSayWhy();
}

void MainWindow::Close()
{
    if (!MayClose())
        return;
    if (m_bUnwanted)
        m_open->project.Discard();
    DestroyWindow();
}

void MainWindow::OnClose()
{
    Close();
}
