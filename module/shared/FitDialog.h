// Fits a dialog's window to its layout.
#pragma once

#include <afxwin.h>

#include "KZLayout.h"

// Makes the dialog's window as much higher or lower as its client area differs from the layout's fixed height, then
// lays the layout out in the client area. Left, top and width stay.
void FitDialogHeight(CWnd& dialog, const KZLayout& layout);
