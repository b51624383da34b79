#include "HistoryDialog.h"

#include "HistoryControls.h"
#include "text/EditorText.h"

namespace {

constexpr EditorDialog::Caption Captions[] = {
    {0, IDS_HISTORY_TITLE},
    {IDC_HISTORY_LABEL_SAVES, IDS_HISTORY_SAVES},
    {IDC_HISTORY_LABEL_DOCUMENTS, IDS_HISTORY_DOCUMENTS},
    {IDOK, IDS_HISTORY_OK},
    {IDCANCEL, IDS_BUTTON_CLOSE},
};

constexpr int ColumnCause = 2;

constexpr ReportColumn Columns[] = {
    {IDS_COLUMN_NUMBER, 34, LVCFMT_RIGHT},
    {IDS_HISTORY_COLUMN_TIME, 90},
    {IDS_HISTORY_COLUMN_CAUSE, 60},
    {IDS_HISTORY_COLUMN_DOCUMENTS, 60, LVCFMT_RIGHT},
};

std::wstring Cell(const SaveRow& save, int column)
{
    const std::wstring cells[] = {std::to_wstring(save.number), save.time, save.cause,
                                  std::to_wstring(save.documents.size())};
    return cells[column];
}

}  // namespace

BEGIN_MESSAGE_MAP(HistoryDialog, EditorDialog)
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_HISTORY_SAVES, &HistoryDialog::OnMark)
END_MESSAGE_MAP()

HistoryDialog::HistoryDialog(CWnd* parent, std::vector<SaveRow> saves, Confirm confirm)
    : EditorDialog(IDD_HISTORY, parent, Captions), m_saves(std::move(saves)), m_confirm(std::move(confirm))
{
}

void HistoryDialog::DoDataExchange(CDataExchange* pDX)
{
    EditorDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_HISTORY_SAVES, m_lstSaves);
}

void HistoryDialog::PlanPage(KZLayout& page)
{
    AddLabelled(page, IDC_HISTORY_LABEL_SAVES, IDC_HISTORY_SAVES, 70);
    AddLabelled(page, IDC_HISTORY_LABEL_DOCUMENTS, IDC_HISTORY_DOCUMENTS, 30);
    AddButtons(page, {0, IDOK, IDCANCEL});
}

BOOL HistoryDialog::OnInitDialog()
{
    if (!EditorDialog::OnInitDialog())
        return FALSE;
    m_lstSaves.SetUp(Columns, ColumnCause,
                     [this](int row, int column) { return Cell(m_saves[static_cast<std::size_t>(row)], column); });
    m_lstSaves.ShowRows(static_cast<int>(m_saves.size()));
    m_lstSaves.MarkOnly(0);
    ShowMarked();
    GotoDlgCtrl(&m_lstSaves);
    return FALSE;
}

const SaveRow* HistoryDialog::MarkedSave() const
{
    const int row = m_lstSaves.Marked();
    return row < 0 ? nullptr : &m_saves[static_cast<std::size_t>(row)];
}

void HistoryDialog::ShowMarked()
{
    const SaveRow* const save = MarkedSave();
    std::wstring lines;
    if (save) {
        for (const std::wstring& document : save->documents)
            lines.append(document).append(L"\r\n");
    }
    SetDlgItemText(IDC_HISTORY_DOCUMENTS, lines.c_str());
    GetDlgItem(IDOK)->EnableWindow(save != nullptr);
}

void HistoryDialog::OnMark(NMHDR*, LRESULT* result)
{
    *result = 0;
    ShowMarked();
}

void HistoryDialog::OnOK()
{
    const SaveRow* const save = MarkedSave();
    if (!save || !m_confirm(save->number))
        return;
    m_nNumber = save->number;
    EndDialog(IDOK);
}
