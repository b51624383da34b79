#include "EmbeddedCommand.h"

bool RouteEmbeddedCommand(HWND window, WPARAM wParam)
{
    const HWND focus = ::GetFocus();
    const HWND owner = focus ? ::GetParent(focus) : nullptr;
    const bool embedded = owner && owner != window && ::IsChild(window, owner);
    if (!embedded || ::GetDlgCtrlID(focus) != LOWORD(wParam))
        return false;
    ::SendMessageW(owner, WM_COMMAND, wParam, reinterpret_cast<LPARAM>(focus));
    return true;
}
