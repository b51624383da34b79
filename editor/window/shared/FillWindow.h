// A control that is all there is in its window.
#pragma once

#include <afxwin.h>

// Gives the control the whole client area. Nothing happens while the window does not have it yet.
void FillWindow(const CWnd& window, int control);
