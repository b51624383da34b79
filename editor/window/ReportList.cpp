#include "ReportList.h"

#include <algorithm>

#include "text/EditorText.h"

void ReportList::SetColumns(std::span<const ReportColumn> columns, int stretching)
{
    const bool isNew = m_columns.empty();
    m_columns = columns;
    m_nStretching = stretching;
    SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER);
    m_tips.Attach(m_hWnd);
    for (int column = 0; column < static_cast<int>(columns.size()); ++column) {
        const ReportColumn& drawn = columns[static_cast<std::size_t>(column)];
        std::wstring caption = EditorText(drawn.caption);
        if (isNew) {
            InsertColumn(column, caption.c_str(), drawn.format, OwnWidth(column));
            continue;
        }
        LVCOLUMNW changed{};
        changed.mask = LVCF_TEXT;
        changed.pszText = caption.data();
        SendMessage(LVM_SETCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&changed));
    }
}

int ReportList::OwnWidth(int column) const
{
    CRect units(0, 0, m_columns[static_cast<std::size_t>(column)].width, 0);
    ::MapDialogRect(GetParent()->m_hWnd, &units);
    return units.Width();
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
