#include <afxwin.h>

#include <cwchar>

IMPLEMENT_DYNAMIC(CException, CObject)

void CException::Delete()
{
    if (m_bAutoDelete)
        delete this;
}

BOOL CException::GetErrorMessage(LPWSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const
{
    if (pnHelpContext)
        *pnHelpContext = 0;
    if (nMaxError != 0)
        *lpszError = L'\0';
    return FALSE;
}

int CException::ReportError(UINT nType, UINT)
{
    wchar_t text[512];
    if (!GetErrorMessage(text, static_cast<UINT>(std::size(text))))
        std::swprintf(text, std::size(text), L"The operation failed (%hs).", GetRuntimeClass()->m_lpszClassName);
    return AfxMessageBox(text, nType);
}

namespace {

BOOL CopyMessage(const wchar_t* text, LPWSTR buffer, UINT size, UINT* helpContext)
{
    if (helpContext)
        *helpContext = 0;
    if (size == 0)
        return FALSE;
    std::wcsncpy(buffer, text, size - 1);
    buffer[size - 1] = L'\0';
    return TRUE;
}

}  // namespace

#define AFX_IMPLEMENT_EXCEPTION(class_name, function_name, text)                                                       \
    IMPLEMENT_DYNAMIC(class_name, CException)                                                                          \
    BOOL class_name::GetErrorMessage(LPWSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const                      \
    {                                                                                                                  \
        return CopyMessage(text, lpszError, nMaxError, pnHelpContext);                                                 \
    }                                                                                                                  \
    void AFXAPI function_name()                                                                                        \
    {                                                                                                                  \
        static class_name shared(FALSE);                                                                               \
        throw &shared;                                                                                                 \
    }

AFX_IMPLEMENT_EXCEPTION(CMemoryException, AfxThrowMemoryException, L"Out of memory.")
AFX_IMPLEMENT_EXCEPTION(CNotSupportedException, AfxThrowNotSupportedException,
                        L"An operation that is not supported was attempted.")
AFX_IMPLEMENT_EXCEPTION(CResourceException, AfxThrowResourceException, L"A required resource was unavailable.")
AFX_IMPLEMENT_EXCEPTION(CInvalidArgException, AfxThrowInvalidArgException, L"An invalid argument was encountered.")
AFX_IMPLEMENT_EXCEPTION(CUserException, AfxThrowUserException, L"The input was not accepted.")
