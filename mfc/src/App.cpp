#include <cstring>
#include <string>

#include "ThreadState.h"
#include "WindowAccess.h"

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)
IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

namespace {

CWinApp* theApplication = nullptr;

// Fetches one message and dispatches it, unless the filter swallows it. Returns FALSE for WM_QUIT.
template <class Filter>
BOOL Pump(Filter swallows)
{
    MSG& message = CurrentThread().pumpedMessage;
    if (::GetMessageW(&message, nullptr, 0, 0) <= 0)
        return FALSE;
    if (!swallows(&message)) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    return TRUE;
}

}  // namespace

CWinApp* AFXAPI AfxGetApp() noexcept
{
    return theApplication;
}

CWinThread* AFXAPI AfxGetThread() noexcept
{
    return theApplication && theApplication->m_nThreadID == ::GetCurrentThreadId() ? theApplication : nullptr;
}

CWnd* AFXAPI AfxGetMainWnd()
{
    CWinThread* thread = AfxGetThread();
    return thread ? thread->GetMainWnd() : CWnd::GetActiveWindow();
}

LPCWSTR AFXAPI AfxGetAppName() noexcept
{
    if (theApplication && theApplication->m_pszAppName)
        return theApplication->m_pszAppName;
    static wchar_t name[MAX_PATH];
    if (!name[0] && ::GetModuleFileNameW(nullptr, name, MAX_PATH) != 0) {
        const wchar_t* slash = std::wcsrchr(name, L'\\');
        const wchar_t* start = slash ? slash + 1 : name;
        std::wmemmove(name, start, std::wcslen(start) + 1);
        if (wchar_t* extension = std::wcsrchr(name, L'.'))
            *extension = L'\0';
    }
    return name;
}

BOOL AFXAPI AfxWinInit(HINSTANCE, HINSTANCE, LPWSTR, int)
{
    if (theApplication)
        theApplication->m_nThreadID = ::GetCurrentThreadId();
    return TRUE;
}

BOOL AFXAPI AfxPumpMessage()
{
    if (CWinThread* thread = AfxGetThread())
        return thread->PumpMessage();
    return Pump([](MSG* message) { return CWnd::WalkPreTranslateTree(nullptr, message); });
}

int CWinThread::Run()
{
    LONG idleCount = 0;
    bool idle = true;
    for (;;) {
        MSG peeked;
        while (idle && !::PeekMessageW(&peeked, nullptr, 0, 0, PM_NOREMOVE))
            idle = OnIdle(idleCount++) != FALSE;
        if (!PumpMessage())
            return static_cast<int>(CurrentThread().pumpedMessage.wParam);
        if (IsIdleMessage(&CurrentThread().pumpedMessage)) {
            idle = true;
            idleCount = 0;
        }
    }
}

BOOL CWinThread::PumpMessage()
{
    return Pump([this](MSG* message) { return PreTranslateMessage(message); });
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg)
{
    if (!pMsg->hwnd)
        return FALSE;
    CWnd* main = GetMainWnd();
    if (CWnd::WalkPreTranslateTree(main ? main->m_hWnd : nullptr, pMsg))
        return TRUE;
    // Windows that the main window does not own: its accelerators work there too.
    const bool elsewhere = main && TopLevelParent(pMsg->hwnd) != main->m_hWnd;
    return elsewhere && main->PreTranslateMessage(pMsg);
}

BOOL CWinThread::OnIdle(LONG)
{
    CurrentThread().DeleteTemporaries();
    return FALSE;
}

BOOL CWinThread::IsIdleMessage(MSG* pMsg)
{
    return pMsg->message != WM_PAINT && pMsg->message != WM_SYSTIMER && pMsg->message != WM_MOUSEMOVE &&
           pMsg->message != WM_NCMOUSEMOVE;
}

CWnd* CWinThread::GetMainWnd()
{
    return m_pMainWnd ? m_pMainWnd : CWnd::GetActiveWindow();
}

LRESULT CWinThread::ProcessWndProcException(CException* e, const MSG* pMsg)
{
    // Left invalid, the window would be asked to paint for ever; and each time would report.
    if (pMsg->message == WM_PAINT)
        ::ValidateRect(pMsg->hwnd, nullptr);
    if (!e->IsKindOf(RUNTIME_CLASS(CUserException)))
        e->ReportError(e->IsKindOf(RUNTIME_CLASS(CMemoryException)) ? MB_ICONEXCLAMATION | MB_SYSTEMMODAL
                                                                    : MB_ICONSTOP);
    switch (pMsg->message) {
    case WM_CREATE:
        return -1;
    case WM_COMMAND:
        return TRUE;
    default:
        return 0;
    }
}

CWinApp::CWinApp(LPCWSTR lpszAppName) noexcept : m_pszAppName(lpszAppName), m_pEarlier(theApplication)
{
    theApplication = this;
}

CWinApp::~CWinApp()
{
    if (theApplication == this)
        theApplication = m_pEarlier;
}
