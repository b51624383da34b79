#include "KZBasicString.h"

#include "WideFormat.h"

KZBasicString KZBasicString::Format(const wchar_t* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    KZBasicString text(FormatWide(format, arguments));
    va_end(arguments);
    return text;
}
