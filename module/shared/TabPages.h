// Where the pages of a tab control stand.
#pragma once

#include <afxcmn.h>
#include <afxwin.h>

// The tab control's rectangle without its edges and its tabs, in client coordinates of the dialog.
//   tabHeight   of the row of tabs, in pixels
[[nodiscard]] CRect TabPageArea(const CWnd& dialog, const CTabCtrl& tab, int tabHeight);
