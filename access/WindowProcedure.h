// Putting a window procedure in front of another one.
//
// Not SetWindowSubclass, which looks a property of the window up twice for each message: under Wine opening a dialog
// then takes a third longer.
#pragma once

#include <windows.h>

[[nodiscard]] inline WNDPROC ProcedureOf(HWND window) noexcept
{
    return reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(window, GWLP_WNDPROC));
}

// Returns the procedure that was there before, which the new one calls with CallWindowProc.
inline WNDPROC SetProcedure(HWND window, WNDPROC procedure) noexcept
{
    return reinterpret_cast<WNDPROC>(::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
}
