// Keys that are held down while others are pressed.
#pragma once

#include <windows.h>

#include <algorithm>
#include <initializer_list>
#include <iterator>

namespace kztest {

// For the thread's next messages.
class HeldKeys {
public:
    explicit HeldKeys(std::initializer_list<int> keys)
    {
        ::GetKeyboardState(m_before);
        BYTE held[256];
        std::copy(std::begin(m_before), std::end(m_before), held);
        for (const int key : keys)
            held[key] = 0x80;
        ::SetKeyboardState(held);
    }
    ~HeldKeys() { ::SetKeyboardState(m_before); }
    HeldKeys(const HeldKeys&) = delete;
    HeldKeys& operator=(const HeldKeys&) = delete;

private:
    BYTE m_before[256]{};
};

}  // namespace kztest
