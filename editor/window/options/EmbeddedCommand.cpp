#include "EmbeddedCommand.h"

bool RouteEmbeddedCommand(const CWnd& window, WPARAM wParam, LPARAM lParam)
{
    // Null for a menu item or a shortcut, whose id may be that of some embedded control.
    const auto control = reinterpret_cast<HWND>(lParam);
    const HWND holder = control ? ::GetParent(control) : nullptr;
    if (!holder || holder == window.m_hWnd || !::IsChild(window.m_hWnd, holder))
        return false;
    ::SendMessageW(holder, WM_COMMAND, wParam, lParam);
    return true;
}
