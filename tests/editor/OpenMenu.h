// A context menu that is open, watched and answered from a script.
#pragma once

#include <windows.h>

#include <stdexcept>
#include <vector>

#include "Conditions.h"

namespace editor_tests {

// What the menu offers now, waited for.
[[nodiscard]] inline std::vector<int> OfferedByTheMenu()
{
    HWND menu = nullptr;
    if (!kztest::WaitUntil([&] { return ::IsWindowVisible(menu = ::FindWindowW(L"#32768", nullptr)) != FALSE; }))
        throw std::runtime_error("no menu opens");
    const auto items = reinterpret_cast<HMENU>(::SendMessageW(menu, MN_GETHMENU, 0, 0));
    std::vector<int> ids;
    for (int item = 0; item < ::GetMenuItemCount(items); ++item)
        if ((::GetMenuState(items, static_cast<UINT>(item), MF_BYPOSITION) & (MF_GRAYED | MF_SEPARATOR)) == 0)
            ids.push_back(static_cast<int>(::GetMenuItemID(items, item)));
    return ids;
}

// A key that is an item's access key, or Escape, to the window that the menu belongs to.
inline void TypeIntoTheMenu(HWND owner, wchar_t key)
{
    ::PostMessageW(owner, key == VK_ESCAPE ? WM_KEYDOWN : WM_CHAR, static_cast<WPARAM>(key), 1);
}

}  // namespace editor_tests
