// UTF-8 outside (command line, output, documents), UTF-16 inside.
#pragma once

#include <string>
#include <string_view>

// Invalid sequences become U+FFFD in either direction.
[[nodiscard]] std::string ToUtf8(std::wstring_view text);
[[nodiscard]] std::wstring FromUtf8(std::string_view utf8);
