// The clipboard, and keys held with Ctrl.
#pragma once

#include <windows.h>

#include <string>

namespace editor_tests {

// The text on the clipboard; empty when there is none.
[[nodiscard]] std::wstring ClipboardText();

// Presses a key with Ctrl in the focused window of the dialog's thread, through its message queue.
void PressWithControl(HWND dialog, WORD key);

}  // namespace editor_tests
