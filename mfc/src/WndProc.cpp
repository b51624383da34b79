// The window procedure: from a handle to its object, behind the exception guard.
#include "ExceptionGuard.h"
#include "ThreadState.h"
#include "WindowAccess.h"

namespace {

// Makes a message the one that Default means, for as long as it is handled.
class MessageInHand {
public:
    MessageInHand(ThreadState& thread, const MSG& message) noexcept : m_thread(thread), m_outer(thread.sentMessage)
    {
        thread.sentMessage = message;
    }
    ~MessageInHand() { m_thread.sentMessage = m_outer; }
    MessageInHand(const MessageInHand&) = delete;
    MessageInHand& operator=(const MessageInHand&) = delete;

private:
    ThreadState& m_thread;
    MSG m_outer;
};

// A hidden popup dialog that nothing has moved during WM_INITDIALOG is centred over its owner.
LRESULT InitDialog(CWnd& window, const MSG& message)
{
    CRect before;
    window.GetWindowRect(&before);
    const bool wasHidden = (window.GetStyle() & WS_VISIBLE) == 0;
    const LRESULT result = AfxWindowAccess::Handle(window, message.message, message.wParam, message.lParam);
    if (CWnd::FromHandlePermanent(message.hwnd) != &window)
        return result;  // it is gone already
    CRect after;
    window.GetWindowRect(&after);
    const CWnd* owner = window.GetOwner();
    const bool wasMoved = before.left != after.left || before.top != after.top;
    if (wasHidden && (window.GetStyle() & (WS_VISIBLE | WS_CHILD)) == 0 && !wasMoved &&
        !(owner && owner->IsWindowEnabled()) && AfxWindowAccess::WantsCentring(window))
        window.CenterWindow();
    return result;
}

LRESULT CallGuarded(CWnd& window, const MSG& message) noexcept
{
    try {
        if (message.message == WM_INITDIALOG)
            return InitDialog(window, message);
        return AfxWindowAccess::Handle(window, message.message, message.wParam, message.lParam);
    } catch (...) {
        const LRESULT answer = ReportCurrentException(message);
        // An object must not keep a window whose destruction its handler broke off.
        CWnd* survivor = message.message == WM_NCDESTROY ? CWnd::FromHandlePermanent(message.hwnd) : nullptr;
        if (survivor)
            survivor->Detach();
        return answer;
    }
}

}  // namespace

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    ThreadState* thread = CurrentThreadIfAny();
    CWnd* window = thread ? thread->windows.LookupPermanent(hWnd) : nullptr;
    if (!window)
        return ::DefWindowProcW(hWnd, nMsg, wParam, lParam);
    MSG message{};
    message.hwnd = hWnd;
    message.message = nMsg;
    message.wParam = wParam;
    message.lParam = lParam;
    const MessageInHand inHand(*thread, message);
    return CallGuarded(*window, message);
}

WNDPROC AFXAPI AfxGetAfxWndProc() noexcept
{
    return &AfxWndProc;
}

LRESULT CWnd::Default()
{
    const MSG& message = CurrentThread().sentMessage;
    return DefWindowProc(message.message, message.wParam, message.lParam);
}
