#include "DialogAccess.h"

#include <utility>

#include "PictureTips.h"
#include "TabKeys.h"
#include "WindowProcedure.h"

namespace {

// Posted by a dialog to itself. A registered number, so that it is none of the dialog's own.
UINT OpenedMessage() noexcept
{
    static const UINT message = ::RegisterWindowMessageW(L"KZDialogAccess.Opened");
    return message;
}

// No exception may pass through the system. What memory ran out for is left out: the dialog works without it.
template <class Operation>
auto Guarded(Operation operation, decltype(operation()) otherwise) noexcept
{
    try {
        return operation();
    } catch (...) {
        return otherwise;
    }
}

bool IsArrow(WPARAM key) noexcept
{
    return key >= VK_LEFT && key <= VK_DOWN;
}

bool IsHeld(int key) noexcept
{
    return ::GetKeyState(key) < 0;
}

}  // namespace

void DialogAccess::Attach(HWND dialog, DialogNeeds needs)
{
    if (m_dialog)
        return;
    m_dialog = dialog;
    m_needs = std::move(needs);
    Enlist();
    m_previous = SetProcedure(dialog, Procedure);
    // The dialog's loop offers each key and each mouse message to the filter before it takes it for its own.
    m_filter = ::SetWindowsHookExW(WH_MSGFILTER, Filter, nullptr, ::GetCurrentThreadId());
}

void DialogAccess::Detach() noexcept
{
    Leave();
    m_screen.Forget();
    m_names.reset();
    if (m_filter)
        ::UnhookWindowsHookEx(std::exchange(m_filter, nullptr));
    if (m_dialog && ProcedureOf(m_dialog) == Procedure)
        SetProcedure(m_dialog, m_previous);
    m_dialog = nullptr;
    m_needs = {};
    m_wasShown = m_hasTips = false;
    m_tips = nullptr;
}

LRESULT CALLBACK DialogAccess::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    DialogAccess* const access = Find([&](const DialogAccess& each) { return each.m_dialog == window; });
    if (!access)
        return ::DefWindowProcW(window, message, wParam, lParam);
    const WNDPROC previous = access->m_previous;
    const auto handle = [&] { return access->Handle(message, wParam, lParam); };
    if (const std::optional<LRESULT> answer = Guarded(handle, std::nullopt))
        return *answer;
    if (message == WM_NCDESTROY)
        access->Detach();
    return ::CallWindowProcW(previous, window, message, wParam, lParam);
}

LRESULT CALLBACK DialogAccess::Filter(int code, WPARAM wParam, LPARAM lParam)
{
    if (code == MSGF_DIALOGBOX) {
        const MSG& message = *reinterpret_cast<const MSG*>(lParam);
        // A dialog inside another one comes first: it was attached later.
        DialogAccess* const access = Find([&](const DialogAccess& each) {
            return each.m_dialog == message.hwnd || ::IsChild(each.m_dialog, message.hwnd);
        });
        if (access && Guarded([&] { return access->UsesInput(message); }, false))
            return 1;
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

std::optional<LRESULT> DialogAccess::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_SHOWWINDOW:
        if (wParam && !std::exchange(m_wasShown, true))
            OnShow();
        break;
    case WM_DESTROY:
        m_names.reset();
        break;
    case WM_DISPLAYCHANGE:
    case WM_SETTINGCHANGE:
        if (m_wasShown && (message == WM_DISPLAYCHANGE || wParam == SPI_SETWORKAREA))
            m_screen.Fit(m_dialog);
        break;
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
        OnColours();
        break;
    default:
        if (message == OpenedMessage()) {
            OnOpened();
            return 0;
        }
    }
    return m_screen.Handle(message, wParam, lParam);
}

void DialogAccess::OnShow()
{
    ::PostMessageW(m_dialog, OpenedMessage(), 0, 0);
    if (m_needs.beforeShown)
        m_needs.beforeShown();
    m_screen.Fit(m_dialog);
}

void DialogAccess::OnOpened()
{
    if (m_names)
        return;
    m_names.emplace();
    if (m_needs.nameControls)
        m_needs.nameControls(*m_names);
}

void DialogAccess::NameAnew() noexcept
{
    if (!m_names || !m_needs.nameControls)
        return;
    // The tips are made of the names, at the next movement of the mouse.
    if (m_tips)
        ::DestroyWindow(std::exchange(m_tips, nullptr));
    m_hasTips = false;
    const auto name = [this] {
        m_needs.nameControls(*m_names);
        return true;
    };
    Guarded(name, false);
}

void DialogAccess::OnColours() const
{
    if (m_needs.followColours)
        m_needs.followColours();
    ::RedrawWindow(m_dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

bool DialogAccess::UsesInput(const MSG& message)
{
    if (message.message == WM_MOUSEMOVE && m_names && !std::exchange(m_hasTips, true))
        m_tips = MakePictureTips(m_dialog, *m_names);
    return message.message == WM_KEYDOWN && UsesKey(message);
}

bool DialogAccess::UsesKey(const MSG& message)
{
    if (m_needs.tabs && ::IsWindowVisible(m_needs.tabs) && ChangesTab(message, m_needs.tabs))
        return true;
    if (IsHeld(VK_CONTROL))
        return false;
    if (m_needs.walk && IsArrow(message.wParam))
        return m_needs.walk(message.hwnd, message.wParam);
    return m_screen.UsesKey(message);
}
