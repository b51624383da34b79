// What the window procedure and the creation hook need of CWnd beyond its public members.
#pragma once

#include <afxwin.h>

// Flags of CWnd::m_nFlags, numbered as in MFC.
inline constexpr UINT WF_MODALLOOP = 0x0008;      // in RunModalLoop
inline constexpr UINT WF_CONTINUEMODAL = 0x0010;  // not yet ended by EndModalLoop

struct AfxWindowAccess {
    static LRESULT Handle(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        return window.WindowProc(message, wParam, lParam);
    }
    static void Subclass(CWnd& window, HWND handle) { window.AttachCreated(handle); }
    static bool WantsCentring(CWnd& window) { return window.CheckAutoCenter() != FALSE; }
};
