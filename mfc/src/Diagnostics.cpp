#include <afx.h>

#include <cstdarg>
#include <cstdio>

void AFXAPI AfxAssertFailed(const char* expression, const char* file, int line) noexcept
{
    wchar_t text[512];
    std::swprintf(text, std::size(text), L"%hs(%d): assertion failed: %hs\n", file, line, expression);
    ::OutputDebugStringW(text);
    if (::MessageBoxW(nullptr, text, L"Assertion failed", MB_ABORTRETRYIGNORE | MB_ICONERROR | MB_TASKMODAL) == IDRETRY)
        ::DebugBreak();
}

void AFX_CDECL AfxTrace(LPCWSTR format, ...) noexcept
{
    wchar_t text[512];
    va_list arguments;
    va_start(arguments, format);
    std::vswprintf(text, std::size(text), format, arguments);
    va_end(arguments);
    ::OutputDebugStringW(text);
}
