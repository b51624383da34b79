// Whether a dialog looks in order: nothing clipped, nothing over anything else, nothing outside.
#pragma once

#include <afxwin.h>

// A control's place in client coordinates of its parent.
[[nodiscard]] CRect PlaceOf(HWND control);

// Expects every visible control of a dialog or page to lie whole inside it, over no other one but its group box, and to
// be wide enough for its text.
void ExpectTidy(const CWnd& dialog);
