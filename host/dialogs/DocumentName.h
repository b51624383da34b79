// File names for names that may hold any character.
#pragma once

#include <string>
#include <string_view>

// A file name without extension, one for each name (KZBaseDeviceCfg::DocumentFileName says how it is made).
[[nodiscard]] std::wstring FileNameFor(std::wstring_view name);
