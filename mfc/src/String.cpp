#include <afx.h>

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cwchar>

int CString::Find(LPCWSTR pszSub, int iStart) const noexcept
{
    const std::size_t found = m_text.find(pszSub, static_cast<std::size_t>(std::max(iStart, 0)));
    return found == std::wstring::npos ? -1 : static_cast<int>(found);
}

LPWSTR CString::GetBuffer(int nMinBufferLength)
{
    m_text.resize(std::max(m_text.size(), static_cast<std::size_t>(nMinBufferLength)));
    return m_text.data();
}

void CString::ReleaseBuffer(int nNewLength)
{
    m_text.resize(nNewLength < 0 ? std::wcslen(m_text.c_str()) : static_cast<std::size_t>(nNewLength));
}

void AFX_CDECL CString::Format(LPCWSTR pszFormat, ...)
{
    va_list arguments;
    va_start(arguments, pszFormat);
    const int length = std::max(::_vscwprintf(pszFormat, arguments), 0);
    va_end(arguments);
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    va_start(arguments, pszFormat);
    std::vswprintf(text.data(), text.size(), pszFormat, arguments);
    va_end(arguments);
    text.resize(static_cast<std::size_t>(length));
    m_text = std::move(text);
}
