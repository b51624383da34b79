#include "MessageCollector.h"

#include "Controls.h"

namespace {

constexpr int MessageTextId = 0xFFFF;
MessageCollector* current = nullptr;

}  // namespace

MessageCollector::MessageCollector(int answer)
    : m_answer(answer), m_hook(::SetWindowsHookExW(WH_CBT, Hook, nullptr, ::GetCurrentThreadId()))
{
    current = this;
}

MessageCollector::~MessageCollector()
{
    current = nullptr;
    ::UnhookWindowsHookEx(m_hook);
}

LRESULT CALLBACK MessageCollector::Hook(int code, WPARAM wParam, LPARAM lParam)
{
    const auto window = reinterpret_cast<HWND>(wParam);
    const bool isBox =
        current && (code == HCBT_ACTIVATE || code == HCBT_DESTROYWND) && ::GetDlgItem(window, MessageTextId);
    if (isBox && code == HCBT_ACTIVATE && current->m_answered != window) {
        current->m_answered = window;
        ::PostMessageW(window, WM_COMMAND, static_cast<WPARAM>(current->m_answer), 0);
    }
    // Read at the end: boxes of some kinds are activated before they have their text.
    if (isBox && code == HCBT_DESTROYWND)
        current->m_texts.push_back(kztest::TextOf(window, MessageTextId));
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}
