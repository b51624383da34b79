#include "StaticControls.h"

#include "ProcessState.h"
#include "StepLoop.h"

StaticControlCount::StaticControlCount() : m_hook(::SetWindowsHookExW(WH_CBT, Hook, nullptr, ::GetCurrentThreadId()))
{
    s_count = 0;
}

LRESULT CALLBACK StaticControlCount::Hook(int code, WPARAM wParam, LPARAM lParam)
{
    if (code == HCBT_CREATEWND && IsOfClass(reinterpret_cast<HWND>(wParam), L"Static"))
        ++s_count;
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

long long BytesLeftByAStaticControl()
{
    constexpr int Controls = 50;
    const auto makeAll = [] {
        for (int control = 0; control < Controls; ++control) {
            const HWND window =
                ::CreateWindowExW(0, L"Static", L"text", WS_POPUP, 0, 0, 50, 20, nullptr, nullptr, nullptr, nullptr);
            ::SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(::GetStockObject(DEFAULT_GUI_FONT)), 0);
            ::DestroyWindow(window);
        }
    };
    makeAll();
    const long long before = CountHeapBytes();
    makeAll();
    return (CountHeapBytes() - before) / Controls;
}
