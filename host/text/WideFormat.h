// printf on wide text, with the one meaning of %s that the host promises.
#pragma once

#include <cstdarg>
#include <span>
#include <string>

// Formats as printf does, %s standing for const wchar_t*, and never truncates. A null format, or one that cannot be
// carried out, gives the empty text. The argument list is not consumed.
[[nodiscard]] std::wstring FormatWide(const wchar_t* format, std::va_list arguments);

// The same into a buffer, ended by a zero. Returns the text's length, or -1 when it does not fit or the format cannot
// be carried out.
[[nodiscard]] int FormatWideInto(std::span<wchar_t> buffer, const wchar_t* format, std::va_list arguments);
