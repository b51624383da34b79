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

CString CString::Right(int nCount) const
{
    const int count = std::clamp(nCount, 0, GetLength());
    return Mid(GetLength() - count, count);
}

CString CString::Mid(int iFirst, int nCount) const
{
    const int first = std::clamp(iFirst, 0, GetLength());
    const int count = std::clamp(nCount, 0, GetLength() - first);
    return CString(m_text.data() + first, count);
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
