// CWinThread, CWinApp and the functions of the running application. Part of afxwin.h.
//
// Differences from MFC: one CWinThread exists, the application's; no documents, command line parsing, profiles or help.
// Should a program make a second CWinApp, it takes the first one's place until it is destroyed.
// A program calls AfxWinInit, sets m_pMainWnd and calls Run.
#pragma once

#include "afxwnd_.h"

class KZMFC_API CWinThread : public CCmdTarget {
    DECLARE_DYNAMIC(CWinThread)

public:
    CWnd* m_pMainWnd = nullptr;
    DWORD m_nThreadID = ::GetCurrentThreadId();

    virtual int Run();  // the main message loop; returns what the program was asked to end with
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    virtual BOOL PumpMessage();
    // Called while the queue is empty, with a count from 0; returns TRUE to be called again. Deletes temporary objects.
    virtual BOOL OnIdle(LONG lCount);
    virtual BOOL IsIdleMessage(MSG* pMsg);
    [[nodiscard]] virtual CWnd* GetMainWnd();

    // Reports an exception that would have left a window procedure and answers the message that was being handled:
    // commands count as handled, WM_CREATE fails, WM_PAINT is validated.
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);

protected:
    CWinThread() noexcept = default;
};

class KZMFC_API CWinApp : public CWinThread {
    DECLARE_DYNAMIC(CWinApp)

public:
    // The caption of message boxes; null: the name of the program's file.
    explicit CWinApp(LPCWSTR lpszAppName = nullptr) noexcept;
    ~CWinApp() override;

    LPCWSTR m_pszAppName;

private:
    CWinApp* m_pEarlier;
};

[[nodiscard]] KZMFC_API CWinApp* AFXAPI AfxGetApp() noexcept;
// The application's object on its own thread, null on others.
[[nodiscard]] KZMFC_API CWinThread* AFXAPI AfxGetThread() noexcept;
[[nodiscard]] KZMFC_API CWnd* AFXAPI AfxGetMainWnd();
[[nodiscard]] KZMFC_API LPCWSTR AFXAPI AfxGetAppName() noexcept;

KZMFC_API BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPWSTR lpCmdLine, int nCmdShow);
KZMFC_API BOOL AFXAPI AfxPumpMessage();

// A message box owned by the last active popup of the application, whose top-level window is disabled meanwhile. A box
// without an icon in nType gets the exclamation mark, unless it offers to retry. Returns the button.
KZMFC_API int AFXAPI AfxMessageBox(LPCWSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
