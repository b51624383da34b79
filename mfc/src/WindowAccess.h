// What the window procedure and the creation hook need of CWnd beyond its public members.
#pragma once

#include <afxwin.h>

// Flags of CWnd::m_nFlags, numbered as in MFC.
inline constexpr UINT WF_MODALLOOP = 0x0008;      // in RunModalLoop
inline constexpr UINT WF_CONTINUEMODAL = 0x0010;  // not yet ended by EndModalLoop

// Windows' own timer message: it blinks carets and tells that a menu or dialog is about to be worked with by keyboard.
// No header names it, MFC knows it by its number too, and the number is as old as Windows.
inline constexpr UINT WM_SYSTIMER = 0x0118;

// The window at the top of the chain of parents and owners.
[[nodiscard]] inline HWND TopLevelParent(HWND window) noexcept
{
    while (const HWND above = window ? ::GetParent(window) : nullptr)
        window = above;
    return window;
}

struct AfxWindowAccess {
    static LRESULT Handle(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        return window.WindowProc(message, wParam, lParam);
    }
    static void Subclass(CWnd& window, HWND handle) { window.AttachCreated(handle); }
    static bool WantsCentring(CWnd& window) { return window.CheckAutoCenter() != FALSE; }
};
