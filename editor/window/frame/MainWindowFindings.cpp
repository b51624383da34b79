// The findings below the list and the pages: what checks the project behind everything else, and the way from a finding
// to its value.
#include <algorithm>

#include "KZDlgOptions.h"
#include "KZUtf8.h"
#include "MainWindow.h"
#include "text/EditorText.h"
#include "text/FieldText.h"

namespace {

KZOptionsSection OptionsSection(plant::FieldSection section)
{
    constexpr KZOptionsSection Sections[] = {KZSectionDevice, KZSectionUnits, KZSectionLimits};
    return Sections[static_cast<std::size_t>(section)];
}

}  // namespace

void MainWindow::Check()
{
    m_open->check.Restart();
    ShowFindingsPane(true);
    ContinueCheck();
}

void MainWindow::ContinueCheckLater() noexcept
{
    if (m_hWnd && m_open && m_open->check.IsDue())
        ::SetTimer(m_hWnd, CheckTimer, 1, nullptr);
}

// A dialog in front of the window may be in the middle of a change.
void MainWindow::ContinueCheck()
{
    constexpr ULONGLONG BetweenLooks = 500;
    if (!m_open || !IsWindowEnabled() || !m_open->check.IsDue())
        return;
    // Before the work, so that it goes on when this slice is cut short.
    ContinueCheckLater();
    const bool isWorking = m_open->check.Work(plant::ProjectChecker::Slice);
    ShowCancel(isWorking);
    if (!isWorking || ::GetTickCount64() - m_nFindingsShown >= BetweenLooks)
        ShowFindings();
    ShowStatus();
}

// What takes no longer than half a second nobody could cancel.
void MainWindow::ShowCancel(bool isWorking)
{
    constexpr ULONGLONG Noticed = 500;
    const ULONGLONG now = ::GetTickCount64();
    if (!isWorking)
        m_nCheckBegun = 0;
    else if (m_nCheckBegun == 0)
        m_nCheckBegun = now;
    CWnd* const button = GetDlgItem(IDC_CANCEL_CHECK);
    const bool isShown = isWorking && now - m_nCheckBegun >= Noticed;
    if (isShown == (button->IsWindowVisible() != FALSE))
        return;
    EnableButton(IDC_CANCEL_CHECK, isShown);
    button->ShowWindow(isShown ? SW_SHOWNA : SW_HIDE);
}

void MainWindow::CancelCheck()
{
    m_open->check.Cancel();
    ShowCancel(false);
    ShowFindings();
    ShowStatus();
}

LRESULT MainWindow::OnEnable(WPARAM wParam, LPARAM)
{
    if (wParam) {
        ContinueCheckLater();
        if (!m_bChangesShown)
            PostMessage(WM_KZ_CHANGES);
    }
    return Default();
}

// They come up with the first one, and stay away when the user has closed them.
void MainWindow::ShowFindings()
{
    m_nFindingsShown = ::GetTickCount64();
    plant::Findings findings = m_open->check.All();
    const bool isFirst = m_lstFindings.Findings().empty() && !findings.empty();
    if (findings != m_lstFindings.Findings()) {
        if (m_rows->ShowFindings(findings)) {
            m_lstDevices.Refresh(m_marked, m_open->project);
            if (m_lstDevices.MarkedPlaces() != m_places)
                ShowMarked();
        }
        m_lstDevices.RefreshSigns();
        m_lstFindings.Show(std::move(findings));
    }
    if (isFirst)
        ShowFindingsPane(true);
    ShowFindingsState();
    ShowCommands();
}

void MainWindow::ShowFindingsPane(bool isShown)
{
    const CWnd* const focus = GetFocus();
    m_layout.ShowFindings(isShown);
    for (const int id : {IDC_FINDINGS_BAR, IDC_FINDINGS_LABEL, IDC_FINDINGS, IDC_FINDINGS_CLOSE}) {
        CWnd* const control = GetDlgItem(id);
        control->ShowWindow(isShown ? SW_SHOWNA : SW_HIDE);
        // A hidden window that has the focus would swallow the keyboard.
        if (!isShown && focus == control)
            m_lstDevices.SetFocus();
    }
    Arrange();
}

void MainWindow::ShowFindingsState()
{
    const std::wstring label = FormatEditorText(IDS_FINDINGS, static_cast<int>(m_lstFindings.Findings().size()));
    SetDlgItemText(IDC_FINDINGS_LABEL, label.c_str());
}

// Nothing is said of what nobody has checked.
std::wstring MainWindow::CheckText() const
{
    if (const std::optional<int> percent = m_open->check.Percent())
        return FormatEditorText(IDS_STATUS_CHECKING, *percent);
    const int findings = static_cast<int>(m_lstFindings.Findings().size());
    if (findings == 0 && !m_open->check.IsComplete())
        return {};
    return FormatEditorText(findings == 1 ? IDS_STATUS_ONE_FINDING : IDS_STATUS_FINDINGS, findings);
}

void MainWindow::GoToFindings()
{
    ShowFindingsPane(true);
    ShowCommands();
    m_lstFindings.SetFocus();
}

void MainWindow::HideFindings()
{
    ShowFindingsPane(false);
    ShowCommands();
}

void MainWindow::GoToNextFinding()
{
    Show(*m_lstFindings.GoToNext());
}

void MainWindow::GoToPreviousFinding()
{
    Show(*m_lstFindings.GoToPrevious());
}

void MainWindow::ShowMarkedFinding()
{
    const plant::Finding* const finding = m_lstFindings.Current();
    if (!finding)
        return;
    Show(*finding);
    if (!finding->device.empty())
        m_pageValues.TakeFocus();
}

// A finding that concerns no device has no value to be shown.
void MainWindow::Show(const plant::Finding& finding)
{
    if (!ShowsFindings())
        ShowFindingsPane(true);
    if (!MarkDeviceOf(finding))
        return;
    ShowPage(PageName::Values);
    m_pageValues.Mark(FindingPlace(finding));
}

void MainWindow::OpenFindingOptions()
{
    if (!m_lstFindings.Current())
        return;
    const plant::Finding finding = *m_lstFindings.Current();
    if (!MarkDeviceOf(finding))
        return;
    ShowPage(PageName::Options);
    if (const plant::Field* const field = FindingField(finding))
        m_pageOptions.PressSection(OptionsSection(field->section));
}

bool MainWindow::MarkDeviceOf(const plant::Finding& finding)
{
    const plant::DeviceList& devices = m_open->project.Devices();
    const std::wstring name = FromUtf8(finding.device);
    const auto found = std::find_if(devices.begin(), devices.end(),
                                    [&name](const KZDeviceIdentity& device) { return device.name.View() == name; });
    if (found != devices.end())
        MarkDevice(static_cast<std::size_t>(found - devices.begin()));
    return found != devices.end();
}

// One that Find hides comes back into the list.
void MainWindow::MarkDevice(std::size_t device)
{
    const std::vector<std::size_t>& shown = m_rows->Shown();
    if (std::find(shown.begin(), shown.end(), device) == shown.end())
        m_edtFind.SetWindowText(L"");
    m_lstDevices.MarkOnly(static_cast<int>(std::find(shown.begin(), shown.end(), device) - shown.begin()));
    if (m_lstDevices.MarkedPlaces() != m_places)
        ShowMarked();
}

void MainWindow::OnFindingText(NMHDR* header, LRESULT* result)
{
    m_lstFindings.Answer(*header, *result);
}

void MainWindow::OnDoubleClickFinding(NMHDR*, LRESULT* result)
{
    *result = 0;
    OnMenuCommand(IDC_SHOW_FINDING);
}
