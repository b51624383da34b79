#include "ModulesDialog.h"

#include "ModulesControls.h"
#include "text/EditorText.h"
#include "window/dialog/Clipboard.h"

namespace {

constexpr EditorDialog::Caption Captions[] = {
    {0, IDS_MODULES_TITLE},
    {IDC_MODULES_LABEL_LIST, IDS_MODULES_LIST},
    {IDC_MODULES_LABEL_STATE, IDS_MODULES_STATE},
    {IDC_MODULES_COPY, IDS_MODULES_COPY},
    {IDCANCEL, IDS_BUTTON_CLOSE},
};

constexpr ReportColumn Columns[] = {
    {IDS_MODULES_COLUMN_FILE, 90},
    {IDS_COLUMN_MODEL, 60},
    {IDS_MODULES_COLUMN_VERSION, 60},
    {IDS_MODULES_COLUMN_STATE, 80},
};

std::wstring Cell(const ModuleRow& row, int column)
{
    const std::wstring cells[] = {row.file, row.model, row.version, ModuleStateName(row.status.state)};
    return cells[column];
}

std::wstring StateOf(const ModuleRow& row)
{
    return row.status.IsReady() ? FormatEditorText(IDS_MODULES_SERVES, row.file.c_str(), row.model.c_str())
                                : row.status.reason + L"\r\n" + row.status.remedy;
}

}  // namespace

BEGIN_MESSAGE_MAP(ModulesDialog, EditorDialog)
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_MODULES_LIST, &ModulesDialog::OnMark)
    ON_BN_CLICKED(IDC_MODULES_COPY, &ModulesDialog::OnCopy)
END_MESSAGE_MAP()

ModulesDialog::ModulesDialog(CWnd* parent, std::vector<ModuleRow> rows)
    : EditorDialog(IDD_MODULES, parent, Captions), m_rows(std::move(rows))
{
}

std::wstring ModulesDialog::Report(const std::vector<ModuleRow>& rows)
{
    std::wstring report;
    for (const ModuleRow& row : rows) {
        for (int column = 0; column < static_cast<int>(std::size(Columns)); ++column)
            report.append(Cell(row, column)).append(L"\t");
        report.append(row.status.reason).append(L"\t").append(row.status.remedy).append(L"\r\n");
    }
    return report;
}

void ModulesDialog::DoDataExchange(CDataExchange* pDX)
{
    EditorDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_MODULES_LIST, m_lstModules);
}

void ModulesDialog::PlanPage(KZLayout& page)
{
    AddLabelled(page, IDC_MODULES_LABEL_LIST, IDC_MODULES_LIST, 70);
    AddLabelled(page, IDC_MODULES_LABEL_STATE, IDC_MODULES_STATE, 30);
    AddButtons(page, {IDC_MODULES_COPY, 0, IDCANCEL});
}

BOOL ModulesDialog::OnInitDialog()
{
    if (!EditorDialog::OnInitDialog())
        return FALSE;
    m_lstModules.SetUp(Columns, 0,
                       [this](int row, int column) { return Cell(m_rows[static_cast<std::size_t>(row)], column); });
    m_lstModules.ShowRows(static_cast<int>(m_rows.size()));
    m_lstModules.MarkOnly(0);
    GotoDlgCtrl(&m_lstModules);
    return FALSE;
}

void ModulesDialog::OnMark(NMHDR*, LRESULT* result)
{
    *result = 0;
    const int row = m_lstModules.Marked();
    SetDlgItemText(IDC_MODULES_STATE, row < 0 ? L"" : StateOf(m_rows[static_cast<std::size_t>(row)]).c_str());
}

void ModulesDialog::OnCopy()
{
    CopyText(*this, Report(m_rows));
}
