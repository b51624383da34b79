// Wine keeps some bytes of its own of every static control that has been given a font. A test that measures what the
// whole process has grown by leaves them out: it counts the controls and measures what one of them costs.
#pragma once

#include <windows.h>

// Counts the static controls that are made on this thread.
class StaticControlCount {
public:
    StaticControlCount();
    ~StaticControlCount() { ::UnhookWindowsHookEx(m_hook); }
    StaticControlCount(const StaticControlCount&) = delete;
    StaticControlCount& operator=(const StaticControlCount&) = delete;

    [[nodiscard]] static long Count() noexcept { return s_count; }

private:
    static LRESULT CALLBACK Hook(int code, WPARAM wParam, LPARAM lParam);
    static inline long s_count = 0;
    HHOOK m_hook;
};

// The bytes that the system keeps of one; 0 on Windows.
[[nodiscard]] long long BytesLeftByAStaticControl();
