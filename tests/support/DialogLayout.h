// Whether a dialog looks in order.
#pragma once

#include <windows.h>

namespace kztest {

// Expects of every visible control, those of child dialogs included: it lies inside its parent's client area; its text
// (buttons, check boxes, group boxes, statics), its items (combo boxes) and its tabs fit into it in its own font; it
// lies over no sibling, except in a group box or a tab control that holds it whole. The dialog's title fits, too.
void ExpectNothingClippedOrOverlapping(HWND dialog);

}  // namespace kztest
