#include "GuiResources.h"

#include <windows.h>

#include <cstddef>

namespace kztest {

namespace {

// Handles of windows and menus are even numbers in this range, with a generation in the upper half.
constexpr ULONG_PTR FirstUserHandle = 0x20;
constexpr ULONG_PTR LastUserHandle = 0xFFEF;

// The process environment block points at the process's table of GDI objects.
constexpr std::size_t GdiTableOffset = 0xF8;
constexpr std::size_t GdiEntrySize = 24;
constexpr std::size_t GdiEntryCount = 0x4000;
constexpr std::size_t GdiTypeOffset = 14;

bool IsOwnWindow(HWND window) noexcept
{
    DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    return process == ::GetCurrentProcessId();
}

int CountGdiObjects() noexcept
{
    using Function = const std::byte*(NTAPI*)();
    const auto currentBlock = reinterpret_cast<Function>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "RtlGetCurrentPeb")));
    const std::byte* block = currentBlock();
    const auto* entry = *reinterpret_cast<const std::byte* const*>(block + GdiTableOffset);
    int count = 0;
    for (std::size_t index = 0; entry && index < GdiEntryCount; ++index, entry += GdiEntrySize)
        count += entry[GdiTypeOffset] != std::byte{} ? 1 : 0;
    return count;
}

}  // namespace

GuiResources CountGuiResources()
{
    GuiResources counts;
    for (ULONG_PTR value = FirstUserHandle; value <= LastUserHandle; value += 2) {
        const auto window = reinterpret_cast<HWND>(value);
        if (::IsWindow(window))
            counts.windows += IsOwnWindow(window) ? 1 : 0;
        else if (::IsMenu(reinterpret_cast<HMENU>(value)))
            ++counts.menus;
    }
    counts.gdiObjects = CountGdiObjects();
    return counts;
}

}  // namespace kztest
