#include "MemoryFaults.h"

#include <cstdlib>

MemoryFaults::MemoryFaults(const std::vector<const wchar_t*>& modules)
{
    s_thread = ::GetCurrentThreadId();
    std::vector<const wchar_t*> watched = modules;
    watched.push_back(L"libstdc++-6.dll");
    for (const wchar_t* name : watched) {
        const HMODULE module = ::GetModuleHandleW(name);
        const auto patch = [&](const char* symbol, void* replacement) {
            m_patches.push_back(std::make_unique<kztest::ImportPatch>(module, symbol, replacement));
        };
        patch("malloc", reinterpret_cast<void*>(&Malloc));
        patch("calloc", reinterpret_cast<void*>(&Calloc));
        patch("realloc", reinterpret_cast<void*>(&Realloc));
        patch("free", reinterpret_cast<void*>(&Free));
    }
}

void MemoryFaults::Arm(long failing) noexcept
{
    s_failing = failing;
    s_count = 0;
    s_balance = 0;
    s_armed = true;
}

void MemoryFaults::Resume() noexcept
{
    s_failing = 0;
    s_armed = true;
}

bool MemoryFaults::Counts() noexcept
{
    return s_armed && ::GetCurrentThreadId() == s_thread;
}

bool MemoryFaults::Fails() noexcept
{
    return Counts() && ++s_count == s_failing;
}

void* MemoryFaults::Counted(void* memory) noexcept
{
    if (memory && Counts())
        ++s_balance;
    return memory;
}

void* MemoryFaults::Malloc(std::size_t size) noexcept
{
    return Fails() ? nullptr : Counted(std::malloc(size));
}

void* MemoryFaults::Calloc(std::size_t count, std::size_t size) noexcept
{
    return Fails() ? nullptr : Counted(std::calloc(count, size));
}

void* MemoryFaults::Realloc(void* memory, std::size_t size) noexcept
{
    if (Fails())
        return nullptr;
    void* const grown = std::realloc(memory, size);
    return memory ? grown : Counted(grown);
}

void MemoryFaults::Free(void* memory) noexcept
{
    if (memory && Counts())
        --s_balance;
    std::free(memory);
}
