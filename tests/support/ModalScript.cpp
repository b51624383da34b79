#include "ModalScript.h"

#include <gtest/gtest.h>

#include <exception>

namespace kztest {

namespace {

// A dialog's Cancel ends its modal loop; WM_CLOSE does for windows that have none.
BOOL CALLBACK CloseWindow(HWND window, LPARAM)
{
    if (::IsWindowVisible(window) && ::IsWindowEnabled(window)) {
        const bool hasNoButton = ::GetDlgItem(window, IDNO) && !::GetDlgItem(window, IDCANCEL);
        ::PostMessageW(window, WM_COMMAND, hasNoButton ? IDNO : IDCANCEL, 0);
        ::PostMessageW(window, WM_CLOSE, 0, 0);
    }
    return TRUE;
}

}  // namespace

ModalScript::ModalScript(std::function<void()> script, std::chrono::milliseconds limit)
    : m_uiThread(::GetCurrentThreadId()), m_limit(limit), m_ended(::CreateEventW(nullptr, TRUE, FALSE, nullptr)),
      m_thread([this, script = std::move(script)] { Run(script); })
{
}

ModalScript::~ModalScript()
{
    ::SetEvent(m_ended);
    // The script may be sending messages to windows of this thread; each of its own waits has a limit.
    while (!m_scriptDone)
        static_cast<void>(WaitUntil([this] { return m_scriptDone.load(); }));
    m_thread.join();
    ::CloseHandle(m_ended);
    if (!m_failure.empty())
        ADD_FAILURE() << m_failure;
}

void ModalScript::Run(const std::function<void()>& script)
{
    try {
        script();
        const auto limit = static_cast<DWORD>(m_limit.count());
        if (::WaitForSingleObject(m_ended, limit) == WAIT_OBJECT_0) {
            m_scriptDone = true;
            return;
        }
        m_failure = "the modal loop did not end after the script";
    } catch (const std::exception& error) {
        m_failure = error.what();
    } catch (...) {
        m_failure = "the script threw an exception of an unknown kind";
    }
    CloseWindowsUntilEnd();
    m_scriptDone = true;
}

void ModalScript::CloseWindowsUntilEnd() const
{
    constexpr DWORD RetryInterval = 50;  // milliseconds
    do
        ::EnumThreadWindows(m_uiThread, CloseWindow, 0);
    while (::WaitForSingleObject(m_ended, RetryInterval) != WAIT_OBJECT_0);
}

}  // namespace kztest
