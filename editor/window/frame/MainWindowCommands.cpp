// What the user can do in the main window: menu items, buttons and shortcuts of the same ids, and closing it.
#include "KZMainCfg.h"
#include "MainWindow.h"
#include "project/GroupMask.h"
#include "text/PlantMessage.h"
#include "window/commands/CommandKeys.h"

bool MainWindow::HasCallbacks() const
{
    return SelectedCallbacks() != nullptr;
}

bool MainWindow::HasMarkedVariables() const
{
    return m_lstChosen.HasMarked();
}

bool MainWindow::IsDirty() const
{
    return m_project.IsDirty();
}

std::vector<KZBasicString> MainWindow::MarkedDevices() const
{
    const KZDeviceIdentity* device = SelectedDevice();
    return device ? std::vector<KZBasicString>{device->driverId} : std::vector<KZBasicString>{};
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
        CWnd* button = GetDlgItem(command.id);
        if (!button)
            continue;
        // A window that is disabled while it has the focus would swallow the keyboard.
        if (!enabled && GetFocus() == button)
            m_lstDevices.SetFocus();
        button->EnableWindow(enabled);
    }
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
    SelectedCallbacks()->options(this, SelectedDriver());
    ShowSummary();
    ShowState();
}

void MainWindow::SelectVariables()
{
    const KZBasicString driverId = SelectedDevice()->driverId;
    const plant::VariableList earlier = plant::ChosenVariables(*KZMainCfg::Get(), driverId);
    plant::VariableList variables = earlier;
    if (SelectedCallbacks()->selectVariables(this, SelectedDriver(), variables, plant::MeasuredGroups, 0, nullptr))
        plant::StoreChosenVariables(*KZMainCfg::Get(), driverId, plant::MergeChoices(earlier, variables));
    ShowChosenVariables();
    ShowState();
}

void MainWindow::RemoveVariables()
{
    const KZBasicString& driverId = SelectedDevice()->driverId;
    const plant::VariableList chosen = plant::ChosenVariables(*KZMainCfg::Get(), driverId);
    plant::StoreChosenVariables(*KZMainCfg::Get(), driverId, m_lstChosen.Unmarked(chosen));
    ShowChosenVariables();
    ShowState();
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
        m_project.Discard();
    DestroyWindow();
}

void MainWindow::OnClose()
{
    Close();
}
