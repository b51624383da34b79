// What was thrown, by the C++ library or by MFC. MFC throws pointers, which belong to whoever catches them; in real MFC
// running out of memory throws one too.
#pragma once

#include <array>

struct CaughtException {
    bool isOutOfMemory = false;
    std::array<wchar_t, 200> reason{};  // empty when it is not known
};

// Ends the exception that is being handled. To be called in a handler of all exceptions.
CaughtException TakeException() noexcept;
