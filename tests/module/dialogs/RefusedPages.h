// While it lives, no child dialog of this thread gets its window.
#pragma once

#include <windows.h>

#include <array>
#include <string_view>

class RefusedPages {
public:
    RefusedPages() : m_hook(::SetWindowsHookExW(WH_CBT, Hook, nullptr, ::GetCurrentThreadId())) {}
    ~RefusedPages() { ::UnhookWindowsHookEx(m_hook); }
    RefusedPages(const RefusedPages&) = delete;
    RefusedPages& operator=(const RefusedPages&) = delete;

private:
    static LRESULT CALLBACK Hook(int code, WPARAM wParam, LPARAM lParam)
    {
        if (code == HCBT_CREATEWND) {
            const auto& creation = *reinterpret_cast<const CBT_CREATEWNDW*>(lParam);
            std::array<wchar_t, 16> windowClass{};
            ::GetClassNameW(reinterpret_cast<HWND>(wParam), windowClass.data(), static_cast<int>(windowClass.size()));
            if ((creation.lpcs->style & WS_CHILD) != 0 && std::wstring_view(windowClass.data()) == L"#32770")
                return 1;
        }
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    HHOOK m_hook;
};
