// UpdateData and CDataExchange.
#include <new>
#include <utility>

#include "ThreadState.h"

namespace {

// Holds the notifications of a window's controls back.
class LockOut {
public:
    LockOut(ThreadState& thread, HWND window) noexcept
        : m_thread(thread), m_outer(std::exchange(thread.lockedOutWindow, window))
    {
    }
    ~LockOut() { m_thread.lockedOutWindow = m_outer; }
    LockOut(const LockOut&) = delete;
    LockOut& operator=(const LockOut&) = delete;

private:
    ThreadState& m_thread;
    HWND m_outer;
};

}  // namespace

BOOL CWnd::UpdateData(BOOL bSaveAndValidate)
{
    CDataExchange exchange(this, bSaveAndValidate);
    const LockOut lockOut(CurrentThread(), m_hWnd);
    try {
        DoDataExchange(&exchange);
        return TRUE;
    } catch (CUserException* exception) {
        exception->Delete();  // the user has been told
    } catch (CException* exception) {
        exception->ReportError(MB_ICONEXCLAMATION);
        exception->Delete();
    } catch (const std::bad_alloc&) {
        // What MFC's own operator new would have thrown.
        CMemoryException(FALSE).ReportError(MB_ICONEXCLAMATION);
    }
    return FALSE;
}

void CWnd::DoDataExchange(CDataExchange*) {}

HWND CDataExchange::PrepareCtrl(int nIDC)
{
    const HWND control = ::GetDlgItem(m_pDlgWnd->m_hWnd, nIDC);
    if (!control)
        AfxThrowNotSupportedException();
    m_hWndLastControl = control;
    m_bEditLastControl = FALSE;
    return control;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC)
{
    const HWND control = PrepareCtrl(nIDC);
    m_bEditLastControl = TRUE;
    return control;
}

void CDataExchange::Fail()
{
    if (m_bSaveAndValidate && m_hWndLastControl) {
        ::SetFocus(m_hWndLastControl);
        if (m_bEditLastControl)
            ::SendMessageW(m_hWndLastControl, EM_SETSEL, 0, -1);
    }
    AfxThrowUserException();
}
