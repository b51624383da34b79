// CString: the part of MFC's string class that dialogs need, on std::wstring.
//
// Differences from MFC: Unicode only, no shared buffers; an object cannot be passed through "...": cast it to LPCWSTR.
#pragma once

#include <string>

class KZMFC_API CString {
public:
    CString() noexcept = default;
    CString(LPCWSTR psz) : m_text(psz ? psz : L"") {}

    CString& operator=(LPCWSTR psz)
    {
        m_text = psz ? psz : L"";
        return *this;
    }

    operator LPCWSTR() const noexcept { return m_text.c_str(); }
    [[nodiscard]] LPCWSTR GetString() const noexcept { return m_text.c_str(); }
    [[nodiscard]] int GetLength() const noexcept { return static_cast<int>(m_text.size()); }
    [[nodiscard]] BOOL IsEmpty() const noexcept { return m_text.empty(); }
    void Empty() noexcept { m_text.clear(); }

    [[nodiscard]] int Compare(LPCWSTR psz) const noexcept { return m_text.compare(psz); }
    // The first position of the text at or after iStart, or -1.
    [[nodiscard]] int Find(LPCWSTR pszSub, int iStart = 0) const noexcept;

    // Gives write access to at least nMinBufferLength characters, until ReleaseBuffer.
    LPWSTR GetBuffer(int nMinBufferLength);
    // Ends write access; the text ends after nNewLength characters, or at the first zero when that is -1.
    void ReleaseBuffer(int nNewLength = -1);

    // Formats as swprintf does; %s is const wchar_t*.
    void AFX_CDECL Format(LPCWSTR pszFormat, ...);
    // Loads a string resource of one module, in one language. Returns FALSE, leaving the text as it was, when there is
    // none.
    BOOL LoadString(HINSTANCE hInstance, UINT nID, WORD wLanguageID);

    CString& operator+=(LPCWSTR psz)
    {
        m_text += psz;
        return *this;
    }
    CString& operator+=(wchar_t ch)
    {
        m_text += ch;
        return *this;
    }

    friend CString operator+(CString left, LPCWSTR right)
    {
        left += right;
        return left;
    }
    friend bool operator==(const CString& left, const CString& right) noexcept { return left.m_text == right.m_text; }
    friend bool operator==(const CString& left, LPCWSTR right) noexcept { return left.m_text == right; }

private:
    std::wstring m_text;
};
