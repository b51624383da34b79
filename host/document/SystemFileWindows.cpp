#include <windows.h>

#include <algorithm>
#include <array>
#include <memory>

#include "FileKind.h"
#include "FileStore.h"
#include "KZSystemFile.h"

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

KZSystemFile KZSystemFile::OpenToRead(const std::filesystem::path& file) noexcept
{
    // Nobody else's work may fail because this program happens to look.
    constexpr DWORD everything = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    return KZSystemFile(AsNumber(::CreateFileW(file.c_str(), GENERIC_READ, everything, nullptr, OPEN_EXISTING,
                                               FILE_FLAG_SEQUENTIAL_SCAN, nullptr)));
}

KZSystemFile KZSystemFile::Create(const std::filesystem::path& file, std::filesystem::perms) noexcept
{
    return KZSystemFile(
        AsNumber(::CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr)));
}

bool KZSystemFile::NameWasTaken() noexcept
{
    return ::GetLastError() == ERROR_FILE_EXISTS;
}

KZSystemFile KZSystemFile::Hold(const std::filesystem::path& file, KZHold hold) noexcept
{
    const DWORD creation = hold == KZHold::ExistingFile ? OPEN_EXISTING : OPEN_ALWAYS;
    const DWORD end = hold == KZHold::Temporary ? FILE_FLAG_DELETE_ON_CLOSE : 0;
    return KZSystemFile(AsNumber(::CreateFileW(file.c_str(), GENERIC_READ | GENERIC_WRITE | DELETE, 0, nullptr,
                                               creation, FILE_ATTRIBUTE_NORMAL | end, nullptr)));
}

void KZSystemFile::RemoveHeld(KZSystemFile file, const std::filesystem::path&) noexcept
{
    FILE_DISPOSITION_INFO disposition{TRUE};
    if (file.IsOpen())
        ::SetFileInformationByHandle(AsHandle(file.m_handle), FileDispositionInfo, &disposition, sizeof disposition);
}

bool KZSystemFile::Seek(std::uint64_t place) noexcept
{
    LARGE_INTEGER distance;
    distance.QuadPart = static_cast<LONGLONG>(place);
    return ::SetFilePointerEx(AsHandle(m_handle), distance, nullptr, FILE_BEGIN);
}

std::optional<std::size_t> KZSystemFile::Read(std::span<char> block) noexcept
{
    DWORD read = 0;
    if (!::ReadFile(AsHandle(m_handle), block.data(), static_cast<DWORD>(block.size()), &read, nullptr))
        return std::nullopt;
    return read;
}

bool KZSystemFile::Write(std::string_view bytes) noexcept
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

bool KZSystemFile::Close() noexcept
{
    const std::intptr_t handle = std::exchange(m_handle, None);
    return handle == None || ::CloseHandle(AsHandle(handle));
}

bool KZMoveOver(const std::filesystem::path& from, const std::filesystem::path& to) noexcept
{
    return ::MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
}

namespace {

// Which reparse point it is, only a search tells. What cannot be found out counts as a link.
DWORD ReparseTagOf(const std::filesystem::path& path) noexcept
{
    WIN32_FIND_DATAW data;
    const HANDLE search = ::FindFirstFileW(path.c_str(), &data);
    if (search == INVALID_HANDLE_VALUE)
        return IO_REPARSE_TAG_SYMLINK;
    ::FindClose(search);
    return data.dwReserved0;
}

// WIN32_FIND_DATAW and WIN32_FILE_ATTRIBUTE_DATA name them alike.
template <class Data>
KZFileEntry EntryOf(const Data& data, DWORD reparseTag)
{
    constexpr std::int64_t From1601To1970 = 116'444'736'000'000'000;
    KZFileEntry entry;
    entry.kind = KindOf(data.dwFileAttributes, reparseTag);
    entry.readOnly = (data.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0;
    entry.size = std::uint64_t{data.nFileSizeHigh} << 32 | data.nFileSizeLow;
    const FILETIME& written = data.ftLastWriteTime;
    entry.time =
        static_cast<std::int64_t>(std::uint64_t{written.dwHighDateTime} << 32 | written.dwLowDateTime) - From1601To1970;
    return entry;
}

}  // namespace

struct KZFolderReader::Search {
    HANDLE handle = INVALID_HANDLE_VALUE;
    WIN32_FIND_DATAW found{};
    bool isFound = true;  // and not given away yet

    ~Search()
    {
        if (handle != INVALID_HANDLE_VALUE)
            ::FindClose(handle);
    }
};

KZFolderReader::KZFolderReader(const std::filesystem::path& folder) : m_search(std::make_unique<Search>())
{
    m_search->handle = ::FindFirstFileExW((folder / L"*").c_str(), FindExInfoBasic, &m_search->found,
                                          FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
    m_isInOrder = m_search->handle != INVALID_HANDLE_VALUE;
}

KZFolderReader::~KZFolderReader() = default;

std::optional<KZFileEntry> KZFolderReader::Next()
{
    while (m_isInOrder &&
           (std::exchange(m_search->isFound, false) || ::FindNextFileW(m_search->handle, &m_search->found))) {
        const WIN32_FIND_DATAW& data = m_search->found;
        const std::wstring_view name = data.cFileName;
        if (name == L"." || name == L"..")
            continue;
        KZFileEntry entry = EntryOf(data, data.dwReserved0);
        entry.name = name;
        return entry;
    }
    m_isInOrder = m_isInOrder && ::GetLastError() == ERROR_NO_MORE_FILES;
    return std::nullopt;
}

std::optional<KZFileEntry> KZFindFile(const std::filesystem::path& path)
{
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!::GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data))
        return std::nullopt;
    const bool isReparsePoint = (data.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    KZFileEntry entry = EntryOf(data, isReparsePoint ? ReparseTagOf(path) : 0);
    entry.name = path.filename();
    return entry;
}

int KZLastFileError() noexcept
{
    return static_cast<int>(::GetLastError());
}

KZFileFailure KZFileFailureOf(int error) noexcept
{
    switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
        return KZFileFailure::Missing;
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
        return KZFileFailure::Denied;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return KZFileFailure::Full;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
        return KZFileFailure::InUse;
    case ERROR_FILENAME_EXCED_RANGE:
        return KZFileFailure::PathTooLong;
    default:
        return KZFileFailure::Other;
    }
}

std::wstring KZFileReason(int systemError)
{
    const auto error = static_cast<DWORD>(systemError);
    if (error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND)
        return NoSuchFile;
    std::array<wchar_t, 512> text;
    DWORD length = ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0,
                                    text.data(), static_cast<DWORD>(text.size()), nullptr);
    while (length > 0 && (text[length - 1] <= L' ' || text[length - 1] == L'.'))
        --length;
    return length > 0 ? std::wstring(text.data(), length) : L"Windows error " + std::to_wstring(error);
}

unsigned long KZProcessNumber() noexcept
{
    return ::GetCurrentProcessId();
}

void KZPause(int milliseconds) noexcept
{
    ::Sleep(static_cast<DWORD>(milliseconds));
}
