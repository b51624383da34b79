#include "MemoryFaults.h"

namespace {

// The C library's own, also where the program that this is linked into is itself one of the watched modules.
template <class Function>
Function* CLibrary(const char* symbol)
{
    static const HMODULE library = ::GetModuleHandleW(L"msvcrt.dll");
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(::GetProcAddress(library, symbol)));
}
void* (*const RealMalloc)(std::size_t) = CLibrary<void*(std::size_t)>("malloc");
void* (*const RealCalloc)(std::size_t, std::size_t) = CLibrary<void*(std::size_t, std::size_t)>("calloc");
void* (*const RealRealloc)(void*, std::size_t) = CLibrary<void*(void*, std::size_t)>("realloc");
void (*const RealFree)(void*) = CLibrary<void(void*)>("free");

}  // namespace

MemoryFaults::MemoryFaults(const std::vector<const wchar_t*>& modules)
{
    s_thread = ::GetCurrentThreadId();
    std::vector<const wchar_t*> watched = modules;
    watched.push_back(L"libstdc++-6.dll");
    for (const wchar_t* name : watched) {
        const HMODULE module = ::GetModuleHandleW(name);
        const auto patch = [&](const char* symbol, void* replacement) {
            try {
                m_patches.push_back(std::make_unique<kztest::ImportPatch>(module, symbol, replacement));
            } catch (const std::runtime_error&) {
                // A module that does not import it does not call it.
            }
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
    return Fails() ? nullptr : Counted(RealMalloc(size));
}

void* MemoryFaults::Calloc(std::size_t count, std::size_t size) noexcept
{
    return Fails() ? nullptr : Counted(RealCalloc(count, size));
}

void* MemoryFaults::Realloc(void* memory, std::size_t size) noexcept
{
    if (Fails())
        return nullptr;
    void* const grown = RealRealloc(memory, size);
    return memory ? grown : Counted(grown);
}

void MemoryFaults::Free(void* memory) noexcept
{
    if (memory && Counts())
        --s_balance;
    RealFree(memory);
}
