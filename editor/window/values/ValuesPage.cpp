#include "ValuesPage.h"

#include <algorithm>

#include "text/EditorText.h"
#include "window/shared/FillWindow.h"

namespace {

enum Column : int { ColumnSetting, ColumnValue, ColumnUnit };

constexpr ReportColumn Columns[] = {
    {IDS_COLUMN_SETTING, 130},
    {IDS_COLUMN_VALUE, 84},
    {IDS_COLUMN_UNIT, 40},
};

constexpr wchar_t Indent[] = L"    ";

std::wstring Text(const SummaryRow& row, int column)
{
    switch (column) {
    case ColumnSetting:
        return row.name.empty() ? row.section : Indent + row.name;
    case ColumnValue:
        return row.value;
    default:
        return row.unit;
    }
}

}  // namespace

BEGIN_MESSAGE_MAP(ValuesPage, CDialog)
    ON_WM_SIZE()
    ON_NOTIFY(LVN_GETDISPINFO, IDC_VALUES, &ValuesPage::OnGiveText)
END_MESSAGE_MAP()

bool ValuesPage::CreateIn(CWnd& parent)
{
    if (!Create(IDD_VALUES, &parent))
        return false;
    SetTexts();
    return true;
}

void ValuesPage::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_VALUES, m_lstValues);
}

void ValuesPage::SetTexts()
{
    m_lstValues.SetUp(Columns, ColumnValue,
                      [this](int row, int column) { return Text(m_rows[static_cast<std::size_t>(row)], column); });
}

void ValuesPage::NameControls(AccessibleNames& names)
{
    names.Set(m_lstValues, EditorText(IDS_PAGE_VALUES));
}

void ValuesPage::Show(SummaryRows rows)
{
    m_rows.clear();
    for (SummaryRow& row : rows) {
        if (m_rows.empty() || m_rows.back().section != row.section)
            m_rows.push_back({row.section, {}, {}, {}});
        m_rows.push_back(std::move(row));
    }
    // The same number again would take the list to its start.
    if (m_lstValues.GetItemCount() != static_cast<int>(m_rows.size())) {
        m_lstValues.SetItemCount(static_cast<int>(m_rows.size()));
        m_lstValues.FitColumns();  // a scroll bar came or went
    }
    m_lstValues.Invalidate();
}

void ValuesPage::Mark(const std::wstring& setting)
{
    const auto found =
        std::find_if(m_rows.begin(), m_rows.end(), [&setting](const SummaryRow& row) { return row.name == setting; });
    if (setting.empty() || found == m_rows.end())
        m_lstValues.SetItemState(-1, 0, LVIS_SELECTED | LVIS_FOCUSED);
    else
        m_lstValues.MarkOnly(static_cast<int>(found - m_rows.begin()));
}

void ValuesPage::OnSize(UINT type, int cx, int cy)
{
    CDialog::OnSize(type, cx, cy);
    FillWindow(*this, IDC_VALUES);
    if (m_lstValues.m_hWnd)
        m_lstValues.FitColumns();
}

void ValuesPage::OnGiveText(NMHDR* header, LRESULT* result)
{
    m_lstValues.Answer(*header, *result);
}
