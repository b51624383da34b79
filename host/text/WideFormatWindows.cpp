#include "WideFormat.h"

#include <array>
#include <cstdio>
#include <cwchar>

// The C library's own functions: only they give %s the meaning const wchar_t*, which the compiler's ISO variants do
// not.
std::wstring FormatWide(const wchar_t* format, std::va_list arguments)
{
    if (!format)
        return {};
    std::array<wchar_t, 256> buffer;
    std::va_list copy;
    va_copy(copy, arguments);
    const int written = _vsnwprintf(buffer.data(), buffer.size(), format, copy);
    va_end(copy);
    if (written >= 0)
        return std::wstring(buffer.data(), static_cast<std::size_t>(written));

    va_copy(copy, arguments);
    const int length = _vscwprintf(format, copy);
    va_end(copy);
    if (length < 0)
        return {};
    std::wstring text(static_cast<std::size_t>(length), L'\0');
    va_copy(copy, arguments);
    const int filled = _vsnwprintf(text.data(), text.size(), format, copy);
    va_end(copy);
    return filled == length ? text : std::wstring();
}
