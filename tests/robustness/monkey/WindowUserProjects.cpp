// What the random user does with whole projects: saving, going back to an earlier save, copying, opening others.
#include "WindowUser.h"
#include "project/DocumentName.h"

void WindowUser::Restore()
{
    const auto last = [this] {
        const std::vector<plant::HistoryEntry> entries = m_window->Project().Entries();
        return entries.empty() ? 0 : entries.back().number;
    };
    const int before = last();
    RunWithDialogs(IDC_HISTORY);
    if (last() == before)
        return;
    m_model->ReadAnew();
    ++m_counts.restores;
}

// Where the user is asked he may say no.
void WindowUser::Save()
{
    const bool wasUnsaved = m_window->IsDirty();
    RunWithDialogs(IDC_SAVE);
    if (!wasUnsaved || m_window->IsDirty())
        return;
    m_model->Saved();
    ++m_counts.saves;
}

std::set<plant::Path> WindowUser::Projects() const
{
    std::set<plant::Path> projects;
    for (const auto& entry : std::filesystem::directory_iterator(m_folder.Path()))
        if (std::filesystem::exists(entry.path() / plant::MainDocument))
            projects.insert(entry.path());
    return projects;
}

void WindowUser::SaveCopy()
{
    const std::set<plant::Path> before = Projects();
    RunWithDialogs(IDC_SAVE_COPY);
    for (const plant::Path& project : Projects()) {
        if (before.contains(project))
            continue;
        ++m_counts.copies;
        if (DocumentsIn(project) != m_model->Now())
            m_fault = "a copy has other documents";
    }
}

// Where nothing can be undone or redone nothing is unsaved: whether the same project was opened anew is then all one.
void WindowUser::OpenAnother()
{
    // Seldom: there is more to do in a project that has been open for a while.
    if (!m_random.OneIn(4))
        return;
    constexpr int commands[] = {IDC_OPEN, IDC_NEW, IDC_RECENT_FIRST, IDC_RECENT_FIRST + 1, IDC_RECENT_FIRST + 2};
    const plant::Path before = m_window->Project().Folder();
    RunWithDialogs(m_random.Pick(commands));
    const bool lostItsSteps =
        (m_model->CanUndo() || m_model->CanRedo()) && !m_window->CanUndo() && !m_window->CanRedo();
    if (m_window->Project().Folder() == before && !lostItsSteps)
        return;
    ++m_counts.openings;
    const Documents left = DocumentsIn(before);
    if (left != m_model->Now() && left != m_model->LastSaved())
        m_fault = "the project that was left has documents that nobody saved";
    m_model = std::make_unique<WindowModel>(m_window->Project());
}
