#include <windows.h>

#include <algorithm>
#include <array>

#include "FileStore.h"
#include "SystemFile.h"

namespace {

HANDLE AsHandle(std::intptr_t file) noexcept
{
    return reinterpret_cast<HANDLE>(file);
}

std::intptr_t AsNumber(HANDLE file) noexcept
{
    return reinterpret_cast<std::intptr_t>(file);
}

}  // namespace

SystemFile SystemFile::OpenToRead(const std::filesystem::path& file) noexcept
{
    return SystemFile(AsNumber(::CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr,
                                             OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr)));
}

SystemFile SystemFile::Create(const std::filesystem::path& file, std::filesystem::perms) noexcept
{
    return SystemFile(
        AsNumber(::CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr)));
}

bool SystemFile::NameWasTaken() noexcept
{
    return ::GetLastError() == ERROR_FILE_EXISTS;
}

std::optional<std::size_t> SystemFile::Read(std::span<char> block) noexcept
{
    DWORD read = 0;
    if (!::ReadFile(AsHandle(m_handle), block.data(), static_cast<DWORD>(block.size()), &read, nullptr))
        return std::nullopt;
    return read;
}

bool SystemFile::Write(std::string_view bytes) noexcept
{
    while (!bytes.empty()) {
        constexpr std::size_t most = 1u << 30;
        DWORD written = 0;
        if (!::WriteFile(AsHandle(m_handle), bytes.data(), static_cast<DWORD>(std::min(bytes.size(), most)), &written,
                         nullptr))
            return false;
        bytes.remove_prefix(written);
    }
    return ::FlushFileBuffers(AsHandle(m_handle));
}

bool SystemFile::Close() noexcept
{
    const std::intptr_t handle = std::exchange(m_handle, None);
    return handle == None || ::CloseHandle(AsHandle(handle));
}

bool MoveOver(const std::filesystem::path& from, const std::filesystem::path& to) noexcept
{
    return ::MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
}

std::wstring SystemReason()
{
    const DWORD error = ::GetLastError();
    if (error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND)
        return NoSuchFile;
    std::array<wchar_t, 512> text;
    DWORD length = ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0,
                                    text.data(), static_cast<DWORD>(text.size()), nullptr);
    while (length > 0 && (text[length - 1] <= L' ' || text[length - 1] == L'.'))
        --length;
    return length > 0 ? std::wstring(text.data(), length) : L"Windows error " + std::to_wstring(error);
}

unsigned long ProcessNumber() noexcept
{
    return ::GetCurrentProcessId();
}
