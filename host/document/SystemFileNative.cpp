#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <system_error>
#include <unistd.h>

#include "FileStore.h"
#include "KZUtf8.h"
#include "SystemFile.h"

SystemFile SystemFile::OpenToRead(const std::filesystem::path& file) noexcept
{
    return SystemFile(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
}

SystemFile SystemFile::Create(const std::filesystem::path& file, std::filesystem::perms mode) noexcept
{
    return SystemFile(::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, static_cast<mode_t>(mode)));
}

bool SystemFile::NameWasTaken() noexcept
{
    return errno == EEXIST;
}

std::optional<std::size_t> SystemFile::Read(std::span<char> block) noexcept
{
    for (;;) {
        const ssize_t read = ::read(static_cast<int>(m_handle), block.data(), block.size());
        if (read >= 0)
            return static_cast<std::size_t>(read);
        if (errno != EINTR)
            return std::nullopt;
    }
}

bool SystemFile::Write(std::string_view bytes) noexcept
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

bool SystemFile::Close() noexcept
{
    const std::intptr_t handle = std::exchange(m_handle, None);
    return handle == None || ::close(static_cast<int>(handle)) == 0;
}

bool MoveOver(const std::filesystem::path& from, const std::filesystem::path& to) noexcept
{
    return std::rename(from.c_str(), to.c_str()) == 0;
}

std::wstring SystemReason()
{
    if (errno == ENOENT)
        return NoSuchFile;
    return FromUtf8(std::generic_category().message(errno));
}

unsigned long ProcessNumber() noexcept
{
    return static_cast<unsigned long>(::getpid());
}
