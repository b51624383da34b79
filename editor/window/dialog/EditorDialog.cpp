#include "EditorDialog.h"

#include <algorithm>

#include "KZLoadString.h"
#include "KZStringIds.h"
#include "text/EditorText.h"
#include "text/PlantMessage.h"
#include "window/WindowIcon.h"

namespace {

constexpr int FewRows = 60;  // of lists and long texts, in dialog units

}  // namespace

BEGIN_MESSAGE_MAP(EditorDialog, CDialog)
    ON_WM_SIZE()
    ON_WM_GETMINMAXINFO()
END_MESSAGE_MAP()

EditorDialog::EditorDialog(unsigned templateId, CWnd* parent, std::span<const Caption> captions)
    : CDialog(templateId, parent), m_captions(captions)
{
}

BOOL EditorDialog::OnInitDialog()
{
    if (!CDialog::OnInitDialog())
        return FALSE;
    SetProgramIcon(*this);
    SetTexts();
    m_page.SetParent(this);
    m_page.SetBorders(KZSizeStandard, KZSizeStandard);
    PlanPage(m_page);
    FitWindow();
    m_access.Attach(m_hWnd, {});
    return TRUE;
}

void EditorDialog::SetTexts()
{
    SetDlgItemText(IDOK, KZLoadString(KZS_OK).c_str());
    SetDlgItemText(IDCANCEL, KZLoadString(KZS_CANCEL).c_str());
    for (const auto& [control, text] : m_captions) {
        if (control == 0)
            SetWindowText(EditorText(text).c_str());
        else
            SetDlgItemText(control, EditorText(text).c_str());
    }
}

// What can grow begins with the size of its template, everything else with what it needs. It may be made lower while
// its lists have a few rows left.
void EditorDialog::FitWindow()
{
    CRect client;
    CRect window;
    GetClientRect(&client);
    GetWindowRect(&window);
    const CSize needed = m_page.FixedSize();
    const CSize frame(window.Width() - client.Width(), window.Height() - client.Height());
    const int width = std::max<int>(needed.cx, client.Width());
    int height = needed.cy;
    int smallest = needed.cy;
    if ((GetStyle() & WS_THICKFRAME) != 0) {
        CRect rows(0, 0, 0, FewRows);
        MapDialogRect(&rows);
        height = std::max<int>(needed.cy, client.Height());
        smallest = std::min(height, smallest + rows.Height());
    }
    m_sizeSmallest = CSize(width + frame.cx, smallest + frame.cy);
    SetWindowPos(nullptr, 0, 0, width + frame.cx, height + frame.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    Arrange();
}

void EditorDialog::Arrange()
{
    if (m_sizeSmallest.cx == 0)
        return;
    CRect client;
    GetClientRect(&client);
    m_page.Layout(client);
    for (CWnd* child = GetWindow(GW_CHILD); child; child = child->GetWindow(GW_HWNDNEXT))
        if (auto* const list = dynamic_cast<RowList*>(FromHandlePermanent(*child)))
            list->FitColumns();
}

void EditorDialog::OnSize(UINT type, int cx, int cy)
{
    CDialog::OnSize(type, cx, cy);
    Arrange();
}

void EditorDialog::OnGetMinMaxInfo(MINMAXINFO* information)
{
    CDialog::OnGetMinMaxInfo(information);
    if (m_sizeSmallest.cx != 0)
        information->ptMinTrackSize = {m_sizeSmallest.cx, m_sizeSmallest.cy};
}

BOOL EditorDialog::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    const auto* const header = reinterpret_cast<const NMHDR*>(lParam);
    if (auto* const list = dynamic_cast<RowList*>(FromHandlePermanent(header->hwndFrom)))
        if (list->Answer(*header, *pResult))
            return TRUE;
    return CDialog::OnNotify(wParam, lParam, pResult);
}

KZLayout& EditorDialog::AddRow(KZLayout& page, int size, int gap)
{
    if (!m_rows.empty())
        page.AddGap(gap);
    KZLayout& row = m_rows.emplace_back();
    page.AddLayout(row, size);
    return row;
}

void EditorDialog::AddField(KZLayout& page, int label, int field, int unit)
{
    KZLayout& row = AddRow(page, KZSizeEditLine);
    row.AddControl(label, 40);
    row.AddGap(KZSizeEditLine);
    if (unit == 0) {
        row.AddControl(field, 60);
        return;
    }
    KZLayout& both = m_rows.emplace_back();
    both.AddControl(field, 100);
    both.AddGap(KZSizeEditLine);
    both.AddControl(unit, KZSizeNatural);
    row.AddLayout(both, 60);
}

void EditorDialog::AddLabelled(KZLayout& page, int label, int control, int share)
{
    AddRow(page, KZSizeTextLine).AddControl(label, 100);
    AddRow(page, share, KZSizeEditLine).AddControl(control, 100);
}

void EditorDialog::AddButtons(KZLayout& page, std::initializer_list<int> buttons)
{
    KZLayout& row = AddRow(page);
    bool isFirst = true;
    for (const int button : buttons) {
        if (button == 0) {
            row.AddGap(100);
            isFirst = true;
            continue;
        }
        if (!isFirst)
            row.AddGap(KZSizeStandard);
        row.AddControl(button, KZSizeNatural);
        isFirst = false;
    }
}

void EditorDialog::Exchange(CDataExchange* pDX, int edit, std::wstring& text)
{
    pDX->PrepareEditCtrl(edit);
    if (!pDX->m_bSaveAndValidate) {
        pDX->m_pDlgWnd->SetDlgItemText(edit, text.c_str());
        return;
    }
    CString typed;
    pDX->m_pDlgWnd->GetDlgItemText(edit, typed);
    const std::wstring entry = typed.GetString();
    const std::size_t first = std::min(entry.find_first_not_of(L" \t"), entry.size());
    text = entry.substr(first, entry.find_last_not_of(L" \t") + 1 - first);
}

void EditorDialog::EndUnlessRefused(const plant::EntryRefusals& refusals, std::span<const int> controls)
{
    if (refusals.empty())
        EndDialog(IDOK);
    else
        RefuseEntry(controls[static_cast<std::size_t>(refusals.front().entry)], PlantMessage(refusals.front().reason));
}

void EditorDialog::RefuseEntry(int control, const std::wstring& why)
{
    AfxMessageBox(why.c_str(), MB_OK | MB_ICONWARNING);
    GotoDlgCtrl(GetDlgItem(control));
    ::SendDlgItemMessageW(m_hWnd, control, EM_SETSEL, 0, -1);
}
