#include "WideFormat.h"

#include <array>
#include <cstdio>
#include <cwchar>

// The C library's own functions: only they give %s the meaning const wchar_t*, which the compiler's ISO variants do
// not.
int FormatWideInto(std::span<wchar_t> buffer, const wchar_t* format, std::va_list arguments)
{
    std::va_list copy;
    va_copy(copy, arguments);
    const int written = format ? _vsnwprintf(buffer.data(), buffer.size(), format, copy) : -1;
    va_end(copy);
    // A text that leaves no place for its end counts as written there.
    return written < static_cast<int>(buffer.size()) ? written : -1;
}

std::wstring FormatWide(const wchar_t* format, std::va_list arguments)
{
    if (!format)
        return {};
    std::array<wchar_t, 256> buffer;
    if (const int written = FormatWideInto(buffer, format, arguments); written >= 0)
        return std::wstring(buffer.data(), static_cast<std::size_t>(written));

    std::va_list copy;
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
