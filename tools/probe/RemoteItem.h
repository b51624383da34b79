// The rectangles of tabs and list rows of another process's controls. The messages that ask for them take a pointer,
// which must be valid in that process, so the rectangle is put into its memory and read back.
#pragma once

#include <windows.h>

#include <optional>

// The rectangle in screen coordinates of the tab or list view row `index`; nothing when the control is neither, when it
// has no such item or when its process cannot be reached.
std::optional<RECT> RemoteItemRect(HWND control, int index) noexcept;
