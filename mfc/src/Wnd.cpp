// CWnd: handles, subclassing, destruction, and the members that are more than one call of Windows.
#include "ThreadState.h"

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

CWnd::~CWnd()
{
    const bool isPlace = this == &wndTop || this == &wndBottom || this == &wndTopMost || this == &wndNoTopMost;
    // Not virtual: what derived classes add to it is destroyed already.
    if (m_hWnd && !isPlace)
        CWnd::DestroyWindow();
}

CWnd* PASCAL CWnd::FromHandle(HWND hWnd)
{
    return CurrentThread().windows.FromHandle(hWnd);
}

CWnd* PASCAL CWnd::FromHandlePermanent(HWND hWnd) noexcept
{
    const ThreadState* thread = CurrentThreadIfAny();
    return thread ? thread->windows.LookupPermanent(hWnd) : nullptr;
}

void PASCAL CWnd::DeleteTempMap()
{
    CurrentThread().windows.DeleteTemporaries();
}

BOOL CWnd::Attach(HWND hWndNew)
{
    if (!hWndNew || m_hWnd || FromHandlePermanent(hWndNew))
        return FALSE;
    CurrentThread().windows.SetPermanent(hWndNew, this);
    m_hWnd = hWndNew;
    return TRUE;
}

HWND CWnd::Detach()
{
    if (ThreadState* thread = CurrentThreadIfAny(); thread && m_hWnd)
        thread->windows.Remove(m_hWnd);
    return std::exchange(m_hWnd, nullptr);
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

HWND CWnd::UnsubclassWindow()
{
    if (m_pfnSuper)
        ::SetWindowLongPtrW(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(std::exchange(m_pfnSuper, nullptr)));
    return Detach();
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
        AfxPostQuitMessage(0);
    }
    Default();
    Detach();
    m_pfnSuper = nullptr;
    PostNcDestroy();
}

void CWnd::PostNcDestroy() {}

namespace {

BOOL ModifyStyleLong(HWND window, int index, DWORD remove, DWORD add, UINT positionFlags)
{
    const auto before = static_cast<DWORD>(::GetWindowLongPtrW(window, index));
    const DWORD after = (before & ~remove) | add;
    if (before == after)
        return FALSE;
    ::SetWindowLongPtrW(window, index, static_cast<LONG_PTR>(after));
    if (positionFlags != 0)
        ::SetWindowPos(window, nullptr, 0, 0, 0, 0,
                       positionFlags | SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    return TRUE;
}

}  // namespace

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ModifyStyleLong(m_hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ModifyStyleLong(m_hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
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

HICON CWnd::GetIcon(BOOL bBigIcon) const
{
    return reinterpret_cast<HICON>(SendMessage(WM_GETICON, static_cast<WPARAM>(bBigIcon)));
}

void CWnd::MoveWindow(LPCRECT lpRect, BOOL bRepaint)
{
    MoveWindow(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top, bRepaint);
}

BOOL CWnd::RedrawWindow(LPCRECT lpRectUpdate, HRGN prgnUpdate, UINT flags)
{
    return ::RedrawWindow(m_hWnd, lpRectUpdate, prgnUpdate, flags);
}

CWnd* CWnd::SetParent(CWnd* pWndNewParent)
{
    return FromHandle(::SetParent(m_hWnd, pWndNewParent ? pWndNewParent->m_hWnd : nullptr));
}

CWnd* CWnd::GetTopLevelParent() const
{
    HWND window = m_hWnd;
    while (const HWND parent = window ? ::GetParent(window) : nullptr)
        window = parent;
    return FromHandle(window);
}

CWnd* CWnd::GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious) const
{
    return FromHandle(::GetNextDlgTabItem(m_hWnd, pWndCtl ? pWndCtl->m_hWnd : nullptr, bPrevious));
}

CWnd* CWnd::GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious) const
{
    return FromHandle(::GetNextDlgGroupItem(m_hWnd, pWndCtl ? pWndCtl->m_hWnd : nullptr, bPrevious));
}

int CWnd::MessageBox(LPCWSTR lpszText, LPCWSTR lpszCaption, UINT nType)
{
    return ::MessageBoxW(m_hWnd, lpszText, lpszCaption ? lpszCaption : AfxGetAppName(), nType);
}

int CWnd::GetDlgItemText(int nID, CString& rString) const
{
    const HWND control = ::GetDlgItem(m_hWnd, nID);
    const int length = control ? ::GetWindowTextLengthW(control) : 0;
    const int copied = GetDlgItemText(nID, rString.GetBuffer(length), length + 1);
    rString.ReleaseBuffer(copied);
    return copied;
}

int CWnd::GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton) const
{
    for (int id = nIDFirstButton; id <= nIDLastButton; ++id) {
        if (IsDlgButtonChecked(id) != BST_UNCHECKED)
            return id;
    }
    return 0;
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
