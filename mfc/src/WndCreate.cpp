// CWnd: creation, through a hook that attaches the object before the window gets its first message.
#include <cwchar>
#include <mutex>
#include <set>
#include <string>

#include "ExceptionGuard.h"
#include "ThreadState.h"
#include "WindowAccess.h"

namespace {

void RemoveHook(ThreadState& thread) noexcept
{
    if (const HHOOK hook = std::exchange(thread.creationHook, nullptr))
        ::UnhookWindowsHookEx(hook);
}

LRESULT CALLBACK CreationHook(int code, WPARAM wParam, LPARAM lParam)
{
    ThreadState* thread = CurrentThreadIfAny();
    if (code != HCBT_CREATEWND || !thread || !thread->windowInCreation)
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    const HWND window = reinterpret_cast<HWND>(wParam);
    CWnd* object = std::exchange(thread->windowInCreation, nullptr);
    // Removed at once: it would be called for every control of a dialog.
    RemoveHook(*thread);
    try {
        AfxWindowAccess::Subclass(*object, window);
    } catch (...) {
        thread->windowInCreation = object;  // not attached, as AfxUnhookWindowCreate will tell
        MSG message{};
        message.hwnd = window;
        message.message = WM_NCCREATE;
        ReportCurrentException(message);
        return 1;  // no such window then
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

void AFXAPI AfxHookWindowCreate(CWnd* pWnd)
{
    ThreadState& thread = CurrentThread();
    if (!thread.creationHook)
        thread.creationHook = ::SetWindowsHookExW(WH_CBT, CreationHook, nullptr, ::GetCurrentThreadId());
    if (!thread.creationHook)
        AfxThrowMemoryException();
    thread.windowInCreation = pWnd;
}

BOOL AFXAPI AfxUnhookWindowCreate()
{
    ThreadState& thread = CurrentThread();
    RemoveHook(thread);
    return std::exchange(thread.windowInCreation, nullptr) == nullptr;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCTW& cs)
{
    if (!cs.lpszClass)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW)));
    return TRUE;
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCWSTR lpszClassName, LPCWSTR lpszWindowName, DWORD dwStyle, int x, int y,
                    int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam)
{
    CREATESTRUCTW cs{lpParam, AfxGetInstanceHandle(),     nIDorHMenu,     hWndParent,    nHeight,  nWidth, y,
                     x,       static_cast<LONG>(dwStyle), lpszWindowName, lpszClassName, dwExStyle};
    if (!PreCreateWindow(cs)) {
        PostNcDestroy();
        return FALSE;
    }
    AfxHookWindowCreate(this);
    const HWND window = ::CreateWindowExW(cs.dwExStyle, cs.lpszClass, cs.lpszName, static_cast<DWORD>(cs.style), cs.x,
                                          cs.y, cs.cx, cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
    if (!AfxUnhookWindowCreate())
        PostNcDestroy();
    return window != nullptr;
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCWSTR lpszClassName, LPCWSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                    CWnd* pParentWnd, UINT nID, LPVOID lpParam)
{
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, pParentWnd ? pParentWnd->m_hWnd : nullptr,
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), lpParam);
}

BOOL CWnd::Create(LPCWSTR lpszClassName, LPCWSTR lpszWindowName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                  UINT nID)
{
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

LPCWSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon)
{
    static std::mutex lock;
    static std::set<std::wstring> names;

    wchar_t name[96];
    std::swprintf(name, std::size(name), L"Afx:%x:%p:%p:%p", nClassStyle, static_cast<void*>(hCursor),
                  static_cast<void*>(hbrBackground), static_cast<void*>(hIcon));
    const std::lock_guard guard(lock);
    const auto [entry, isNew] = names.emplace(name);
    if (!isNew)
        return entry->c_str();
    WNDCLASSW windowClass{};
    windowClass.style = nClassStyle;
    windowClass.lpfnWndProc = ::DefWindowProcW;  // the creation hook puts ours in its place
    windowClass.hInstance = AfxGetInstanceHandle();
    windowClass.hIcon = hIcon;
    windowClass.hCursor = hCursor;
    windowClass.hbrBackground = hbrBackground;
    windowClass.lpszClassName = entry->c_str();
    if (!::RegisterClassW(&windowClass)) {
        names.erase(entry);
        AfxThrowResourceException();
    }
    return entry->c_str();
}
