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
    const bool isBox =
        current && (code == HCBT_ACTIVATE || code == HCBT_DESTROYWND) && ::GetDlgItem(window, MessageTextId);
    if (isBox && code == HCBT_ACTIVATE)
        current->Answer(window);
    if (isBox && code == HCBT_DESTROYWND)
        current->Remember(window);
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

void MessageBoxes::Answer(HWND box)
{
    if (std::exchange(m_answered, box) == box)
        return;
    const int answer = ::GetDlgItem(box, m_answer) ? m_answer : IDOK;
    ::PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(answer), 0);
}

// At the end: boxes of some kinds are activated before they have their text.
void MessageBoxes::Remember(HWND box)
{
    const bool asks = ::GetDlgItem(box, IDYES) && ::GetDlgItem(box, IDNO);
    m_seen.push_back({TextOf(box, MessageTextId), asks});
    m_answered = nullptr;  // the next box may get the same handle
}

}  // namespace kztest
