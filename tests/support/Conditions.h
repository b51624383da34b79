// Waiting for a condition with a limit, in place of sleeping for a guessed time.
#pragma once

#include <chrono>
#include <functional>

namespace kztest {

// Long enough for a machine that compiles beside the tests.
inline constexpr std::chrono::milliseconds DefaultLimit{15000};

// Waits until the condition holds. On a thread that has windows, messages are dispatched meanwhile.
// Returns whether it held within the limit.
[[nodiscard]] bool WaitUntil(const std::function<bool()>& condition, std::chrono::milliseconds limit = DefaultLimit);

// Dispatches the messages that are waiting, those they cause included.
void DispatchPending();

}  // namespace kztest
