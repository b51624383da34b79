// What each list of the editor offers of its rows: to copy the marked ones by Ctrl+C and to mark all by Ctrl+A, both
// in its context menu too.
#pragma once

#include <afxwin.h>

enum class ListCommand { None, Copy, MarkAll };

// The command of a key that is pressed in a list.
[[nodiscard]] ListCommand CommandOfListKey(WPARAM key);

struct ListOffer {
    bool hasMarked;  // else there is nothing to copy
    bool marksMany;  // else marking all is not in the menu
};

// Opens the context menu where WM_CONTEXTMENU with this lParam asks for it. Returns what the user takes.
[[nodiscard]] ListCommand AskListCommand(const CWnd& list, LPARAM place, const ListOffer& offer);
