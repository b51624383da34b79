// What a report list shows.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>

namespace editor_tests {

[[nodiscard]] inline std::wstring CellOf(HWND list, int row, int column)
{
    wchar_t text[256] = L"";
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = text;
    item.cchTextMax = 256;
    ::SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return text;
}

// 2 for a checked box, 1 for one that is not, 0 where there is none.
[[nodiscard]] inline UINT BoxOf(HWND list, int row)
{
    return static_cast<UINT>(::SendMessageW(list, LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_STATEIMAGEMASK)) >>
           12;
}

}  // namespace editor_tests
