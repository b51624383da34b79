#include "PeFile.h"

#include <windows.h>

#include <cstddef>
#include <fstream>
#include <vector>

#include "KZBasicString.h"

namespace {

template <typename Header>
bool ReadAt(std::ifstream& file, std::streamoff offset, Header& header)
{
    return file.seekg(offset) && file.read(reinterpret_cast<char*>(&header), sizeof header);
}

}  // namespace

std::optional<std::uint16_t> PeMachine(const std::filesystem::path& path)
{
    struct PeStart {
        DWORD signature;
        IMAGE_FILE_HEADER header;
    };
    std::ifstream file(path, std::ios::binary);
    IMAGE_DOS_HEADER dos{};
    if (!ReadAt(file, 0, dos) || dos.e_magic != IMAGE_DOS_SIGNATURE)
        return std::nullopt;
    PeStart pe{};
    if (!ReadAt(file, dos.e_lfanew, pe) || pe.signature != IMAGE_NT_SIGNATURE)
        return std::nullopt;
    return pe.header.Machine;
}

std::wstring FileVersion(const std::filesystem::path& path)
{
    std::vector<std::byte> resource(::GetFileVersionInfoSizeW(path.c_str(), nullptr));
    void* found = nullptr;
    UINT size = 0;
    if (resource.empty() ||
        !::GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(resource.size()), resource.data()) ||
        !::VerQueryValueW(resource.data(), L"\\", &found, &size) || size < sizeof(VS_FIXEDFILEINFO))
        return {};
    const auto* info = static_cast<const VS_FIXEDFILEINFO*>(found);
    return KZBasicString::Format(L"%u.%u.%u.%u", HIWORD(info->dwFileVersionMS), LOWORD(info->dwFileVersionMS),
                                 HIWORD(info->dwFileVersionLS), LOWORD(info->dwFileVersionLS))
        .c_str();
}

std::uint16_t OwnMachine() noexcept
{
    const auto base = reinterpret_cast<const char*>(::GetModuleHandleW(nullptr));
    const auto dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    return reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew)->FileHeader.Machine;
}

std::wstring MachineName(std::uint16_t machine)
{
    switch (machine) {
    case IMAGE_FILE_MACHINE_AMD64:
        return L"x64";
    case IMAGE_FILE_MACHINE_I386:
        return L"x86";
    case IMAGE_FILE_MACHINE_ARM64:
        return L"ARM64";
    default:
        return KZBasicString::Format(L"0x%04X", machine).c_str();
    }
}
