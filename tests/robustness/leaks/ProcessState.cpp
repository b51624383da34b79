#include "ProcessState.h"

#include <windows.h>

#include <array>

#include "KernelHandles.h"

namespace {

// Answers for every icon and cursor, without making a copy as the documented functions do.
int CountIcons()
{
    using Function = HCURSOR(WINAPI*)(HCURSOR, DWORD, DWORD, DWORD*, DWORD*);
    static const auto frameOf = reinterpret_cast<Function>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"user32.dll"), "GetCursorFrameInfo")));
    constexpr ULONG_PTR FirstUserHandle = 0x20;
    constexpr ULONG_PTR LastUserHandle = 0xFFEF;
    int count = 0;
    for (ULONG_PTR value = FirstUserHandle; value <= LastUserHandle; value += 2) {
        DWORD rate = 0;
        DWORD steps = 0;
        count += frameOf(reinterpret_cast<HCURSOR>(value), 0, 0, &rate, &steps) ? 1 : 0;
    }
    return count;
}

}  // namespace

long long CountHeapBytes()
{
    std::array<HANDLE, 64> heaps{};
    const DWORD count = ::GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
    long long bytes = 0;
    for (DWORD index = 0; index < count; ++index) {
        PROCESS_HEAP_ENTRY entry{};
        ::HeapLock(heaps[index]);
        while (::HeapWalk(heaps[index], &entry))
            bytes += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0 ? entry.cbData : 0;
        ::HeapUnlock(heaps[index]);
    }
    return bytes;
}

ProcessState CountProcessState()
{
    ProcessState state;
    state.gui = kztest::CountGuiResources();
    state.icons = CountIcons();
    state.kernelHandles = CountKernelHandles();
    return state;
}
