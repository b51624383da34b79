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
    SelectedCallbacks()->options(this, SelectedDevice()->driver.get());
    ShowSummary();
    ShowState();
}

void MainWindow::SelectVariables()
{
    KZDriver* driver = SelectedDevice()->driver.get();
    const VariableList earlier = ChosenVariables(*KZMainCfg::Get(), *driver);
    VariableList variables = earlier;
    if (SelectedCallbacks()->selectVariables(this, driver, variables, MeasuredGroups, 0, nullptr))
        StoreChosenVariables(*KZMainCfg::Get(), *driver, MergeChoices(earlier, variables));
    ShowChosenVariables();
    ShowState();
}

void MainWindow::RemoveVariables()
{
    const KZDriver& driver = *SelectedDevice()->driver;
    const VariableList chosen = ChosenVariables(*KZMainCfg::Get(), driver);
    StoreChosenVariables(*KZMainCfg::Get(), driver, m_lstChosen.Unmarked(chosen));
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
