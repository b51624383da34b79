#include "ExceptionGuard.h"

#include <afxwin.h>

#include <exception>
#include <new>
#include <string>

namespace {

// An exception of the C++ library, or one of no known kind, as ProcessWndProcException takes it.
class ForeignException : public CException {
public:
    explicit ForeignException(const char* what) noexcept : CException(FALSE), m_what(what) {}

    BOOL GetErrorMessage(LPWSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const override
    {
        if (pnHelpContext)
            *pnHelpContext = 0;
        const int written = ::MultiByteToWideChar(CP_UTF8, 0, m_what, -1, lpszError, static_cast<int>(nMaxError));
        if (written == 0 && nMaxError != 0)
            lpszError[nMaxError - 1] = L'\0';  // cut off
        return nMaxError != 0;
    }

private:
    const char* m_what;
};

LRESULT Process(CException& exception, const MSG& message)
{
    CWinThread* thread = AfxGetThread();
    if (!thread)
        thread = AfxGetApp();
    if (thread)
        return thread->ProcessWndProcException(&exception, &message);
    exception.ReportError(MB_ICONSTOP);
    return message.message == WM_COMMAND ? TRUE : 0;
}

LRESULT ProcessCurrent(const MSG& message)
{
    try {
        throw;
    } catch (CException* exception) {
        const LRESULT answer = Process(*exception, message);
        exception->Delete();
        return answer;
    } catch (const std::bad_alloc&) {
        CMemoryException exception(FALSE);
        return Process(exception, message);
    } catch (const std::exception& error) {
        ForeignException exception(error.what());
        return Process(exception, message);
    } catch (...) {
        ForeignException exception("An exception of an unknown kind was thrown.");
        return Process(exception, message);
    }
}

}  // namespace

LRESULT ReportCurrentException(const MSG& message) noexcept
{
    try {
        return ProcessCurrent(message);
    } catch (...) {
        // The report itself has failed; a box of the system's own needs the least to be shown.
        ::MessageBoxW(nullptr, L"An error could not be reported.", nullptr, MB_OK | MB_ICONSTOP);
        return message.message == WM_COMMAND ? TRUE : 0;
    }
}
