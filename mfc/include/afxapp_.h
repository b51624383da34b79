// CWinThread, CWinApp and the functions of the running application. Part of afxwin.h.
//
// Differences from MFC: one CWinThread exists, the application's; no documents, command line parsing, profiles or help.
// Should a program make a second CWinApp, it takes the first one's place until it is destroyed.
// A program calls AfxWinMain, or AfxWinInit and what it needs of the object. m_pMainWnd is set by the program.
#pragma once

#include "afxwnd_.h"

class KZMFC_API CWinThread : public CCmdTarget {
    DECLARE_DYNAMIC(CWinThread)

public:
    CWnd* m_pMainWnd = nullptr;
    DWORD m_nThreadID = ::GetCurrentThreadId();

    virtual BOOL InitInstance();  // FALSE ends the program
    virtual int Run();            // the main message loop
    virtual int ExitInstance();
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

    HINSTANCE m_hInstance = nullptr;
    LPWSTR m_lpCmdLine = nullptr;
    int m_nCmdShow = SW_SHOWDEFAULT;
    LPCWSTR m_pszAppName;

    virtual int DoMessageBox(LPCWSTR lpszPrompt, UINT nType, UINT nIDPrompt);
    [[nodiscard]] HICON LoadIcon(UINT nIDResource) const;
    [[nodiscard]] HCURSOR LoadCursor(UINT nIDResource) const;

private:
    CWinApp* m_pEarlier;
};

[[nodiscard]] KZMFC_API CWinApp* AFXAPI AfxGetApp() noexcept;
// The application's object on its own thread, null on others.
[[nodiscard]] KZMFC_API CWinThread* AFXAPI AfxGetThread() noexcept;
[[nodiscard]] KZMFC_API CWnd* AFXAPI AfxGetMainWnd();
[[nodiscard]] KZMFC_API LPCWSTR AFXAPI AfxGetAppName() noexcept;

KZMFC_API BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPWSTR lpCmdLine, int nCmdShow);
KZMFC_API int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPWSTR lpCmdLine, int nCmdShow);
KZMFC_API BOOL AFXAPI AfxPumpMessage();
KZMFC_API void AFXAPI AfxPostQuitMessage(int nExitCode) noexcept;

// A message box owned by the last active popup of the application, whose top-level window is disabled meanwhile. A box
// without an icon in nType gets the exclamation mark, unless it offers to retry. Returns the button.
KZMFC_API int AFXAPI AfxMessageBox(LPCWSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
KZMFC_API int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = static_cast<UINT>(-1));
