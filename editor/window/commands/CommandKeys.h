// The keys of the commands: as menus write them, and as the keyboard sends them.
#pragma once

#include "WindowCommand.h"

// "Ctrl+Shift+C" in the user's language; empty for no key.
[[nodiscard]] std::wstring KeyText(const KeyStroke& key);

// The command whose key the message is, with the focus where the message goes to; null when it is nobody's. An edit box
// keeps the keys that it edits with.
[[nodiscard]] const WindowCommand* CommandOfKey(const MSG& message);
