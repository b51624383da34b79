// What the main window does about the project's files: saving, recovery, other programs' changes, the end.
#include "MainWindow.h"

#include <algorithm>
#include <utility>

#include "text/EditorText.h"
#include "text/PlantMessage.h"

bool MainWindow::SaveOrSayWhy()
{
    auto outcome = plant::Project::Outcome::Cancelled;
    try {
        outcome = m_project.Save("window");
    } catch (const plant::Refusal& refusal) {
        AfxMessageBox(FormatEditorText(IDS_SAVE_FAILED, PlantMessage(refusal.What()).c_str()).c_str(),
                      MB_OK | MB_ICONERROR);
    }
    if (outcome == plant::Project::Outcome::TookTheirs)
        ShowProject();
    ShowState();
    return outcome != plant::Project::Outcome::Cancelled;
}

bool MainWindow::MayClose()
{
    m_bUnwanted = false;
    if (!IsDirty())
        return true;
    const std::wstring question = FormatEditorText(IDS_ASK_SAVE, m_project.Name().c_str());
    switch (AfxMessageBox(question.c_str(), MB_YESNOCANCEL | MB_ICONQUESTION)) {
    case IDYES:
        return SaveOrSayWhy();
    case IDNO:
        m_bUnwanted = true;
        return true;
    default:
        return false;
    }
}

// The project has been read anew.
void MainWindow::ShowProject()
{
    const int row = std::exchange(m_nShownRow, -1);
    m_pane.ShowText({});  // the embedded dialog works on a driver
    m_drivers.Reset();
    m_lstDevices.Refresh();
    const int last = static_cast<int>(m_project.Devices().size()) - 1;
    m_lstDevices.Select(std::max(0, std::min(row, last)));
    ShowDevice();
}

void MainWindow::OfferRecoveries()
{
    plant::Recoveries recoveries = m_project.FindUnsaved();
    for (const plant::Message& refused : recoveries.refused)
        AfxMessageBox(PlantMessage(refused).c_str(), MB_OK | MB_ICONWARNING);
    for (plant::FoundRecovery& found : recoveries.found) {
        if (ProjectQuestions::OfferRecovery(m_project, found))
            m_project.Recover(found);
        else
            plant::Discard(found);
    }
    if (!recoveries.found.empty())
        ShowProject();
}

void MainWindow::LookForForeignChanges()
{
    const std::vector<std::string> changed = m_project.ForeignChanges();
    if (changed.empty() || changed == m_refusedChanges)
        return;
    m_refusedChanges = changed;
    if (!ProjectQuestions::AskToLoadAnew(m_project, changed))
        return;
    m_refusedChanges.clear();
    m_project.TakeTheirs(changed);
    ShowProject();
}

// Questions wait until the activation is over.
LRESULT MainWindow::OnActivateProgram(WPARAM wParam, LPARAM)
{
    if (wParam)
        PostMessage(WM_KZ_LOOK_AT_FILES);
    return 0;
}

LRESULT MainWindow::OnLookAtFiles(WPARAM, LPARAM)
{
    // A dialog in front of the window works on what was read; saving asks in any case.
    if (!IsWindowEnabled())
        return 0;
    try {
        if (!std::exchange(m_bRecoveriesOffered, true))
            OfferRecoveries();
        LookForForeignChanges();
    } catch (const plant::Refusal& refusal) {
        AfxMessageBox(PlantMessage(refusal.What()).c_str(), MB_OK | MB_ICONERROR);
    }
    return 0;
}

LRESULT MainWindow::OnUnprotected(WPARAM, LPARAM)
{
    AfxMessageBox(m_questions.Warning().c_str(), MB_OK | MB_ICONWARNING);
    return 0;
}

LRESULT MainWindow::OnQueryEndOfSession(WPARAM, LPARAM)
{
    // What a dialog in front of the window holds, only the user can finish.
    return IsWindowEnabled() ? MayClose() : FALSE;
}

// Another program may have kept the session from ending, so that what the user does not want may still be wanted.
LRESULT MainWindow::OnEndOfSession(WPARAM wParam, LPARAM)
{
    if (!wParam)
        return 0;
    if (m_bUnwanted)
        m_project.Discard();
    DestroyWindow();
    return 0;
}
