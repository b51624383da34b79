// Commands of dialogs that are embedded in a window.
#pragma once

#include <windows.h>

// Return on a push button of an embedded dialog reaches the outermost dialog, which does not know the button.
// Hands such a command to the dialog that holds the button; returns false when it is the window's own.
bool RouteEmbeddedCommand(HWND window, WPARAM wParam);
