#include "MessageBoxes.h"

#include <utility>

#include "ControlText.h"

namespace {

constexpr int MessageTextId = 0xFFFF;  // the static of a message box
MessageBoxes* current = nullptr;

}  // namespace

MessageBoxes::MessageBoxes(int answer)
    : m_answer(answer), m_hook(::SetWindowsHookExW(WH_CBT, Hook, nullptr, ::GetCurrentThreadId()))
{
    current = this;
}

MessageBoxes::~MessageBoxes()
{
    current = nullptr;
    ::UnhookWindowsHookEx(m_hook);
}

std::vector<SeenMessage> MessageBoxes::Take()
{
    return std::exchange(m_seen, {});
}

LRESULT CALLBACK MessageBoxes::Hook(int code, WPARAM wParam, LPARAM lParam)
{
    const auto window = reinterpret_cast<HWND>(wParam);
    const HWND text = code == HCBT_ACTIVATE ? ::GetDlgItem(window, MessageTextId) : nullptr;
    if (text && current && current->m_last != window) {
        current->m_last = window;
        const bool asks = ::GetDlgItem(window, IDYES) && ::GetDlgItem(window, IDNO);
        current->m_seen.push_back({ControlText(*CWnd::FromHandle(text)).c_str(), asks});
        const int answer = ::GetDlgItem(window, current->m_answer) ? current->m_answer : IDOK;
        ::PostMessageW(window, WM_COMMAND, static_cast<WPARAM>(answer), 0);
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}
