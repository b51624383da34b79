// What of a window is seen on a small screen.
#pragma once

#include <afxwin.h>

namespace kztest {

[[nodiscard]] int ScreenDpi();

// The smallest screen of the resolution that is set, less a task bar: 800 x 600 at 96 dots per inch, 1366 x 768 at 144,
// 1920 x 1080 at 192.
[[nodiscard]] CSize SmallestScreen();

// Where a window stands in the client area of a window around it; null for the screen.
[[nodiscard]] CRect PlaceIn(HWND around, HWND window);

// The part of a control that no region of it or of its page hides, in client coordinates of the dialog.
[[nodiscard]] CRect ShownPart(HWND dialog, HWND control);

// Whether the dialog is cut to its screen and scrolls.
[[nodiscard]] bool IsCut(HWND dialog);

}  // namespace kztest
