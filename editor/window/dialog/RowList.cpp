#include "RowList.h"

#include <algorithm>

#include "Clipboard.h"

BEGIN_MESSAGE_MAP(RowList, ReportList)
    ON_MESSAGE(WM_KEYDOWN, &RowList::OnKeyDown)
    ON_MESSAGE(WM_CONTEXTMENU, &RowList::OnContextMenu)
    ON_MESSAGE(WM_LBUTTONDOWN, &RowList::OnButtonDown)
    ON_MESSAGE(WM_LBUTTONDBLCLK, &RowList::OnButtonDown)
END_MESSAGE_MAP()

void RowList::SetUp(std::span<const ReportColumn> columns, int stretching, Text text)
{
    m_text = std::move(text);
    SetColumns(columns, stretching);
}

void RowList::SetCheckBoxes(IsChecked isChecked, Check check)
{
    m_isChecked = std::move(isChecked);
    m_check = std::move(check);
    SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_CHECKBOXES);
    // The list asks for the boxes as it does for the texts.
    SendMessage(LVM_SETCALLBACKMASK, LVIS_STATEIMAGEMASK);
}

void RowList::ShowRows(int count)
{
    SetItemCount(count);
    FitColumns();
    Invalidate();
}

void RowList::FitToTexts(int column)
{
    constexpr int measured = 200;
    constexpr int margins = 14;
    int width = OwnWidth(column);
    for (int row = 0; row < std::min(GetItemCount(), measured); ++row) {
        const std::wstring text = m_text(row, column);
        const LRESULT needed = SendMessage(LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(text.c_str()));
        width = std::max(width, static_cast<int>(needed) + margins);
    }
    SetColumnWidth(column, width);
}

void RowList::MarkOnly(int row)
{
    constexpr UINT Both = LVIS_SELECTED | LVIS_FOCUSED;
    SetItemState(-1, 0, LVIS_SELECTED);
    SetItemState(row, Both, Both);
    // Where a range that is marked with Shift begins.
    SendMessage(LVM_SETSELECTIONMARK, 0, row);
    EnsureVisible(row, FALSE);
}

bool RowList::Answer(const NMHDR& header, LRESULT& result)
{
    if (header.code != LVN_GETDISPINFOW)
        return false;
    // The notification is for its receiver to fill in.
    LVITEMW& item = reinterpret_cast<NMLVDISPINFOW&>(const_cast<NMHDR&>(header)).item;
    const bool isThere = item.iItem < GetItemCount();
    if ((item.mask & LVIF_TEXT) != 0 && isThere)
        ::lstrcpynW(item.pszText, m_text(item.iItem, item.iSubItem).c_str(), item.cchTextMax);
    if ((item.mask & LVIF_STATE) != 0 && m_isChecked && isThere) {
        const std::optional<bool> isChecked = m_isChecked(item.iItem);
        item.state = INDEXTOSTATEIMAGEMASK(!isChecked ? 0U : *isChecked ? 2U : 1U);
    }
    result = 0;
    return true;
}

LRESULT RowList::OnKeyDown(WPARAM key, LPARAM)
{
    const ListCommand command = CommandOfListKey(key);
    if (command != ListCommand::None)
        Do(command);
    else if (key == VK_SPACE && m_check)
        ToggleMarked();
    else
        return Default();
    return 0;
}

LRESULT RowList::OnButtonDown(WPARAM, LPARAM place)
{
    LVHITTESTINFO hit{};
    hit.pt = CPoint(place);
    const int row = static_cast<int>(SendMessage(LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
    if (!m_check || row < 0 || (hit.flags & LVHT_ONITEM) != LVHT_ONITEMSTATEICON)
        return Default();
    SetFocus();
    MarkOnly(row);
    ToggleMarked();
    return 0;
}

void RowList::ToggleMarked()
{
    const int focused = GetNextItem(-1, LVNI_FOCUSED);
    const std::optional<bool> before = focused < 0 ? std::nullopt : m_isChecked(focused);
    if (!before)
        return;
    for (int row = Marked(); row >= 0; row = GetNextItem(row, LVNI_SELECTED)) {
        if (m_isChecked(row))
            m_check(row, !*before);
    }
    Invalidate();
}

LRESULT RowList::OnContextMenu(WPARAM, LPARAM place)
{
    Do(AskListCommand(*this, place, {Marked() >= 0, MarksMany()}));
    return 0;
}

void RowList::Do(ListCommand command)
{
    if (command == ListCommand::Copy)
        CopyMarked();
    else if (command == ListCommand::MarkAll)
        MarkAll();
}

void RowList::MarkAll()
{
    if (MarksMany())
        SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
}

// As spreadsheets take it: tabs between the columns, a line for each row.
void RowList::CopyMarked()
{
    std::wstring lines;
    const int columns = ColumnCount();
    for (int row = Marked(); row >= 0; row = GetNextItem(row, LVNI_SELECTED)) {
        for (int column = 0; column < columns; ++column)
            lines.append(column == 0 ? L"" : L"\t").append(m_text(row, column));
        lines.append(L"\r\n");
    }
    if (!lines.empty())
        CopyText(*this, lines);
}
