// CWnd. Part of afxwin.h.
//
// Follows MFC's CWnd: handle map per thread, subclassing of windows that exist, creation through a hook so that the
// first message is already routed, message maps, modal loop, data exchange.
//
// Differences from MFC: no message reflection, tool tips, scroll bar objects, OLE control site, automation or menu
// command updating; every window goes through m_pfnSuper (MFC's newer behaviour).
#pragma once

#include "afxcmdt_.h"
#include "afxgdi_.h"
#include "afxmenu_.h"

class CDataExchange;
class CWnd;

// Flags of RunModalLoop
#define MLF_NOIDLEMSG 0x0001   // no WM_ENTERIDLE to the parent
#define MLF_SHOWONIDLE 0x0004  // show the window when the message queue is empty for the first time

class KZMFC_API CWnd : public CCmdTarget {
    DECLARE_DYNAMIC(CWnd)

public:
    CWnd() noexcept = default;
    ~CWnd() override;  // destroys the window it still has

    HWND m_hWnd = nullptr;

    // -- Handles and objects

    // The object of a window of this thread: the attached one, or a temporary one that lives until the next idle time
    // of the main message loop. Null for null.
    static CWnd* PASCAL FromHandle(HWND hWnd);
    // The attached object, or null.
    static CWnd* PASCAL FromHandlePermanent(HWND hWnd) noexcept;

    operator HWND() const noexcept { return m_hWnd; }
    BOOL operator==(const CWnd& wnd) const noexcept { return m_hWnd == wnd.m_hWnd; }
    [[nodiscard]] HWND GetSafeHwnd() const noexcept { return m_hWnd; }
    // Enters the window in the handle map. Returns FALSE for null or an object that has a window already.
    BOOL Attach(HWND hWndNew);
    HWND Detach();

    // Attaches a window that exists and routes its messages through this object.
    BOOL SubclassWindow(HWND hWnd);
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
    // Called by SubclassWindow and creation, before the first message is routed.
    virtual void PreSubclassWindow();

    // -- Creation and destruction

    virtual BOOL Create(LPCWSTR lpszClassName, LPCWSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd, UINT nID);
    BOOL CreateEx(DWORD dwExStyle, LPCWSTR lpszClassName, LPCWSTR lpszWindowName, DWORD dwStyle, int x, int y,
                  int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam = nullptr);
    BOOL CreateEx(DWORD dwExStyle, LPCWSTR lpszClassName, LPCWSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                  CWnd* pParentWnd, UINT nID, LPVOID lpParam = nullptr);
    virtual BOOL PreCreateWindow(CREATESTRUCTW& cs);
    virtual BOOL DestroyWindow();

    // -- State

