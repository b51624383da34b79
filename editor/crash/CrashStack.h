// The calls that led to a place in the program, and the files that they are in; nothing here allocates.
#pragma once

#include <windows.h>

#include <array>
#include <cstddef>
#include <cstdint>

#include "CrashText.h"

// The innermost call first; of a return address the call before it.
class CrashStack {
public:
    // Walks up from there. The context is consumed.
    explicit CrashStack(CONTEXT& context) noexcept;

    // Two lists, one line each: "module NAME VERSION ID", "frame NAME OFFSET". Names stand without folders, which may
    // hold a user's name; offsets and ids are hexadecimal, "-" stands for what a file does not have.
    void WriteTo(CrashText& text) const noexcept;

private:
    static constexpr std::size_t Longest = 48;
    std::array<std::uintptr_t, Longest> m_addresses{};
    std::size_t m_count = 0;
};
