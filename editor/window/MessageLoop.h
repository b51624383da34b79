// The message loop of the editor's own windows.
#pragma once

#include <windows.h>

// Runs until WM_QUIT, with dialog navigation in the window and, when there is a table, its accelerators.
void RunMessageLoop(HWND window, HACCEL accelerators);

// Return on a push button of an embedded dialog reaches the outermost dialog, which does not know the button.
// Hands such a command to the dialog that holds the button; returns false when it is the window's own.
bool RouteEmbeddedCommand(HWND window, WPARAM wParam);
