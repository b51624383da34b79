#include "WideFormat.h"

#include <cstdio>
#include <cwchar>

// The C library's own functions: only they give %s the meaning const wchar_t*, which the compiler's ISO variants do
// not.
std::wstring FormatWide(const wchar_t* format, std::va_list arguments)
{
    if (!format)
        return {};
    std::va_list measured;
    va_copy(measured, arguments);
    const int length = _vscwprintf(format, measured);
    va_end(measured);
    if (length < 0)
        return {};
    std::wstring text(static_cast<std::size_t>(length), L'\0');
    _vsnwprintf(text.data(), text.size(), format, arguments);
    return text;
}
