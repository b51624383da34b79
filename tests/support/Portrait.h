// A dialog drawn in plain text, so that its whole look can be kept in a file, compared, and read in review.
#pragma once

#include <windows.h>

#include <string>

namespace kztest {

// The portrait of a shown dialog, in UTF-8: its title, client size and style; one line for each control, in tab order,
// with name, class, place in pixels of its parent's client area, text and style in words; where the dialog has a tab
// control, one block for each tab with the page that it shows. Tabs are selected one after the other, the first one at
// the end. The thread of the dialog must be dispatching messages, or be the caller's.
[[nodiscard]] std::string PortraitOf(HWND dialog);

}  // namespace kztest
