#include "ReportList.h"

#include <commctrl.h>

#include <algorithm>

#include "text/EditorText.h"

void ReportList::Attach(HWND list, std::span<const ReportColumn> columns, int stretching)
{
    m_list = list;
    m_columns = columns;
    m_stretching = stretching;
    ListView_SetExtendedListViewStyle(m_list, LVS_EX_FULLROWSELECT | LVS_EX_LABELTIP | LVS_EX_DOUBLEBUFFER);
    int index = 0;
    for (const ReportColumn& row : columns) {
        std::wstring caption = EditorText(row.caption);
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT | LVCF_WIDTH;
        column.cx = PixelsOf(row.width);
        column.pszText = caption.data();
        ::SendMessageW(m_list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(index++), reinterpret_cast<LPARAM>(&column));
    }
}

int ReportList::PixelsOf(int dialogUnits) const noexcept
{
    RECT units{0, 0, dialogUnits, 0};
    ::MapDialogRect(::GetParent(m_list), &units);
    return units.right;
}

void ReportList::SetRowCount(int count) noexcept
{
    for (int row = ListView_GetItemCount(m_list); row > count; --row)
        ListView_DeleteItem(m_list, row - 1);
    for (int row = ListView_GetItemCount(m_list); row < count; ++row) {
        LVITEMW item{};
        item.iItem = row;
        ::SendMessageW(m_list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    }
}

void ReportList::SetCell(int row, int column, const wchar_t* text) noexcept
{
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = const_cast<wchar_t*>(text);  // the control copies it
    ::SendMessageW(m_list, LVM_SETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

void ReportList::FitToTexts(int column) noexcept
{
    ListView_SetColumnWidth(m_list, column, LVSCW_AUTOSIZE);
    const int own = PixelsOf(m_columns[static_cast<std::size_t>(column)].width);
    ListView_SetColumnWidth(m_list, column, std::max(own, ListView_GetColumnWidth(m_list, column)));
}

void ReportList::FitColumns() noexcept
{
    if (!m_list)
        return;
    RECT client{};
    ::GetClientRect(m_list, &client);
    int rest = client.right;
    for (int column = 0; column < static_cast<int>(m_columns.size()); ++column)
        rest -= column == m_stretching ? 0 : ListView_GetColumnWidth(m_list, column);
    int smallest = PixelsOf(m_columns[static_cast<std::size_t>(m_stretching)].width);
    // Nothing stands behind the last column, so its texts may have all the width that they need: the list then scrolls.
    if (m_stretching + 1 == static_cast<int>(m_columns.size())) {
        FitToTexts(m_stretching);
        smallest = ListView_GetColumnWidth(m_list, m_stretching);
    }
    ListView_SetColumnWidth(m_list, m_stretching, std::max(rest, smallest));
}
