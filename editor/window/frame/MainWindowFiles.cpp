// What the main window does about the project's files: saving, recovery, other programs' changes, the end.
#include "MainWindow.h"

#include <algorithm>
#include <utility>

#include "text/EditorText.h"
#include "text/PlantMessage.h"
#include "window/save/SaveQuestion.h"

bool MainWindow::SaveOrSayWhy()
{
    auto outcome = plant::Project::Outcome::Cancelled;
    std::wstring failure;
    try {
        const WaitCursor waiting;
        outcome = m_open->project.Save("window");
    } catch (const plant::Refusal& refusal) {
        failure = FormatEditorText(IDS_SAVE_FAILED, PlantMessage(refusal.What()).c_str());
    }
    // What has been taken from another program stays, also when the rest could not be saved.
    if (outcome != plant::Project::Outcome::Done)
        ShowProject();
    ShowState();
    if (!failure.empty())
        AfxMessageBox(failure.c_str(), MB_OK | MB_ICONERROR);
    // What other editors have left is offered while nothing is unsaved.
    if (!m_bRecoveriesOffered && outcome == plant::Project::Outcome::Done)
        PostMessage(WM_KZ_LOOK_AT_FILES);
    return outcome != plant::Project::Outcome::Cancelled;
}

bool MainWindow::MayClose()
{
    m_bUnwanted = false;
    if (!IsDirty())
        return true;
    const wchar_t* const name = m_open->project.Name().c_str();
    const std::optional<plant::ReviewCount> count = CountToSave(m_open->project);
    const std::wstring question = count ? FormatEditorText(IDS_ASK_SAVE_COUNTED, name, static_cast<int>(count->lines),
                                                           static_cast<int>(count->devices))
                                        : FormatEditorText(IDS_ASK_SAVE, name);
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

// The project's documents have been read anew: devices may be in other places, or gone.
void MainWindow::ShowProject()
{
    m_bChangesShown = true;
    const bool focusGoes = ::IsChild(m_pageOptions, ::GetFocus()) != FALSE;
    m_pageOptions.ShowText({});  // the embedded dialog works on a driver
    m_open->drivers.Reset();
    m_rows->Refresh({true, true, {}});
    m_lstDevices.Refresh(m_marked, m_open->project);
    if (m_lstDevices.MarkedCount() == 0)
        m_lstDevices.MarkOnly(0);
    ShowMarked();
    if (focusGoes)
        m_lstDevices.SetFocus();
}

// One is taken over at a time: the next would take its place. It is offered when the first is saved.
void MainWindow::OfferRecoveries()
{
    plant::Recoveries recoveries = m_open->project.FindUnsaved();
    if (!std::exchange(m_bDamageTold, true)) {
        for (const plant::Message& refused : recoveries.refused)
            AfxMessageBox(PlantMessage(refused).c_str(), MB_OK | MB_ICONWARNING);
    }
    for (plant::FoundRecovery& found : recoveries.found) {
        switch (m_questions.OfferRecovery(found.unsaved, m_open->project.ChangedSince(found))) {
        case ProjectQuestions::Offer::TakeOver:
            TakeOver(found);
            return;
        case ProjectQuestions::Offer::ThrowAway:
            plant::Discard(found);
            break;
        default:
            return;
        }
    }
    m_bRecoveriesOffered = true;
}

void MainWindow::TakeOver(plant::FoundRecovery& found)
{
    std::wstring failure;
    try {
        m_open->project.Recover(found);
    } catch (const plant::Refusal& refusal) {
        failure = PlantMessage(refusal.What());
    }
    ShowProject();
    if (!failure.empty())
        AfxMessageBox(failure.c_str(), MB_OK | MB_ICONERROR);
}

void MainWindow::LookForForeignChanges()
{
    plant::ForeignChanges changed = m_open->project.FindForeignChanges();
    std::vector<std::string> unasked;
    for (const auto& change : changed) {
        const auto refused = m_refusedChanges.find(change.first);
        if (refused == m_refusedChanges.end() || *refused != change)
            unasked.push_back(change.first);
    }
    m_refusedChanges = std::move(changed);
    if (unasked.empty() || !m_questions.AskToLoadAnew(unasked))
        return;
    m_open->project.TakeTheirs(unasked);
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
    if (!IsWindowEnabled() || !m_open)
        return 0;
    try {
        if (!m_bRecoveriesOffered && !IsDirty())
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

LRESULT MainWindow::OnWaiting(WPARAM, LPARAM)
{
    ShowTitle();
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
    const bool isUnwanted = std::exchange(m_bUnwanted, false);
    if (!wParam)
        return 0;
    if (isUnwanted)
        m_open->project.Discard();
    // What a dialog in front of the window would do without it is nothing that anybody wants; Windows ends the program.
    if (IsWindowEnabled())
        DestroyWindow();
    return 0;
}
