// CWnd: how a message finds its handler, and the handlers of the base class.
#include "ThreadState.h"

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_NCDESTROY()
    ON_WM_SYSCOLORCHANGE()
END_MESSAGE_MAP()

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    if (!OnWndMsg(message, wParam, lParam, &result))
        result = DefWindowProc(message, wParam, lParam);
    return result;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return m_pfnSuper ? ::CallWindowProcW(m_pfnSuper, m_hWnd, message, wParam, lParam)
                      : ::DefWindowProcW(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (message == WM_COMMAND) {
        if (!OnCommand(wParam, lParam))
            return FALSE;
        *pResult = TRUE;
        return TRUE;
    }
    if (message == WM_NOTIFY)
        return lParam != 0 && OnNotify(wParam, lParam, pResult);

    const bool asksColour = message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
    const AFX_MSGMAP_ENTRY* entry =
        CurrentThread().messageCache.Find(GetMessageMap(), asksColour ? WM_CTLCOLOR : message);
    if (!entry)
        return FALSE;
    AFX_MSGARGS args{message, 0, wParam, lParam, nullptr, 0};
    entry->pfn(this, args);
    *pResult = args.lResult;
    return TRUE;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const UINT id = LOWORD(wParam);
    if (lParam == 0)  // a menu item or an accelerator
        return id != 0 && OnCmdMsg(id, CN_COMMAND, nullptr, nullptr);
    if (CurrentThread().lockedOutWindow == m_hWnd)
        return TRUE;
    return id != 0 && OnCmdMsg(id, HIWORD(wParam), nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* pResult)
{
    if (CurrentThread().lockedOutWindow == m_hWnd)
        return TRUE;
    auto* header = reinterpret_cast<NMHDR*>(lParam);
    AFX_NOTIFY notify{pResult, header};
    // The window knows its id better than WPARAM, which some controls leave empty.
    const auto id = static_cast<UINT>(::GetDlgCtrlID(header->hwndFrom));
    return OnCmdMsg(id, static_cast<int>(MAKELONG(header->code, WM_NOTIFY)), &notify, nullptr);
}

BOOL CWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    return CCmdTarget::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CWnd::PreTranslateMessage(MSG*)
{
    return FALSE;
}

BOOL PASCAL CWnd::WalkPreTranslateTree(HWND hWndStop, MSG* pMsg)
{
    for (HWND window = pMsg->hwnd; window; window = ::GetParent(window)) {
        CWnd* object = FromHandlePermanent(window);
        if (object && object->PreTranslateMessage(pMsg))
            return TRUE;
        if (window == hWndStop)
            break;
    }
    return FALSE;
}

BOOL CWnd::PreTranslateInput(LPMSG lpMsg)
{
    const bool isInput = (lpMsg->message >= WM_KEYFIRST && lpMsg->message <= WM_KEYLAST) ||
                         (lpMsg->message >= WM_MOUSEFIRST && lpMsg->message <= WM_MOUSELAST);
    return isInput && ::IsDialogMessageW(m_hWnd, lpMsg);
}

BOOL CWnd::CheckAutoCenter()
{
    return TRUE;
}

// Each does what the window would have done without a handler.
void CWnd::OnDestroy()
{
    Default();
}
void CWnd::OnClose()
{
    Default();
}
void CWnd::OnSize(UINT, int, int)
{
    Default();
}
void CWnd::OnGetMinMaxInfo(MINMAXINFO*)
{
    Default();
}
void CWnd::OnSysColorChange()
{
    const auto tell = [](HWND window, LPARAM) -> BOOL {
        ::SendMessageW(window, WM_SYSCOLORCHANGE, 0, 0);
        return TRUE;
    };
    if ((GetStyle() & WS_CHILD) == 0)
        ::EnumChildWindows(m_hWnd, tell, 0);
    Default();
}
HBRUSH CWnd::OnCtlColor(CDC*, CWnd*, UINT)
{
    return reinterpret_cast<HBRUSH>(Default());
}
