#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "FileStore.h"
#include "KZSystemFile.h"
#include "KZUtf8.h"

KZSystemFile KZSystemFile::OpenToRead(const std::filesystem::path& file) noexcept
{
    return KZSystemFile(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
}

KZSystemFile KZSystemFile::Create(const std::filesystem::path& file, std::filesystem::perms mode) noexcept
{
    return KZSystemFile(::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, static_cast<mode_t>(mode)));
}

bool KZSystemFile::NameWasTaken() noexcept
{
    return errno == EEXIST;
}

KZSystemFile KZSystemFile::Hold(const std::filesystem::path& file, KZHold hold) noexcept
{
    const int create = hold == KZHold::ExistingFile ? 0 : O_CREAT;
    for (;;) {
        KZSystemFile held(::open(file.c_str(), O_RDWR | create | O_CLOEXEC, 0666));
        if (!held.IsOpen())
            return held;
        const int descriptor = static_cast<int>(held.m_handle);
        if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
            const int why = errno;
            held.Close();
            errno = why;
            return held;
        }
        // Who held it before may have taken the name away in between: then this file is nobody's any more.
        struct stat opened;
        struct stat named;
        if (::fstat(descriptor, &opened) == 0 && ::stat(file.c_str(), &named) == 0 && opened.st_ino == named.st_ino)
            return held;
    }
}

void KZSystemFile::RemoveHeld(KZSystemFile file, const std::filesystem::path& name) noexcept
{
    // While it is held, so that nobody finds it without an owner.
    if (file.IsOpen())
        ::unlink(name.c_str());
}

bool KZSystemFile::Seek(std::uint64_t place) noexcept
{
    return ::lseek(static_cast<int>(m_handle), static_cast<off_t>(place), SEEK_SET) >= 0;
}

std::optional<std::size_t> KZSystemFile::Read(std::span<char> block) noexcept
{
    for (;;) {
        const ssize_t read = ::read(static_cast<int>(m_handle), block.data(), block.size());
        if (read >= 0)
            return static_cast<std::size_t>(read);
        if (errno != EINTR)
            return std::nullopt;
    }
}

bool KZSystemFile::Write(std::string_view bytes) noexcept
{
    const int file = static_cast<int>(m_handle);
    while (!bytes.empty()) {
        const ssize_t written = ::write(file, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(written, 0)));
    }
    return ::fsync(file) == 0;
}

bool KZSystemFile::Close() noexcept
{
    const std::intptr_t handle = std::exchange(m_handle, None);
    return handle == None || ::close(static_cast<int>(handle)) == 0;
}

bool KZMoveOver(const std::filesystem::path& from, const std::filesystem::path& to) noexcept
{
    return std::rename(from.c_str(), to.c_str()) == 0;
}

namespace {

KZFileEntry EntryOf(const struct stat& status)
{
    KZFileEntry entry;
    if (S_ISREG(status.st_mode))
        entry.kind = KZFileEntry::Kind::File;
    else if (S_ISDIR(status.st_mode))
        entry.kind = KZFileEntry::Kind::Folder;
    entry.readOnly = (status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0;
    entry.size = static_cast<std::uint64_t>(status.st_size);
    entry.time = status.st_mtim.tv_sec * 10'000'000 + status.st_mtim.tv_nsec / 100;
    return entry;
}

}  // namespace

struct KZFolderReader::Search {
    DIR* folder = nullptr;

    ~Search()
    {
        if (folder)
            ::closedir(folder);
    }
};

KZFolderReader::KZFolderReader(const std::filesystem::path& folder) : m_search(std::make_unique<Search>())
{
    m_search->folder = ::opendir(folder.c_str());
    m_isInOrder = m_search->folder != nullptr;
}

KZFolderReader::~KZFolderReader() = default;

std::optional<KZFileEntry> KZFolderReader::Next()
{
    if (!m_isInOrder)
        return std::nullopt;
    for (errno = 0; const dirent* found = ::readdir(m_search->folder); errno = 0) {
        const std::string_view name = found->d_name;
        struct stat status;
        if (name == "." || name == ".." ||
            ::fstatat(::dirfd(m_search->folder), found->d_name, &status, AT_SYMLINK_NOFOLLOW))
            continue;
        KZFileEntry entry = EntryOf(status);
        entry.name = name;
        return entry;
    }
    m_isInOrder = errno == 0;
    return std::nullopt;
}

std::optional<KZFileEntry> KZFindFile(const std::filesystem::path& path)
{
    struct stat status;
    if (::lstat(path.c_str(), &status) != 0)
        return std::nullopt;
    KZFileEntry entry = EntryOf(status);
    entry.name = path.filename();
    return entry;
}

int KZLastFileError() noexcept
{
    return errno;
}

KZFileFailure KZFileFailureOf(int error) noexcept
{
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return KZFileFailure::Missing;
    case EACCES:
    case EPERM:
    case EROFS:
        return KZFileFailure::Denied;
    case ENOSPC:
    case EDQUOT:
        return KZFileFailure::Full;
    case EWOULDBLOCK:
    case EBUSY:
    case ETXTBSY:
        return KZFileFailure::InUse;
    case ENAMETOOLONG:
        return KZFileFailure::PathTooLong;
    default:
        return KZFileFailure::Other;
    }
}

std::wstring KZFileReason(int error)
{
    if (error == ENOENT)
        return NoSuchFile;
    return FromUtf8(std::generic_category().message(error));
}

unsigned long KZProcessNumber() noexcept
{
    return static_cast<unsigned long>(::getpid());
}

void KZPause(int milliseconds) noexcept
{
    ::usleep(static_cast<useconds_t>(milliseconds) * 1000);
}
