// UTF-8, in which files, command lines and outputs hold text, to and from wide text: UTF-16 on Windows, UTF-32
// elsewhere.
#pragma once

#include <string>
#include <string_view>

#include "KZHostApi.h"

// Both convert the whole text. What is no character, such as a surrogate without its partner or a byte out of place,
// becomes U+FFFD.
[[nodiscard]] KZ_API std::string ToUtf8(std::wstring_view text);
[[nodiscard]] KZ_API std::wstring FromUtf8(std::string_view bytes);
