#include "FileStore.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "Utf8.h"

namespace {

class FileDescriptor {
public:
    explicit FileDescriptor(int descriptor) noexcept : m_descriptor(descriptor) {}
    ~FileDescriptor() { Close(); }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;

    [[nodiscard]] int Get() const noexcept { return m_descriptor; }
    [[nodiscard]] bool IsOpen() const noexcept { return m_descriptor >= 0; }
    bool Close() noexcept
    {
        const int descriptor = std::exchange(m_descriptor, -1);
        return descriptor < 0 || ::close(descriptor) == 0;
    }

private:
    int m_descriptor;
};

// A file that disappears with this object, unless it has been moved away.
class TemporaryFile {
public:
    explicit TemporaryFile(std::string path) noexcept : m_path(std::move(path)) {}
    ~TemporaryFile()
    {
        if (!m_moved)
            ::unlink(m_path.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    [[nodiscard]] bool MoveOver(const char* target) noexcept
    {
        m_moved = std::rename(m_path.c_str(), target) == 0;
        return m_moved;
    }

private:
    std::string m_path;
    bool m_moved = false;
};

FileOutcome SystemFailure(int error)
{
    if (error == ENOENT)
        return {NoSuchFile};
    std::wstring reason;
    const std::string message = std::generic_category().message(error);
    return DecodeUtf8(message, reason) == message.size() ? FileOutcome{reason} : FileOutcome{L"system error"};
}

bool WriteAll(int file, std::string_view bytes) noexcept
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(file, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(written, 0)));
    }
    return ::fsync(file) == 0;
}

// Creates a file beside the target under a name that no other save uses, in this process or another. Where a process
// was killed while it saved, its file is left, and a later process may have its number: then the next name is free.
int CreateBeside(const std::filesystem::path& file, mode_t mode, std::string& name)
{
    static std::atomic<unsigned> saves = 0;
    const std::string start = file.native() + "." + std::to_string(::getpid()) + "-";
    for (;;) {
        name = start + std::to_string(++saves) + ".tmp";
        const int created = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        if (created >= 0 || errno != EEXIST)
            return created;
    }
}

}  // namespace

FileOutcome ReadWholeFile(const std::filesystem::path& file, std::string& bytes)
{
    struct stat status {};
    if (::stat(file.c_str(), &status) == 0 && S_ISDIR(status.st_mode))
        return {FileIsAFolder};
    const FileDescriptor descriptor(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
    if (!descriptor.IsOpen())
        return SystemFailure(errno);

    bytes.clear();
    std::array<char, 65536> block;
    for (;;) {
        const ssize_t read = ::read(descriptor.Get(), block.data(), block.size());
        if (read == 0)
            return {};
        if (read > 0)
            bytes.append(block.data(), static_cast<std::size_t>(read));
        else if (errno != EINTR)
            return SystemFailure(errno);
    }
}

FileOutcome ReplaceFileSafely(const std::filesystem::path& file, std::string_view bytes)
{
    // rename replaces a read-only file without asking: refused before anything is written.
    struct stat status {};
    const bool exists = ::stat(file.c_str(), &status) == 0;
    if (exists && S_ISDIR(status.st_mode))
        return {FileIsAFolder};
    if (exists && !(status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)))
        return {FileIsReadOnly};

    std::string name;
    const mode_t mode = exists ? status.st_mode & 07777 : 0666;
    FileDescriptor descriptor(CreateBeside(file, mode, name));
    if (!descriptor.IsOpen())
        return SystemFailure(errno);
    TemporaryFile temporary(std::move(name));  // a copy might find no memory and leave the file
    const bool written = WriteAll(descriptor.Get(), bytes);
    const int error = errno;
    if (const bool closed = descriptor.Close(); !written || !closed)
        return SystemFailure(written ? errno : error);
    return temporary.MoveOver(file.c_str()) ? FileOutcome{} : SystemFailure(errno);
}
