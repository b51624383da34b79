#include "ClipboardText.h"

#include "Controls.h"

namespace editor_tests {

std::wstring ClipboardText()
{
    if (!::OpenClipboard(nullptr))
        return {};
    std::wstring text;
    if (const HANDLE data = ::GetClipboardData(CF_UNICODETEXT)) {
        if (const auto* const characters = static_cast<const wchar_t*>(::GlobalLock(data)))
            text = characters;
        ::GlobalUnlock(data);
    }
    ::CloseClipboard();
    return text;
}

void PressWithControl(HWND dialog, WORD key)
{
    const DWORD own = ::GetCurrentThreadId();
    const DWORD other = ::GetWindowThreadProcessId(dialog, nullptr);
    const HWND focused = kztest::FocusedWindow(dialog);
    // The state of the keys belongs to the input of a thread.
    ::AttachThreadInput(own, other, TRUE);
    BYTE keys[256] = {};
    ::GetKeyboardState(keys);
    keys[VK_CONTROL] = 0x80;
    ::SetKeyboardState(keys);
    ::SendMessageW(focused, WM_KEYDOWN, key, 1);
    keys[VK_CONTROL] = 0;
    ::SetKeyboardState(keys);
    ::AttachThreadInput(own, other, FALSE);
}

}  // namespace editor_tests
