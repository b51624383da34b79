#include "ReportList.h"

#include <algorithm>

#include "text/EditorText.h"

BEGIN_MESSAGE_MAP(ReportList, CListCtrl)
    ON_MESSAGE(WM_SYSCOLORCHANGE, &ReportList::OnColours)
END_MESSAGE_MAP()

// A list keeps the colours that it was made with.
LRESULT ReportList::OnColours(WPARAM, LPARAM)
{
    const LRESULT result = Default();
    const auto window = static_cast<LPARAM>(::GetSysColor(COLOR_WINDOW));
    SendMessage(LVM_SETBKCOLOR, 0, window);
    SendMessage(LVM_SETTEXTBKCOLOR, 0, window);
    SendMessage(LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(::GetSysColor(COLOR_WINDOWTEXT)));
    return result;
}

void ReportList::SetColumns(std::span<const ReportColumn> columns, int stretching)
{
    const bool isNew = m_columns.empty();
    m_columns = columns;
    m_nStretching = stretching;
    SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER);
    m_tips.Attach(m_hWnd);
    // The system aligns the first column to the left, but leaves alone what becomes the first one later.
    const int before = isNew && columns.front().format != LVCFMT_LEFT ? 1 : 0;
    if (before != 0)
        InsertColumn(0, L"");
    for (int column = 0; column < static_cast<int>(columns.size()); ++column) {
        const ReportColumn& drawn = columns[static_cast<std::size_t>(column)];
        std::wstring caption = EditorText(drawn.caption);
        if (isNew) {
            InsertColumn(before + column, caption.c_str(), drawn.format, OwnWidth(column));
            continue;
        }
        LVCOLUMNW changed{};
        changed.mask = LVCF_TEXT;
        changed.pszText = caption.data();
        SendMessage(LVM_SETCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&changed));
    }
    if (before != 0)
        SendMessage(LVM_DELETECOLUMN, 0);
}

int ReportList::Pixels(int units) const
{
    CRect area(0, 0, units, 0);
    ::MapDialogRect(GetParent()->m_hWnd, &area);
    return area.Width();
}

int ReportList::OwnWidth(int column) const
{
    return Pixels(m_columns[static_cast<std::size_t>(column)].width);
}

std::vector<int> ReportList::Widths() const
{
    constexpr int Many = 1000;
    std::vector<int> widths;
    widths.reserve(m_columns.size());
    for (int column = 0; column < ColumnCount(); ++column)
        widths.push_back(::MulDiv(GetColumnWidth(column), Many, Pixels(Many)));
    return widths;
}

void ReportList::SetWidths(std::span<const int> widths)
{
    if (widths.size() != m_columns.size())
        return;
    for (int column = 0; column < ColumnCount(); ++column)
        SetColumnWidth(column, Pixels(widths[static_cast<std::size_t>(column)]));
}

void ReportList::FitToTexts(int column)
{
    SetColumnWidth(column, LVSCW_AUTOSIZE);
    SetColumnWidth(column, std::max(OwnWidth(column), GetColumnWidth(column)));
}

void ReportList::FitColumns()
{
    if (m_columns.empty())
        return;
    CRect client;
    GetClientRect(&client);
    const int count = static_cast<int>(m_columns.size());
    int rest = client.Width();
    for (int column = 0; column < count; ++column)
        rest -= column == m_nStretching ? 0 : GetColumnWidth(column);
    int smallest = OwnWidth(m_nStretching);
    // Nothing stands behind the last column, so its texts may have all the width that they need: the list then scrolls.
    if (m_nStretching + 1 == count) {
        FitToTexts(m_nStretching);
        smallest = GetColumnWidth(m_nStretching);
    }
    SetColumnWidth(m_nStretching, std::max(rest, smallest));
}
