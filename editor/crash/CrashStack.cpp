#include "CrashStack.h"

#include <algorithm>
#include <cstring>
#include <span>
#include <string_view>

namespace {

// The file that an address belongs to, by its place in memory: the loader may be what has crashed. 0 when there is
// none.
std::uintptr_t BaseOf(std::uintptr_t address) noexcept
{
    MEMORY_BASIC_INFORMATION memory{};
    const bool isImage = ::VirtualQuery(reinterpret_cast<const void*>(address), &memory, sizeof memory) != 0 &&
                         memory.Type == MEM_IMAGE && memory.State == MEM_COMMIT;
    return isImage ? reinterpret_cast<std::uintptr_t>(memory.AllocationBase) : 0;
}

void WriteName(CrashText& text, std::uintptr_t base) noexcept
{
    static wchar_t path[1024];
    const DWORD length =
        ::GetModuleFileNameW(reinterpret_cast<HMODULE>(base), path, static_cast<DWORD>(std::size(path)));
    const std::wstring_view whole(path, length);
    text << (whole.empty() ? std::wstring_view(L"-") : whole.substr(whole.find_last_of(L'\\') + 1));
}

void WriteVersion(CrashText& text, std::uintptr_t base) noexcept
{
    const auto library = reinterpret_cast<HMODULE>(base);
    const HRSRC found = ::FindResourceW(library, MAKEINTRESOURCEW(VS_VERSION_INFO), RT_VERSION);
    const HGLOBAL loaded = found ? ::LoadResource(library, found) : nullptr;
    if (!loaded) {
        text << "-";
        return;
    }
    // The numbers stand behind the resource's name, at a multiple of four bytes.
    const std::span numbers(static_cast<const DWORD*>(::LockResource(loaded)),
                            ::SizeofResource(library, found) / sizeof(DWORD));
    const auto info = std::find(numbers.begin(), numbers.end(), DWORD{VS_FFI_SIGNATURE});
    if (numbers.end() - info < 4) {
        text << "-";
        return;
    }
    text.Number(HIWORD(info[2])) << ".";
    text.Number(LOWORD(info[2])) << ".";
    text.Number(HIWORD(info[3])) << ".";
    text.Number(LOWORD(info[3]));
}

// What the linker wrote so that a file and its symbols can be known to belong together.
void WriteBuildId(CrashText& text, std::uintptr_t base) noexcept
{
    constexpr DWORD codeView = 0x53445352;  // "RSDS"
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + static_cast<DWORD>(dos->e_lfanew));
    const IMAGE_DATA_DIRECTORY& directory = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_DEBUG];
    const auto* entry = reinterpret_cast<const IMAGE_DEBUG_DIRECTORY*>(base + directory.VirtualAddress);
    if (directory.Size < sizeof *entry || entry->Type != IMAGE_DEBUG_TYPE_CODEVIEW || entry->SizeOfData < 20 ||
        std::memcmp(reinterpret_cast<const void*>(base + entry->AddressOfRawData), &codeView, sizeof codeView) != 0) {
        text << "-";
        return;
    }
    const auto* id = reinterpret_cast<const unsigned char*>(base + entry->AddressOfRawData) + sizeof codeView;
    for (int place = 0; place < 16; ++place)
        text.Hex(id[place], 2);
}

bool IsReadable(DWORD64 address) noexcept
{
    MEMORY_BASIC_INFORMATION memory{};
    return ::VirtualQuery(reinterpret_cast<const void*>(address), &memory, sizeof memory) != 0 &&
           memory.State == MEM_COMMIT && (memory.Protect & (PAGE_NOACCESS | PAGE_GUARD)) == 0;
}

// Goes to the caller; false at the end of the stack, or where it makes no sense.
bool Ascend(CONTEXT& context) noexcept
{
    const DWORD64 before = context.Rsp;
    if (before % sizeof(DWORD64) != 0 || !IsReadable(before))
        return false;
    DWORD64 base = 0;
    const auto function = ::RtlLookupFunctionEntry(context.Rip, &base, nullptr);
    if (function) {
        void* handlerData = nullptr;
        DWORD64 frame = 0;
        ::RtlVirtualUnwind(UNW_FLAG_NHANDLER, base, context.Rip, function, &context, &handlerData, &frame, nullptr);
    } else {
        // A function that calls nothing, or a call to nowhere: the return address is on top of the stack.
        context.Rip = *reinterpret_cast<const DWORD64*>(before);
        context.Rsp += sizeof(DWORD64);
    }
    return context.Rip != 0 && context.Rsp > before;
}

}  // namespace

CrashStack::CrashStack(CONTEXT& context) noexcept
{
    m_addresses[m_count++] = context.Rip;
    while (m_count < Longest && Ascend(context))
        m_addresses[m_count++] = context.Rip - 1;
}

void CrashStack::WriteTo(CrashText& text) const noexcept
{
    std::array<std::uintptr_t, Longest> bases{};
    for (std::size_t place = 0; place < m_count; ++place) {
        bases[place] = BaseOf(m_addresses[place]);
        const auto end = bases.begin() + static_cast<std::ptrdiff_t>(place);
        if (bases[place] == 0 || std::find(bases.begin(), end, bases[place]) != end)
            continue;
        text << "module ";
        WriteName(text, bases[place]);
        text << " ";
        WriteVersion(text, bases[place]);
        text << " ";
        WriteBuildId(text, bases[place]);
        text << "\r\n";
    }
    for (std::size_t place = 0; place < m_count; ++place) {
        text << "frame ";
        if (bases[place])
            WriteName(text, bases[place]);
        else
            text << "-";
        text << " ";
        text.Hex(m_addresses[place] - bases[place]) << "\r\n";
    }
}
