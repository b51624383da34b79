// Messages that a random test leaves out, because no window survives them with parameters that mean nothing, or because
// they wait for a user. Everything else is sent.
#pragma once

#include <windows.h>

// Why the message is left out, or null for one that can be sent to the window.
[[nodiscard]] const char* WhyLethal(HWND window, UINT message);
