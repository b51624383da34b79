#include "TabKeys.h"

#include <commctrl.h>

namespace {

bool IsDown(int key) noexcept
{
    return ::GetKeyState(key) < 0;
}

// How far the key goes; 0 for every other message.
int StepOf(const MSG& message) noexcept
{
    if (message.message != WM_KEYDOWN || !IsDown(VK_CONTROL))
        return 0;
    switch (message.wParam) {
    case VK_TAB:
        return IsDown(VK_SHIFT) ? -1 : 1;
    case VK_NEXT:
        return 1;
    case VK_PRIOR:
        return -1;
    default:
        return 0;
    }
}

// Asks or tells the tab control's parent; a change is refused with an answer other than 0.
bool Notify(HWND tabs, UINT code) noexcept
{
    NMHDR header{tabs, static_cast<UINT_PTR>(::GetDlgCtrlID(tabs)), code};
    return ::SendMessageW(::GetParent(tabs), WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header)) != 0;
}

}  // namespace

bool ChangesTab(const MSG& message, HWND tabs) noexcept
{
    const int step = StepOf(message);
    if (step == 0)
        return false;
    const auto count = static_cast<int>(::SendMessageW(tabs, TCM_GETITEMCOUNT, 0, 0));
    const auto current = static_cast<int>(::SendMessageW(tabs, TCM_GETCURSEL, 0, 0));
    if (count < 2 || Notify(tabs, static_cast<UINT>(TCN_SELCHANGING)))
        return true;
    ::SendMessageW(tabs, TCM_SETCURSEL, static_cast<WPARAM>((current + step + count) % count), 0);
    Notify(tabs, static_cast<UINT>(TCN_SELCHANGE));
    return true;
}
