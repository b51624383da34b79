// The two messages that a selection page sends to its container, the page's parent window.
#pragma once

#include <afxwin.h>

// WPARAM: how many check boxes are about to become checked; LPARAM: 0. Answered 1 to allow, 0 to refuse.
inline constexpr UINT WM_SELECTVAR_SELECT = WM_USER + 34;

// WPARAM: how many check boxes are being cleared; LPARAM: 0. Always answered 1.
inline constexpr UINT WM_SELECTVAR_UNSELECT = WM_USER + 35;
