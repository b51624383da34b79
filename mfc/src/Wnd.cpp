// CWnd: handles, subclassing, destruction, and the members that are more than one call of Windows.
#include "ThreadState.h"

IMPLEMENT_DYNAMIC(CWnd, CCmdTarget)

CWnd::~CWnd()
{
    // Not virtual: what derived classes add to it is destroyed already.
    if (m_hWnd)
        CWnd::DestroyWindow();
}

CWnd* PASCAL CWnd::FromHandle(HWND hWnd)
{
    return Windows::FromHandle(hWnd);
}

CWnd* PASCAL CWnd::FromHandlePermanent(HWND hWnd) noexcept
{
    const ThreadState* thread = CurrentThreadIfAny();
    return thread ? thread->windows.LookupPermanent(hWnd) : nullptr;
}

BOOL CWnd::Attach(HWND hWndNew)
{
    // A window has one object: the other one would no longer hear of the window's end.
    return !FromHandlePermanent(hWndNew) && Windows::Attach(*this, hWndNew);
}

HWND CWnd::Detach()
{
    return Windows::Detach(*this);
}

void CWnd::AttachCreated(HWND hWnd)
{
    if (!SubclassWindow(hWnd))
        AfxThrowInvalidArgException();
}

BOOL CWnd::SubclassWindow(HWND hWnd)
{
    if (!Attach(hWnd))
        return FALSE;
    PreSubclassWindow();
    const LONG_PTR previous = ::SetWindowLongPtrW(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(AfxGetAfxWndProc()));
    const auto procedure = reinterpret_cast<WNDPROC>(previous);
    // A window of a class of this library has its procedure from the start.
    m_pfnSuper = procedure == AfxGetAfxWndProc() ? nullptr : procedure;
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent)
{
    const HWND control = ::GetDlgItem(pParent->m_hWnd, static_cast<int>(nID));
    return control && SubclassWindow(control);
}

void CWnd::PreSubclassWindow() {}

BOOL CWnd::DestroyWindow()
{
    if (!m_hWnd)
        return FALSE;
    const HWND window = m_hWnd;
    const bool attached = FromHandlePermanent(window) == this;
    const BOOL destroyed = ::DestroyWindow(window);
    // An attached object was detached on the way, and may have deleted itself.
    if (!attached)
        Detach();
    return destroyed;
}

void CWnd::OnNcDestroy()
{
    CWinThread* thread = AfxGetThread();
    if (thread && thread->m_pMainWnd == this) {
        thread->m_pMainWnd = nullptr;
        ::PostQuitMessage(0);
    }
    Default();
    Detach();
    m_pfnSuper = nullptr;
    PostNcDestroy();
}

void CWnd::PostNcDestroy() {}

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    const DWORD before = GetStyle();
    const DWORD after = (before & ~dwRemove) | dwAdd;
    if (before == after)
        return FALSE;
    ::SetWindowLongPtrW(m_hWnd, GWL_STYLE, static_cast<LONG_PTR>(after));
    if (nFlags != 0)
        SetWindowPos(nullptr, 0, 0, 0, 0, nFlags | SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    return TRUE;
}

void CWnd::GetWindowText(CString& rString) const
{
    const int length = GetWindowTextLength();
    // The length may be an overestimate; the text says itself where it ends.
    GetWindowText(rString.GetBuffer(length), length + 1);
    rString.ReleaseBuffer();
}

void CWnd::SetFont(CFont* pFont, BOOL bRedraw)
{
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(pFont ? pFont->m_hObject : nullptr), bRedraw);
}

CFont* CWnd::GetFont() const
{
    return CFont::FromHandle(reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
}

HICON CWnd::SetIcon(HICON hIcon, BOOL bBigIcon)
{
    return reinterpret_cast<HICON>(
        SendMessage(WM_SETICON, static_cast<WPARAM>(bBigIcon), reinterpret_cast<LPARAM>(hIcon)));
}

void CWnd::MoveWindow(LPCRECT lpRect, BOOL bRepaint)
{
    MoveWindow(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top, bRepaint);
}

BOOL CWnd::RedrawWindow(LPCRECT lpRectUpdate, HRGN prgnUpdate, UINT flags)
{
    return ::RedrawWindow(m_hWnd, lpRectUpdate, prgnUpdate, flags);
}

CWnd* CWnd::GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious) const
{
    return FromHandle(::GetNextDlgTabItem(m_hWnd, pWndCtl ? pWndCtl->m_hWnd : nullptr, bPrevious));
}

int CWnd::GetDlgItemText(int nID, CString& rString) const
{
    const HWND control = ::GetDlgItem(m_hWnd, nID);
    const int length = control ? ::GetWindowTextLengthW(control) : 0;
    const int copied = GetDlgItemText(nID, rString.GetBuffer(length), length + 1);
    rString.ReleaseBuffer(copied);
    return copied;
}

void CWnd::CenterWindow(CWnd* pAlternateOwner)
{
    const bool isChild = (GetStyle() & WS_CHILD) != 0;
    HWND centre =
        pAlternateOwner ? pAlternateOwner->m_hWnd : (isChild ? ::GetParent(m_hWnd) : ::GetWindow(m_hWnd, GW_OWNER));
    const bool usable = centre && ::IsWindowVisible(centre) && !::IsIconic(centre);
    CRect area;
    CRect around;
    if (isChild) {
        ::GetClientRect(::GetParent(m_hWnd), &area);
        around = area;
    } else {
        MONITORINFO monitor{};
        monitor.cbSize = sizeof(monitor);
        ::GetMonitorInfoW(::MonitorFromWindow(usable ? centre : m_hWnd, MONITOR_DEFAULTTONEAREST), &monitor);
        area = monitor.rcWork;
        around = area;
        if (usable)
            ::GetWindowRect(centre, &around);
    }
    CRect window;
    GetWindowRect(&window);
    const CPoint middle = around.CenterPoint();
    const auto place = [](int wanted, int size, int low, int high) {
        const int fitting = wanted + size > high ? high - size : wanted;
        return fitting < low ? low : fitting;  // what does not fit shows its start
    };
    SetWindowPos(nullptr, place(middle.x - window.Width() / 2, window.Width(), area.left, area.right),
                 place(middle.y - window.Height() / 2, window.Height(), area.top, area.bottom), 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}
