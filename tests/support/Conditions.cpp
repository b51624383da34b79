#include "Conditions.h"

#include <windows.h>

namespace kztest {

void DispatchPending()
{
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
}

bool WaitUntil(const std::function<bool()>& condition, std::chrono::milliseconds limit)
{
    constexpr DWORD PollInterval = 2;  // milliseconds
    const bool hasQueue = ::IsGUIThread(FALSE) != FALSE;
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!condition()) {
        if (std::chrono::steady_clock::now() >= end)
            return false;
        if (hasQueue) {
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, PollInterval, QS_ALLINPUT);
            DispatchPending();
        } else {
            ::Sleep(PollInterval);
        }
    }
    return true;
}

}  // namespace kztest
