// Counts the allocations that the product's DLLs and the C++ library make on this thread, and lets a chosen one fail:
// by null where malloc was called, by std::bad_alloc where operator new was, which calls malloc in its turn.
#pragma once

#include <windows.h>

#include <cstddef>
#include <memory>
#include <vector>

#include "ImportPatch.h"

class MemoryFaults {
public:
    // modules: file names of loaded DLLs; the C++ library is watched besides.
    explicit MemoryFaults(const std::vector<const wchar_t*>& modules);
    ~MemoryFaults() { Disarm(); }
    MemoryFaults(const MemoryFaults&) = delete;
    MemoryFaults& operator=(const MemoryFaults&) = delete;

    // Counts from now on; the allocation with that number, from 1, finds no memory. 0 lets all succeed.
    static void Arm(long failing) noexcept;
    static void Disarm() noexcept { s_armed = false; }
    // Goes on counting after Disarm; nothing fails any more.
    static void Resume() noexcept;

    // Since Arm.
    [[nodiscard]] static long Count() noexcept { return s_count; }
    // Blocks allocated and not freed since Arm.
    [[nodiscard]] static long Balance() noexcept { return s_balance; }

    // What a test does in between neither counts nor fails.
    class Pause {
    public:
        Pause() noexcept : m_wasArmed(s_armed) { s_armed = false; }
        ~Pause() { s_armed = m_wasArmed; }
        Pause(const Pause&) = delete;
        Pause& operator=(const Pause&) = delete;

    private:
        bool m_wasArmed;
    };

private:
    static bool Counts() noexcept;
    static bool Fails() noexcept;
    static void* Counted(void* memory) noexcept;
    static void* Malloc(std::size_t size) noexcept;
    static void* Calloc(std::size_t count, std::size_t size) noexcept;
    static void* Realloc(void* memory, std::size_t size) noexcept;
    static void Free(void* memory) noexcept;

    static inline DWORD s_thread = 0;
    static inline bool s_armed = false;
    static inline long s_failing = 0;
    static inline long s_count = 0;
    static inline long s_balance = 0;
    std::vector<std::unique_ptr<kztest::ImportPatch>> m_patches;
};
