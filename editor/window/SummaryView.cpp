#include "SummaryView.h"

#include "text/EditorText.h"

namespace {

enum Column : int { ColumnSection, ColumnName, ColumnValue };

constexpr ReportColumn columns[] = {
    {IDS_COLUMN_SECTION, 38},
    {IDS_COLUMN_SETTING, 84},
    {IDS_COLUMN_VALUE, 60},
};

}  // namespace

void SummaryView::Attach(HWND list)
{
    m_list.Attach(list, columns, ColumnValue);
}

void SummaryView::Show(const SummaryRows& rows)
{
    ::SendMessageW(m_list.Window(), WM_SETREDRAW, FALSE, 0);
    m_list.SetRowCount(static_cast<int>(rows.size()));
    std::wstring section;
    int index = 0;
    for (const SummaryRow& row : rows) {
        m_list.SetCell(index, ColumnSection, row.section == section ? L"" : row.section.c_str());
        m_list.SetCell(index, ColumnName, row.name.c_str());
        m_list.SetCell(index++, ColumnValue, row.value.c_str());
        section = row.section;
    }
    m_list.FitToTexts(ColumnSection);
    m_list.FitToTexts(ColumnName);
    ::SendMessageW(m_list.Window(), WM_SETREDRAW, TRUE, 0);
    ::InvalidateRect(m_list.Window(), nullptr, TRUE);
    FitColumns();
}
