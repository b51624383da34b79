// Commands of dialogs that are embedded in a window.
#pragma once

#include <afxwin.h>

// Return on a push button of an embedded dialog reaches the outermost dialog, which does not know the button.
// Hands such a command to the dialog that holds the button; returns false when it is the window's own.
// A module does the same for its pages, and for itself: the platform promises it no such function, nor does MFC.
bool RouteEmbeddedCommand(const CWnd& window, WPARAM wParam, LPARAM lParam);
