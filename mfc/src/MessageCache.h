// Remembers which entry of a class's message maps handles a window message, so that the walk from class to base class
// through all tables happens once. Most messages have no entry, and that is remembered too.
#pragma once

#include <afxcmdt_.h>

#include <array>

// The entry of one table, or null.
const AFX_MSGMAP_ENTRY* FindInTable(const AFX_MSGMAP_ENTRY* entries, UINT message, UINT code, UINT id) noexcept;

class MessageCache {
public:
    // The entry for a window message in the map or its bases, or null.
    const AFX_MSGMAP_ENTRY* Find(const AFX_MSGMAP* map, UINT message) noexcept;

    // Has every thread forget what it remembers, because a library and its tables go away.
    static void ForgetAll() noexcept;

private:
    struct Slot {
        const AFX_MSGMAP* map = nullptr;
        UINT message = 0;
        const AFX_MSGMAP_ENTRY* entry = nullptr;
    };
    static constexpr std::size_t Size = 512;

    std::array<Slot, Size> m_slots{};
    unsigned m_generation = 0;
};
