// What the platforms do each in its own way about files.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "KZHostApi.h"

enum class KZHold {
    ExistingFile,
    File,       // made when there is none
    Temporary,  // the same, and gone when its process is, where the system can do that
};

// An open file, closed at the latest by its end. Where an operation fails, KZLastFileError tells why until the next
// call.
class KZ_API KZSystemFile {
public:
    KZSystemFile() noexcept = default;
    ~KZSystemFile() { Close(); }
    KZSystemFile(KZSystemFile&& other) noexcept : m_handle(std::exchange(other.m_handle, None)) {}
    KZSystemFile& operator=(KZSystemFile&& other) noexcept
    {
        std::swap(m_handle, other.m_handle);
        return *this;
    }

    [[nodiscard]] static KZSystemFile OpenToRead(const std::filesystem::path& file) noexcept;
    // Creates a file to write to. The permissions count where the system has such.
    [[nodiscard]] static KZSystemFile Create(const std::filesystem::path& file, std::filesystem::perms mode) noexcept;
    // Whether the last Create failed because there is a file of that name.
    [[nodiscard]] static bool NameWasTaken() noexcept;
    // Opens a file to read and write, which nobody else can hold until it is closed or its process is gone. Fails with
    // KZFileFailure::InUse while somebody else has it.
    [[nodiscard]] static KZSystemFile Hold(const std::filesystem::path& file, KZHold hold) noexcept;

    [[nodiscard]] bool IsOpen() const noexcept { return m_handle != None; }
    // Returns how many bytes it has read, 0 at the end of the file, nothing on failure.
    [[nodiscard]] std::optional<std::size_t> Read(std::span<char> block) noexcept;
    // Appends all that is left of the file.
    [[nodiscard]] bool ReadToEnd(std::string& bytes);
    // Reads and writes go on from there, in bytes from the start of the file.
    [[nodiscard]] bool Seek(std::uint64_t place) noexcept;
    // Writes all the bytes, to the disk itself.
    [[nodiscard]] bool Write(std::string_view bytes) noexcept;
    bool Close() noexcept;

    // Takes a file that this process holds out of its folder. The name is free when the file is closed.
    static void RemoveHeld(KZSystemFile file, const std::filesystem::path& name) noexcept;

private:
    // A file descriptor or a HANDLE; neither is ever -1.
    static constexpr std::intptr_t None = -1;
    explicit KZSystemFile(std::intptr_t handle) noexcept : m_handle(handle) {}
    std::intptr_t m_handle = None;
};

// Moves a file over another in one step, to the disk itself.
[[nodiscard]] KZ_API bool KZMoveOver(const std::filesystem::path& from, const std::filesystem::path& to) noexcept;

// What a folder holds, or what stands at a path. A link is neither file nor folder, wherever it leads.
struct KZFileEntry {
    enum class Kind { File, Folder, Other };
    std::filesystem::path name;  // without folder
    Kind kind = Kind::Other;
    bool readOnly = false;
    std::uint64_t size = 0;  // of a file, in bytes
    std::int64_t time = 0;   // last written, in 100 ns since 1970
};

// Reads what a folder holds, in no order, one entry after the other, so that somebody with little time can go on later.
class KZ_API KZFolderReader {
public:
    // Throws std::bad_alloc.
    explicit KZFolderReader(const std::filesystem::path& folder);
    ~KZFolderReader();
    KZFolderReader(const KZFolderReader&) = delete;
    KZFolderReader& operator=(const KZFolderReader&) = delete;

    // False when the folder could not be opened, or when the last Next has failed; KZLastFileError tells why.
    [[nodiscard]] bool IsInOrder() const noexcept { return m_isInOrder; }
    // The next entry; nothing behind the last one and on failure. Throws std::bad_alloc.
    [[nodiscard]] std::optional<KZFileEntry> Next();

private:
    struct Search;
    std::unique_ptr<Search> m_search;
    bool m_isInOrder = true;
};

// Returns what stands at the path, or nothing on failure, of which KZFileFailure::Missing is one.
[[nodiscard]] KZ_API std::optional<KZFileEntry> KZFindFile(const std::filesystem::path& path);

// Why file operations fail, as far as somebody can do something about it.
enum class KZFileFailure { Missing, Denied, Full, InUse, PathTooLong, Other };

// The system's number of the last failure in this thread; what std::error_code::value() holds after an operation of
// std::filesystem.
[[nodiscard]] KZ_API int KZLastFileError() noexcept;
[[nodiscard]] KZ_API KZFileFailure KZFileFailureOf(int error) noexcept;
// Why, in a few words.
[[nodiscard]] KZ_API std::wstring KZFileReason(int error);

[[nodiscard]] KZ_API unsigned long KZProcessNumber() noexcept;

// Lets some milliseconds pass.
KZ_API void KZPause(int milliseconds) noexcept;
