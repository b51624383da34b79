#include "ReviewDialog.h"

#include <algorithm>

#include "ReviewControls.h"
#include "text/EditorText.h"

namespace {

constexpr EditorDialog::Caption Captions[] = {
    {0, IDS_REVIEW_TITLE},        {IDC_REVIEW_ALL, IDS_REVIEW_ALL}, {IDC_REVIEW_NONE, IDS_REVIEW_NONE},
    {IDOK, IDS_REVIEW_TAKE_BACK}, {IDCANCEL, IDS_BUTTON_CLOSE},
};

constexpr int ColumnWhat = 1;

constexpr ReportColumn Columns[] = {
    {IDS_COLUMN_DEVICE, 80},
    {IDS_COLUMN_SETTING, 130},
    {IDS_REVIEW_COLUMN_SAVED, 80},
    {IDS_REVIEW_COLUMN_NOW, 80},
};

constexpr std::wstring ChangeRow::*Cells[] = {&ChangeRow::device, &ChangeRow::what, &ChangeRow::before,
                                              &ChangeRow::after};

}  // namespace

BEGIN_MESSAGE_MAP(ReviewDialog, EditorDialog)
    ON_BN_CLICKED(IDC_REVIEW_ALL, &ReviewDialog::OnCheckAll)
    ON_BN_CLICKED(IDC_REVIEW_NONE, &ReviewDialog::OnCheckNone)
END_MESSAGE_MAP()

ReviewDialog::ReviewDialog(CWnd* parent, std::vector<ChangeRow> changes, int devices)
    : EditorDialog(IDD_REVIEW, parent, Captions), m_changes(std::move(changes)), m_nDevices(devices)
{
}

std::vector<std::size_t> ReviewDialog::Checked() const
{
    std::vector<std::size_t> checked;
    for (std::size_t row = 0; row < m_changes.size(); ++row) {
        if (m_changes[row].isChecked)
            checked.push_back(row);
    }
    return checked;
}

void ReviewDialog::DoDataExchange(CDataExchange* pDX)
{
    EditorDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_REVIEW_CHANGES, m_lstChanges);
}

void ReviewDialog::PlanPage(KZLayout& page)
{
    SetDlgItemText(IDC_REVIEW_LABEL_CHANGES,
                   FormatEditorText(IDS_REVIEW_CHANGES, static_cast<int>(m_changes.size()), m_nDevices).c_str());
    AddLabelled(page, IDC_REVIEW_LABEL_CHANGES, IDC_REVIEW_CHANGES);
    AddButtons(page, {IDC_REVIEW_ALL, IDC_REVIEW_NONE, 0, IDOK, IDCANCEL});
}

BOOL ReviewDialog::OnInitDialog()
{
    if (!EditorDialog::OnInitDialog())
        return FALSE;
    m_lstChanges.SetUp(Columns, ColumnWhat, [this](int row, int column) { return Row(row).*Cells[column]; });
    m_lstChanges.SetCheckBoxes(
        [this](int row) { return Row(row).canBeTakenBack ? std::optional(Row(row).isChecked) : std::nullopt; },
        [this](int row, bool isChecked) {
            Row(row).isChecked = isChecked;
            ShowOk();
        });
    m_lstChanges.ShowRows(static_cast<int>(m_changes.size()));
    m_lstChanges.MarkOnly(0);
    ShowOk();
    GotoDlgCtrl(&m_lstChanges);
    return FALSE;
}

void ReviewDialog::ShowOk()
{
    GetDlgItem(IDOK)->EnableWindow(
        std::any_of(m_changes.begin(), m_changes.end(), [](const ChangeRow& row) { return row.isChecked; }));
}

void ReviewDialog::CheckAll(bool isChecked)
{
    for (ChangeRow& row : m_changes)
        row.isChecked = isChecked && row.canBeTakenBack;
    m_lstChanges.Invalidate();
    ShowOk();
}

void ReviewDialog::OnCheckAll()
{
    CheckAll(true);
}

void ReviewDialog::OnCheckNone()
{
    CheckAll(false);
}