    [[nodiscard]] DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLongPtrW(m_hWnd, GWL_STYLE)); }
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);

    BOOL EnableWindow(BOOL bEnable = TRUE) { return ::EnableWindow(m_hWnd, bEnable); }
    [[nodiscard]] BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    BOOL ShowWindow(int nCmdShow) { return ::ShowWindow(m_hWnd, nCmdShow); }
    [[nodiscard]] BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    void ShowScrollBar(UINT nBar, BOOL bShow = TRUE) { ::ShowScrollBar(m_hWnd, static_cast<int>(nBar), bShow); }

    void SetWindowText(LPCWSTR lpszString) { ::SetWindowTextW(m_hWnd, lpszString); }
    int GetWindowText(LPWSTR lpszStringBuf, int nMaxCount) const
    {
        return ::GetWindowTextW(m_hWnd, lpszStringBuf, nMaxCount);
    }
    void GetWindowText(CString& rString) const;
    [[nodiscard]] int GetWindowTextLength() const { return ::GetWindowTextLengthW(m_hWnd); }

    void SetFont(CFont* pFont, BOOL bRedraw = TRUE);
    [[nodiscard]] CFont* GetFont() const;
    HICON SetIcon(HICON hIcon, BOOL bBigIcon);
    [[nodiscard]] CMenu* GetMenu() const { return CMenu::FromHandle(::GetMenu(m_hWnd)); }
    BOOL SetMenu(CMenu* pMenu) { return ::SetMenu(m_hWnd, pMenu ? pMenu->m_hMenu : nullptr); }

    // -- Focus and activation

    CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
    static CWnd* PASCAL GetFocus() { return FromHandle(::GetFocus()); }
    static CWnd* PASCAL GetActiveWindow() { return FromHandle(::GetActiveWindow()); }

    // -- Place and size

    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE)
    {
        ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
    }
    void MoveWindow(LPCRECT lpRect, BOOL bRepaint = TRUE);
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags)
    {
        return ::SetWindowPos(m_hWnd, pWndInsertAfter ? pWndInsertAfter->m_hWnd : nullptr, x, y, cx, cy, nFlags);
    }
    void GetWindowRect(LPRECT lpRect) const { ::GetWindowRect(m_hWnd, lpRect); }
    void GetClientRect(LPRECT lpRect) const { ::GetClientRect(m_hWnd, lpRect); }
    void ClientToScreen(LPPOINT lpPoint) const { ::ClientToScreen(m_hWnd, lpPoint); }
    void ClientToScreen(LPRECT lpRect) const { ::MapWindowPoints(m_hWnd, nullptr, Corners(lpRect), 2); }
    void ScreenToClient(LPPOINT lpPoint) const { ::ScreenToClient(m_hWnd, lpPoint); }
    void ScreenToClient(LPRECT lpRect) const { ::MapWindowPoints(nullptr, m_hWnd, Corners(lpRect), 2); }
    void BringWindowToTop() { ::BringWindowToTop(m_hWnd); }
    // Centres the window over its owner or parent (or the one given), inside the work area of the owner's monitor.
    void CenterWindow(CWnd* pAlternateOwner = nullptr);

    // -- Painting

    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    void SetRedraw(BOOL bRedraw = TRUE) { ::SendMessageW(m_hWnd, WM_SETREDRAW, static_cast<WPARAM>(bRedraw), 0); }
    void Invalidate(BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, bErase); }
    BOOL RedrawWindow(LPCRECT lpRectUpdate = nullptr, HRGN prgnUpdate = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);

    // -- Relations

    [[nodiscard]] CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    [[nodiscard]] CWnd* GetOwner() const { return GetWindow(GW_OWNER); }
    [[nodiscard]] CWnd* GetWindow(UINT nCmd) const { return FromHandle(::GetWindow(m_hWnd, nCmd)); }
    [[nodiscard]] CWnd* GetDlgItem(int nID) const { return FromHandle(::GetDlgItem(m_hWnd, nID)); }
    void GetDlgItem(int nID, HWND* phWnd) const { *phWnd = ::GetDlgItem(m_hWnd, nID); }
    [[nodiscard]] int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    int SetDlgCtrlID(int nID) { return static_cast<int>(::SetWindowLongPtrW(m_hWnd, GWLP_ID, nID)); }
    CWnd* GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;

    // -- Messages

    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::SendMessageW(m_hWnd, message, wParam, lParam);
    }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::PostMessageW(m_hWnd, message, wParam, lParam);
    }

    // -- Controls of a dialog

    void SetDlgItemText(int nID, LPCWSTR lpszString) { ::SetDlgItemTextW(m_hWnd, nID, lpszString); }
    int GetDlgItemText(int nID, LPWSTR lpStr, int nMaxCount) const
    {
        return static_cast<int>(::GetDlgItemTextW(m_hWnd, nID, lpStr, nMaxCount));
    }
    int GetDlgItemText(int nID, CString& rString) const;

    // Moves values between the controls and the members by DoDataExchange: FALSE to the controls, TRUE from them.
    // Returns FALSE when a validation failed (the user has been told), or when an MFC exception was thrown or memory
    // ran out, which is shown. Notifications of the controls are held back meanwhile.
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);

    // -- Modal state

    // Runs a message loop until EndModalLoop. Returns its result, or -1 when the program is to end.
    int RunModalLoop(DWORD dwFlags = 0);
    virtual BOOL ContinueModal();
    virtual void EndModalLoop(int nResult);

    // -- Overridables, in the order in which a message meets them

    // Sees a posted message before it is dispatched; TRUE swallows it.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    // Offers a message to the windows from its target up to hWndStop.
    static BOOL PASCAL WalkPreTranslateTree(HWND hWndStop, MSG* pMsg);
    BOOL PreTranslateInput(LPMSG lpMsg);

    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    // Hands the message being handled to the window's original procedure.
    LRESULT Default();
    virtual void DoDataExchange(CDataExchange* pDX);
    // The last thing that a window's object hears; modeless dialogs on the heap delete themselves here.
    virtual void PostNcDestroy();
    // Whether a dialog is centred over its owner before it is shown.
    virtual BOOL CheckAutoCenter();

    afx_msg void OnDestroy();
    afx_msg void OnNcDestroy();
    afx_msg void OnClose();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI);
    // A top window tells its descendants, of which Windows tells none.
    afx_msg void OnSysColorChange();
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);

    DECLARE_MESSAGE_MAP()

    // The owner that a dialog or message box gets: hParent's top-level window, or when null the last active popup of
    // the main or active window. *pWndTop receives the top-level window that was disabled besides, or null.
    static HWND PASCAL GetSafeOwner_(HWND hParent, HWND* pWndTop);

    WNDPROC m_pfnSuper = nullptr;  // the procedure that subclassing replaced
    int m_nModalResult = 0;
    UINT m_nFlags = 0;

private:
    static LPPOINT Corners(LPRECT rectangle) noexcept { return reinterpret_cast<LPPOINT>(rectangle); }
    void AttachCreated(HWND hWnd);

    friend struct AfxWindowAccess;  // the window procedure and the creation hook
};

// Registers a window class of this library's procedure; the same arguments give the same class. Returns its name.
// Throws CResourceException.
KZMFC_API LPCWSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr,
                                             HBRUSH hbrBackground = nullptr, HICON hIcon = nullptr);

// The window procedure of every window that an object of this library is attached to by creation or subclassing.
KZMFC_API LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
KZMFC_API WNDPROC AFXAPI AfxGetAfxWndProc() noexcept;

// Has the next window that this thread creates attached to the object.
KZMFC_API void AFXAPI AfxHookWindowCreate(CWnd* pWnd);
// Ends that. Returns FALSE when no window has been attached since.
KZMFC_API BOOL AFXAPI AfxUnhookWindowCreate();
