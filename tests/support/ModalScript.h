// Works a modal dialog from a second thread while the test's own thread is inside its message loop:
//
//     kztest::ModalScript script([] { kztest::Click(kztest::WaitForDialog(), IDOK); });
//     EXPECT_EQ(dialog.DoModal(), IDOK);
//
// An exception out of the script, or a modal loop that has not ended a limit's time after it, fails the test and closes
// every window of the test's thread, so that no test hangs.
#pragma once

#include <windows.h>

#include <atomic>
#include <functional>
#include <string>
#include <thread>

#include "Conditions.h"

namespace kztest {

class ModalScript {
public:
    explicit ModalScript(std::function<void()> script, std::chrono::milliseconds limit = DefaultLimit);
    // Waits for the script, dispatching messages, and reports its failure.
    ~ModalScript();
    ModalScript(const ModalScript&) = delete;
    ModalScript& operator=(const ModalScript&) = delete;

private:
    void Run(const std::function<void()>& script);
    void CloseWindowsUntilEnd() const;

    DWORD m_uiThread;
    std::chrono::milliseconds m_limit;
    HANDLE m_ended;  // the modal loop is left
    std::atomic<bool> m_scriptDone = false;
    std::string m_failure;
    std::thread m_thread;
};

}  // namespace kztest
