#include "StepLoop.h"

#include <cwchar>

StepLoop::StepLoop(std::function<void()> step) : m_step(std::move(step))
{
    CreateEx(0, AfxRegisterWndClass(0), L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr);
    Continue();
}

StepLoop::~StepLoop()
{
    DestroyWindow();
}

LRESULT StepLoop::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != RunStep)
        return CWnd::WindowProc(message, wParam, lParam);
    m_step();
    return 0;
}

HWND TopDialogOfThread()
{
    HWND found = nullptr;
    const auto examine = [](HWND window, LPARAM parameter) -> BOOL {
        if (!IsOfClass(window, L"#32770") || !::IsWindowEnabled(window))
            return TRUE;
        *reinterpret_cast<HWND*>(parameter) = window;
        return FALSE;
    };
    ::EnumThreadWindows(::GetCurrentThreadId(), examine, reinterpret_cast<LPARAM>(&found));
    // A modal loop shows its dialog when the queue is empty, which it never is between steps.
    if (found && !::IsWindowVisible(found))
        ::ShowWindow(found, SW_SHOWNORMAL);
    return found;
}

void LeaveMenu()
{
    GUITHREADINFO state{};
    state.cbSize = sizeof state;
    if (::GetGUIThreadInfo(::GetCurrentThreadId(), &state) && (state.flags & GUI_INMENUMODE) != 0)
        ::EndMenu();
}

bool IsMessageBox(HWND dialog)
{
    constexpr int MessageTextId = 0xFFFF;
    return ::GetDlgItem(dialog, MessageTextId) != nullptr;
}

std::vector<HWND> DescendantsOf(HWND window)
{
    std::vector<HWND> found;
    const auto add = [](HWND child, LPARAM parameter) -> BOOL {
        reinterpret_cast<std::vector<HWND>*>(parameter)->push_back(child);
        return TRUE;
    };
    ::EnumChildWindows(window, add, reinterpret_cast<LPARAM>(&found));
    return found;
}

bool IsReachable(HWND control)
{
    return ::IsWindowVisible(control) && ::IsWindowEnabled(control);
}

bool IsOfClass(HWND window, const wchar_t* name)
{
    wchar_t actual[64];
    return ::GetClassNameW(window, actual, static_cast<int>(std::size(actual))) > 0 && ::_wcsicmp(actual, name) == 0;
}
