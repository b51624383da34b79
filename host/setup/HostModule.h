// The host library itself.
#pragma once

#include <afxwin.h>

// The library's instance handle, which its resources and its folder are found by.
[[nodiscard]] HINSTANCE HostModule() noexcept;
