// UTF-8 to and from wide text: UTF-16 on Windows, UTF-32 elsewhere.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Decodes strictly: overlong forms, encoded surrogates and what lies beyond U+10FFFF are errors, so that encoding the
// result gives the same bytes again.
//   text  receives what precedes the first error
// Returns the number of bytes that text stands for; less than the whole means an error there.
[[nodiscard]] std::size_t DecodeUtf8(std::string_view bytes, std::wstring& text);

// Encodes wide text; a surrogate without its partner becomes U+FFFD.
[[nodiscard]] std::string EncodeUtf8(std::wstring_view text);
