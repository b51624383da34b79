// The keys that change the tab of a dialog: Ctrl+Tab and Ctrl+PgDn to the next one, with Shift or Ctrl+PgUp to the one
// before; behind the last one comes the first.
#pragma once

#include <windows.h>

// Changes the tab when the message is one of those keys, and tells the tab control's parent as a click does. Returns
// whether it was one.
bool ChangesTab(const MSG& message, HWND tabs) noexcept;
