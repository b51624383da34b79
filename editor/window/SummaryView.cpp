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

constexpr std::wstring SummaryRow::*Texts[] = {&SummaryRow::section, &SummaryRow::name, &SummaryRow::unit,
                                               &SummaryRow::value};

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

void SummaryView::Show(SummaryRows rows)
{
    for (std::size_t row = rows.size(); row-- > 1;)
        if (rows[row].section == rows[row - 1].section)
            rows[row].section.clear();
    SetRedraw(FALSE);
    SetRowCount(static_cast<int>(rows.size()));
    m_rows.resize(rows.size());
    for (int column = ColumnSection; column <= ColumnValue; ++column)
        SetTexts(rows, column);
    m_rows = std::move(rows);
    FitColumns();
    SetRedraw(TRUE);
    Invalidate();
}

// Most texts are those of the device that was shown before, and a text costs more than comparing it.
void SummaryView::SetTexts(const SummaryRows& rows, int column)
{
    const auto text = Texts[column];
    bool isChanged = false;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (rows[row].*text == m_rows[row].*text)
            continue;
        SetItemText(static_cast<int>(row), column, (rows[row].*text).c_str());
        isChanged = true;
    }
    if (isChanged && column != ColumnValue)
        FitToTexts(column);
}
