// How many kernel handles this process has open. Wine answers GetProcessHandleCount with a constant, so they are
// counted in the system's own list.
#pragma once

#include <windows.h>

#include <cstddef>
#include <vector>

[[nodiscard]] inline int CountKernelHandles()
{
    struct Entry {
        ULONG process;
        BYTE type;
        BYTE flags;
        USHORT handle;
        void* object;
        ULONG access;
    };
    struct Table {
        ULONG count;
        Entry entries[1];
    };
    constexpr ULONG SystemHandleInformation = 16;
    constexpr LONG TooSmall = static_cast<LONG>(0xC0000004);
    using Query = LONG(NTAPI*)(ULONG, void*, ULONG, ULONG*);
    static const auto query = reinterpret_cast<Query>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "NtQuerySystemInformation")));

    std::vector<std::byte> bytes(1 << 16);
    LONG status = 0;
    while ((status = query(SystemHandleInformation, bytes.data(), static_cast<ULONG>(bytes.size()), nullptr)) ==
           TooSmall)
        bytes.resize(bytes.size() * 2);
    if (status < 0)
        return -1;
    const auto& table = *reinterpret_cast<const Table*>(bytes.data());
    int count = 0;
    for (ULONG index = 0; index < table.count; ++index)
        count += table.entries[index].process == ::GetCurrentProcessId() ? 1 : 0;
    return count;
}
