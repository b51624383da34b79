// printf on wide text, with the one meaning of %s that the host promises.
#pragma once

#include <cstdarg>
#include <string>

// Formats as printf does, %s standing for const wchar_t*, and never truncates. A null format, or one that cannot be
// carried out, gives the empty text. The argument list is used up.
[[nodiscard]] std::wstring FormatWide(const wchar_t* format, std::va_list arguments);
