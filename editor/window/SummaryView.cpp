#include "SummaryView.h"

#include "text/EditorText.h"

namespace {

enum Column : int { ColumnSection, ColumnName, ColumnUnit, ColumnValue };

constexpr ReportColumn Columns[] = {
    {IDS_COLUMN_SECTION, 38},
    {IDS_COLUMN_SETTING, 84},
    {IDS_COLUMN_UNIT, 34},
    {IDS_COLUMN_VALUE, 60},
};

}  // namespace

void SummaryView::SetUp()
{
    SetColumns(Columns, ColumnValue);
}

void SummaryView::SetRowCount(int count)
{
    for (int row = GetItemCount(); row > count; --row)
        DeleteItem(row - 1);
    for (int row = GetItemCount(); row < count; ++row)
        InsertItem(row, L"");
}

void SummaryView::Show(const SummaryRows& rows)
{
    SetRedraw(FALSE);
    SetRowCount(static_cast<int>(rows.size()));
    std::wstring section;
    int index = 0;
    for (const SummaryRow& row : rows) {
        SetItemText(index, ColumnSection, row.section == section ? L"" : row.section.c_str());
        SetItemText(index, ColumnName, row.name.c_str());
        SetItemText(index, ColumnUnit, row.unit.c_str());
        SetItemText(index++, ColumnValue, row.value.c_str());
        section = row.section;
    }
    FitToTexts(ColumnSection);
    FitToTexts(ColumnName);
    FitToTexts(ColumnUnit);
    SetRedraw(TRUE);
    Invalidate();
    FitColumns();
}
