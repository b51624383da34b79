#include "MessageBoxes.h"

#include <utility>

#include "Controls.h"

namespace kztest {
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

std::vector<std::wstring> MessageBoxes::Texts() const
{
    std::vector<std::wstring> texts;
    for (const SeenMessage& seen : m_seen)
        texts.push_back(seen.text);
    return texts;
}

LRESULT CALLBACK MessageBoxes::Hook(int code, WPARAM wParam, LPARAM lParam)
{
    const auto window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_DESTROYWND && current && current->m_last == window)
        current->m_last = nullptr;  // the next box may get the same handle
    const HWND text = code == HCBT_ACTIVATE ? ::GetDlgItem(window, MessageTextId) : nullptr;
    if (text && current && current->m_last != window) {
        current->m_last = window;
        const bool asks = ::GetDlgItem(window, IDYES) && ::GetDlgItem(window, IDNO);
        current->m_seen.push_back({TextOf(text), asks});
        const int answer = ::GetDlgItem(window, current->m_answer) ? current->m_answer : IDOK;
        ::PostMessageW(window, WM_COMMAND, static_cast<WPARAM>(answer), 0);
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace kztest
