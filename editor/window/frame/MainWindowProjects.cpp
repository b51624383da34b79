// Opening projects in the main window, and what it does when the open one changes.
#include <algorithm>
#include <utility>

#include "MainWindow.h"
#include "project/ProjectFolder.h"
#include "text/EditorText.h"
#include "text/PlantMessage.h"
#include "window/open/ProjectFolderDialog.h"

namespace {

// What a menu shows of it is the text itself, without an access key.
std::wstring WithoutAccessKey(std::wstring text)
{
    for (std::size_t at = text.find(L'&'); at != std::wstring::npos; at = text.find(L'&', at + 2))
        text.insert(at, 1, L'&');
    return text;
}

}  // namespace

// Shows the project that has just been opened, or the start page.
void MainWindow::Attach()
{
    m_bDamageTold = false;
    m_bRecoveriesOffered = false;
    m_refusedChanges.clear();
    m_places.clear();
    m_marked.clear();
    if (m_open) {
        m_questions.SetProject(&m_open->project);
        m_open->project.SetUser(&m_questions);
        m_open->project.AddListener(*this);
        m_rows = std::make_unique<DeviceRows>(m_open->project, m_modules);
        std::error_code ignored;
        m_settings.settings.Remember(std::filesystem::absolute(m_open->project.Folder(), ignored).wstring());
        m_settings.Store();
    }
    m_lstDevices.Show(m_rows.get());
    m_lstFindings.Show({});
    ShowFindingsPane(false);
    ShowFindingsState();
    m_edtFind.SetWindowText(L"");
    m_paneStart.Show(RecentProjects());
    ShowMenu();
    ShowPanes();
    m_lstDevices.MarkOnly(0);
    m_lstDevices.FitColumns();
    ShowMarked();
    GotoDlgCtrl(m_open ? static_cast<CWnd*>(&m_lstDevices) : m_paneStart.GetDlgItem(IDC_RECENT));
}

void MainWindow::Detach() noexcept
{
    if (!m_open)
        return;
    m_open->project.SetUser(nullptr);
    m_open->project.RemoveListener(*this);
    m_questions.SetProject(nullptr);
}

void MainWindow::ShowPanes()
{
    const int shown = m_open ? SW_SHOWNA : SW_HIDE;
    for (const int id : {IDC_FIND_LABEL, IDC_FIND, IDC_FIND_CLEAR, IDC_FIND_COUNT, IDC_SELECT, IDC_OPTIONS, IDC_DEVICES,
                         IDC_LIST_BAR, IDC_PAGES, IDC_PAGE_CAPTION})
        GetDlgItem(id)->ShowWindow(shown);
    PageWindow().ShowWindow(shown);
    m_paneStart.ShowWindow(m_open ? SW_HIDE : SW_SHOWNA);
}

bool MainWindow::Open(const std::filesystem::path& folder)
{
    std::wstring failure;
    try {
        plant::RequireOpenable(folder);
        if (!MayClose())
            return false;
        if (std::exchange(m_bUnwanted, false))
            m_open->project.Discard();
        m_pageOptions.ShowText({});
        m_lstDevices.Show(nullptr);
        Detach();
        m_rows.reset();
        m_open.reset();
        m_open = std::make_unique<OpenProject>(folder);
    } catch (const plant::Refusal& refusal) {
        failure = PlantMessage(refusal.What());
    }
    if (failure.empty() || !m_rows)
        Attach();
    if (!failure.empty())
        AfxMessageBox(failure.c_str(), MB_OK | MB_ICONERROR);
    else
        PostMessage(WM_KZ_LOOK_AT_FILES);
    return failure.empty();
}

void MainWindow::NewProject()
{
    ProjectFolderDialog dialog(this, FolderPurpose::New, {},
                               [](const plant::Path& folder) { plant::NewProject(folder); });
    if (dialog.DoModal() == IDOK)
        Open(dialog.Folder());
}

void MainWindow::OpenAnother()
{
    ProjectFolderDialog dialog(this, FolderPurpose::Open, RecentProjects(),
                               [](const plant::Path& folder) { plant::RequireOpenable(folder); });
    if (dialog.DoModal() == IDOK)
        Open(dialog.Folder());
}

void MainWindow::OpenRecent(std::size_t index)
{
    if (index < RecentProjects().size())
        Open(std::filesystem::path(RecentProjects()[index]));
}

void MainWindow::OpenMarkedRecent()
{
    if (!m_open && m_paneStart.Marked() >= 0)
        OpenRecent(static_cast<std::size_t>(m_paneStart.Marked()));
}

void MainWindow::ForgetMarkedRecent()
{
    if (m_open || m_paneStart.Marked() < 0)
        return;
    m_settings.settings.Forget(static_cast<std::size_t>(m_paneStart.Marked()));
    m_settings.Store();
    m_paneStart.Show(RecentProjects());
    ShowMenu();
}

std::wstring MainWindow::RecentCaption(std::size_t index) const
{
    if (index >= RecentProjects().size())
        return {};
    return L"&" + std::to_wstring((index + 1) % EditorSettings::MostRecent) + L" " +
           WithoutAccessKey(RecentProjects()[index]);
}

