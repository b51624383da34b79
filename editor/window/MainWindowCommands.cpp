// What the user can do in the main window: menu items, buttons and shortcuts of the same ids, and closing it.
#include "KZMainCfg.h"
#include "MainWindow.h"
#include "project/GroupMask.h"
#include "text/EditorText.h"

const MainWindow::CommandRow MainWindow::Commands[] = {
    {IDC_OPTIONS, &MainWindow::OpenOptions, &MainWindow::HasCallbacks},
    {IDC_SELECT, &MainWindow::SelectVariables, &MainWindow::HasCallbacks},
    {IDC_REMOVE, &MainWindow::RemoveVariables, &MainWindow::HasMarkedVariables},
    {IDC_SAVE, &MainWindow::Save, &MainWindow::IsDirty},
    {IDC_EXIT, &MainWindow::Close, &MainWindow::Always},
};

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

bool MainWindow::Always() const
{
    return true;
}

void MainWindow::ShowCommands()
{
    CMenu* menu = GetMenu();
    for (const CommandRow& command : Commands) {
        const bool enabled = (this->*command.enabled)();
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
    for (const CommandRow& command : Commands) {
        if (static_cast<UINT>(command.id) == id && (this->*command.enabled)())
            (this->*command.run)();
    }
}

bool MainWindow::TranslateShortcut(MSG* message)
{
    const bool isOurs = message->hwnd == m_hWnd || ::IsChild(m_hWnd, message->hwnd);
    return isOurs && IsWindowEnabled() && ::TranslateAcceleratorW(m_hWnd, m_hAccelerators, message) != 0;
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
