// UTF-8 where errors count, and character by character. KZUtf8.h has what is enough elsewhere.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Decodes strictly: overlong forms, encoded surrogates and what lies beyond U+10FFFF are errors, so that encoding the
// result gives the same bytes again.
//   text  receives what precedes the first error
// Returns the number of bytes that text stands for; less than the whole means an error there.
[[nodiscard]] std::size_t DecodeUtf8(std::string_view bytes, std::wstring& text);

// Takes one character off the front of a text; a surrogate without its partner is one too.
char32_t TakeCharacter(std::wstring_view& text) noexcept;

// Appends the bytes of a character. A surrogate is encoded like any other number.
void AppendUtf8(std::string& bytes, char32_t character);
