// CWnd: the modal loop and the owner of modal windows.
#include "ThreadState.h"
#include "WindowAccess.h"

namespace {

bool IsUrgent(const MSG& message) noexcept
{
    return message.message == WM_SYSTIMER || message.message == WM_SYSKEYDOWN;
}

bool QueueIsEmpty() noexcept
{
    MSG message;
    return !::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);
}

}  // namespace

int CWnd::RunModalLoop(DWORD dwFlags)
{
    bool mustShow = (dwFlags & MLF_SHOWONIDLE) != 0 && (GetStyle() & WS_VISIBLE) == 0;
    bool tellIdle = (dwFlags & MLF_NOIDLEMSG) == 0;
    const HWND parent = ::GetParent(m_hWnd);
    const auto show = [&] {
        if (std::exchange(mustShow, false)) {
            ShowWindow(SW_SHOWNORMAL);
            UpdateWindow();
        }
    };

    m_nFlags |= WF_MODALLOOP | WF_CONTINUEMODAL;
    while (ContinueModal()) {
        if ((mustShow || tellIdle) && QueueIsEmpty()) {
            // Shown when all that its creation has posted is done, so that it appears once and complete.
            show();
            if (tellIdle && parent)
                ::SendMessageW(parent, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(m_hWnd));
            tellIdle = false;
            continue;
        }
        if (!AfxPumpMessage()) {
            ::PostQuitMessage(0);
            m_nFlags &= ~(WF_MODALLOOP | WF_CONTINUEMODAL);
            return -1;
        }
        const MSG& pumped = CurrentThread().pumpedMessage;
        if (IsUrgent(pumped))
            show();
        if (CWinThread* thread = AfxGetThread(); thread && thread->IsIdleMessage(&CurrentThread().pumpedMessage))
            tellIdle = (dwFlags & MLF_NOIDLEMSG) == 0;
    }
    m_nFlags &= ~(WF_MODALLOOP | WF_CONTINUEMODAL);
    return m_nModalResult;
}

BOOL CWnd::ContinueModal()
{
    return (m_nFlags & WF_CONTINUEMODAL) != 0;
}

void CWnd::EndModalLoop(int nResult)
{
    m_nModalResult = nResult;
    if ((m_nFlags & WF_CONTINUEMODAL) == 0)
        return;
    m_nFlags &= ~WF_CONTINUEMODAL;
    PostMessage(WM_NULL);  // wakes the loop
}

HWND PASCAL CWnd::GetSafeOwner_(HWND hParent, HWND* pWndTop)
{
    HWND owner = hParent;
    if (!owner) {
        const CWnd* main = AfxGetMainWnd();
        owner = main ? main->m_hWnd : nullptr;
    }
    // A child window cannot own a popup.
    while (owner && (::GetWindowLongPtrW(owner, GWL_STYLE) & WS_CHILD) != 0)
        owner = ::GetParent(owner);

    const HWND top = TopLevelParent(owner);

    if (!hParent && owner)
        owner = ::GetLastActivePopup(owner);

    if (pWndTop) {
        *pWndTop = nullptr;
        if (top && top != owner && ::IsWindowEnabled(top)) {
            ::EnableWindow(top, FALSE);
            *pWndTop = top;
        }
    }
    return owner;
}