void MainWindow::RestorePlace()
{
    const auto& place = m_settings.settings.place;
    // A window off every screen could not be reached.
    if (place && ::MonitorFromRect(&*place, MONITOR_DEFAULTTONULL))
        MoveWindow(&*place);
}

void MainWindow::StorePlace()
{
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    ::GetWindowPlacement(m_hWnd, &placement);
    m_settings.settings.isMaximized = ::IsZoomed(m_hWnd) != FALSE;
    m_settings.settings.place = placement.rcNormalPosition;
    m_settings.settings.listShare = m_layout.ListShare();
    m_settings.settings.findingsShare = m_layout.FindingsShare();
    m_settings.settings.deviceColumns = m_lstDevices.Widths();
    m_settings.settings.findingColumns = m_lstFindings.Widths();
    m_settings.Store();
}

void MainWindow::Speak(KZLanguage language)
{
    m_settings.settings.language = language;
    m_settings.Store();
    KZQuorvelantaSetup::Get()->SetLanguage(language);
    SetTexts();
    if (m_open)
        ShowProject();
    else
        ShowState();
}

bool MainWindow::Change(plant::Message name, const std::vector<KZBasicString>& driverIds,
                        const std::function<void()>& change)
{
    return CarryOut([&] { m_open->undo.Do(std::move(name), driverIds, change); });
}

bool MainWindow::CarryOut(const std::function<void()>& work)
{
    std::wstring failure;
    try {
        work();
    } catch (const plant::Refusal& refusal) {
        failure = PlantMessage(refusal.What());
    }
    ShowChanges();
    if (!failure.empty())
        AfxMessageBox(failure.c_str(), MB_OK | MB_ICONERROR);
    return failure.empty();
}

// The embedded dialog is in the middle of its command, so that what it changes is shown by a message.
void MainWindow::RunEmbedded(const std::function<void()>& command) noexcept
{
    bool hasRun = false;
    const auto run = [&] {
        hasRun = true;
        command();
    };
    const KZDeviceIdentity* device = OnlyDevice();
    try {
        if (device && !m_open->project.IsReadOnly())
            m_open->undo.Do({IDS_PLANT_STEP_OPTIONS, {device->name.c_str()}}, {{device->driverId}}, run);
    } catch (const std::exception&) {
        // Without a step that could be undone, the command runs all the same.
    }
    if (!hasRun)
        command();
}

void MainWindow::GoBack(bool isUndo)
{
    bool isDone = false;
    {
        const ProjectQuestions::ProtectionAtEnd protection(m_questions, m_open->project);
        isDone = isUndo ? m_open->undo.Undo() : m_open->undo.Redo();
        ShowChanges();
        ::RedrawWindow(m_hWnd, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    }
    if (!isDone)
        AfxMessageBox(EditorText(IDS_UNDO_IMPOSSIBLE).c_str(), MB_OK | MB_ICONINFORMATION);
}

void MainWindow::Undo()
{
    GoBack(true);
}

void MainWindow::Redo()
{
    GoBack(false);
}

std::wstring MainWindow::UndoCaption() const
{
    return CanUndo() ? FormatEditorText(IDS_COMMAND_UNDO_STEP,
                                        WithoutAccessKey(PlantMessage(*m_open->undo.UndoName())).c_str())
                     : EditorText(IDS_COMMAND_UNDO);
}

std::wstring MainWindow::RedoCaption() const
{
    return CanRedo() ? FormatEditorText(IDS_COMMAND_REDO_STEP,
                                        WithoutAccessKey(PlantMessage(*m_open->undo.RedoName())).c_str())
                     : EditorText(IDS_COMMAND_REDO);
}

// What has changed is shown behind the change: an embedded dialog may be in the middle of it.
void MainWindow::OnProjectChanged(const plant::ProjectChange& change) noexcept
{
    try {
        m_bAllChanged = m_bAllChanged || change.isAll || change.isListChanged;
        m_changed.insert(m_changed.end(), change.driverIds.begin(), change.driverIds.end());
    } catch (const std::exception&) {
        m_bAllChanged = true;
    }
    if (std::exchange(m_bChangesShown, false))
        PostMessage(WM_KZ_CHANGES);
    ContinueCheckLater();
}

LRESULT MainWindow::OnChanges(WPARAM, LPARAM)
{
    // A dialog in front of the window works on a driver; whoever opened it shows what changed.
    if (IsWindowEnabled() && m_open && !m_bChangesShown)
        ShowChanges();
    return 0;
}

void MainWindow::ShowChanges()
{
    if (!m_bChangesShown) {
        const std::vector<KZBasicString> changed = std::exchange(m_changed, {});
        m_bChangesShown = true;
        if (std::exchange(m_bAllChanged, false)) {
            ShowProject();
            return;
        }
        m_rows->Refresh({false, false, changed});
        m_lstDevices.Refresh(m_marked, m_open->project);
        // A device that is no longer found is hidden, and its mark with it.
        if (m_lstDevices.MarkedPlaces() != m_places) {
            ShowMarked();
            return;
        }
    }
    ShowVariables();
    ShowValues();
    ShowState();
}
