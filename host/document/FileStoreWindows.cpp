#include "FileStore.h"

#include <windows.h>

#include <array>
#include <atomic>
#include <utility>

namespace {

class FileHandle {
public:
    explicit FileHandle(HANDLE handle) noexcept : m_handle(handle) {}
    ~FileHandle() { Close(); }
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;

    [[nodiscard]] HANDLE Get() const noexcept { return m_handle; }
    [[nodiscard]] bool IsOpen() const noexcept { return m_handle != INVALID_HANDLE_VALUE; }
    bool Close() noexcept
    {
        const HANDLE handle = std::exchange(m_handle, INVALID_HANDLE_VALUE);
        return handle == INVALID_HANDLE_VALUE || CloseHandle(handle);
    }

private:
    HANDLE m_handle;
};

// A file that disappears with this object, unless it has been moved away.
class TemporaryFile {
public:
    explicit TemporaryFile(std::wstring path) noexcept : m_path(std::move(path)) {}
    ~TemporaryFile()
    {
        if (!m_moved)
            DeleteFileW(m_path.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    [[nodiscard]] bool MoveOver(const wchar_t* target) noexcept
    {
        m_moved = MoveFileExW(m_path.c_str(), target, MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
        return m_moved;
    }

private:
    std::wstring m_path;
    bool m_moved = false;
};

FileOutcome SystemFailure(DWORD error)
{
    if (error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND)
        return {NoSuchFile};
    std::array<wchar_t, 512> text;
    DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0,
                                  text.data(), static_cast<DWORD>(text.size()), nullptr);
    while (length > 0 && (text[length - 1] <= L' ' || text[length - 1] == L'.'))
        --length;
    return {length > 0 ? std::wstring(text.data(), length) : L"Windows error " + std::to_wstring(error)};
}

FileOutcome LastFailure()
{
    return SystemFailure(GetLastError());
}

bool WriteAll(HANDLE file, std::string_view bytes) noexcept
{
    while (!bytes.empty()) {
        constexpr std::size_t most = 1u << 30;
        DWORD written = 0;
        if (!WriteFile(file, bytes.data(), static_cast<DWORD>(std::min(bytes.size(), most)), &written, nullptr))
            return false;
        bytes.remove_prefix(written);
    }
    return FlushFileBuffers(file);
}

// Creates a file beside the target under a name that no other save uses, in this process or another. Where a process
// was killed while it saved, its file is left, and a later process may have its number: then the next name is free.
HANDLE CreateBeside(const std::filesystem::path& file, std::wstring& name)
{
    static std::atomic<unsigned> saves = 0;
    const std::wstring start = file.native() + L"." + std::to_wstring(GetCurrentProcessId()) + L"-";
    for (;;) {
        name = start + std::to_wstring(++saves) + L".tmp";
        const HANDLE created =
            CreateFileW(name.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (created != INVALID_HANDLE_VALUE || GetLastError() != ERROR_FILE_EXISTS)
            return created;
    }
}

}  // namespace

FileOutcome ReadWholeFile(const std::filesystem::path& file, std::string& bytes)
{
    const DWORD attributes = GetFileAttributesW(file.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY))
        return {FileIsAFolder};
    const FileHandle handle(CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr,
                                        OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    if (!handle.IsOpen())
        return LastFailure();

    bytes.clear();
    std::array<char, 65536> block;
    for (;;) {
        DWORD read = 0;
        if (!ReadFile(handle.Get(), block.data(), static_cast<DWORD>(block.size()), &read, nullptr))
            return LastFailure();
        if (read == 0)
            return {};
        bytes.append(block.data(), read);
    }
}

FileOutcome ReplaceFileSafely(const std::filesystem::path& file, std::string_view bytes)
{
    // Moving over a read-only file fails on Windows and succeeds on other file systems: refused before anything is
    // written.
    const DWORD attributes = GetFileAttributesW(file.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY))
        return {FileIsAFolder};
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY))
        return {FileIsReadOnly};

    std::wstring name;
    FileHandle handle(CreateBeside(file, name));
    if (!handle.IsOpen())
        return LastFailure();
    TemporaryFile temporary(std::move(name));  // a copy might find no memory and leave the file
    const bool written = WriteAll(handle.Get(), bytes);
    const DWORD error = GetLastError();
    if (const bool closed = handle.Close(); !written || !closed)
        return SystemFailure(written ? GetLastError() : error);
    return temporary.MoveOver(file.c_str()) ? FileOutcome{} : LastFailure();
}
