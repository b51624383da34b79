#include "MessageBoxes.h"

namespace {

constexpr int MessageTextId = 0xFFFF;  // the static of a message box
MessageBoxes* g_current = nullptr;

std::wstring TextOf(HWND window)
{
    wchar_t text[1024];
    return {text, static_cast<std::size_t>(::GetWindowTextW(window, text, static_cast<int>(std::size(text))))};
}

}  // namespace

MessageBoxes::MessageBoxes(int answer)
    : m_answer(answer), m_hook(::SetWindowsHookExW(WH_CBT, Hook, nullptr, ::GetCurrentThreadId()))
{
    g_current = this;
}

MessageBoxes::~MessageBoxes()
{
    g_current = nullptr;
    ::UnhookWindowsHookEx(m_hook);
}

LRESULT CALLBACK MessageBoxes::Hook(int code, WPARAM wParam, LPARAM lParam)
{
    const auto window = reinterpret_cast<HWND>(wParam);
    const HWND text = code == HCBT_ACTIVATE ? ::GetDlgItem(window, MessageTextId) : nullptr;
    if (text && g_current) {
        g_current->m_texts.push_back(TextOf(text));
        ::PostMessageW(window, WM_COMMAND, static_cast<WPARAM>(g_current->m_answer), 0);
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}
