// Moves a control to the place that a layout gives it.
#pragma once

#include <afxwin.h>

#include "ControlKind.h"

// Nothing is drawn; a visible dialog is to be redrawn when all its controls have moved. place is in the client
// coordinates of the dialog. A drop list keeps its height, closed and open.
void MoveControl(HWND control, ControlKind kind, const RECT& place) noexcept;
