#include "FileStore.h"

#include <array>
#include <atomic>

#include "KZSystemFile.h"

namespace fs = std::filesystem;

namespace {

// A new file beside another one. It disappears with this object, unless it has been moved over the other.
class FileBeside {
public:
    // Its name is one that no other save uses, in this process or another. Where a process was killed while it saved,
    // its file is left, and a later process may have its number: then the next name is free.
    FileBeside(const fs::path& other, fs::perms mode)
    {
        static std::atomic<unsigned> saves = 0;
        do {
            m_name = other;
            m_name.concat(".").concat(std::to_string(KZProcessNumber()));
            m_name.concat("-").concat(std::to_string(++saves)).concat(".tmp");
            m_file = KZSystemFile::Create(m_name, mode);
        } while (!m_file.IsOpen() && KZSystemFile::NameWasTaken());
        m_mayStay = !m_file.IsOpen();
    }
    ~FileBeside()
    {
        m_file.Close();
        std::error_code ignored;
        if (!m_mayStay)
            fs::remove(m_name, ignored);
    }
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;

    [[nodiscard]] bool Become(const fs::path& other, std::string_view bytes) noexcept
    {
        m_mayStay = m_file.IsOpen() && m_file.Write(bytes) && m_file.Close() && KZMoveOver(m_name, other);
        return m_mayStay;
    }

private:
    fs::path m_name;
    KZSystemFile m_file;
    bool m_mayStay;
};

}  // namespace

bool KZSystemFile::ReadToEnd(std::string& bytes)
{
    std::array<char, 65536> block;
    for (;;) {
        const std::optional<std::size_t> read = Read(block);
        if (!read || *read == 0)
            return read.has_value();
        bytes.append(block.data(), *read);
    }
}

FileOutcome ReadWholeFile(const fs::path& file, std::string& bytes)
{
    std::error_code ignored;
    if (fs::is_directory(file, ignored))
        return {FileIsAFolder};
    KZSystemFile source = KZSystemFile::OpenToRead(file);
    if (!source.IsOpen())
        return {KZFileReason(KZLastFileError())};
    bytes.clear();
    if (!source.ReadToEnd(bytes))
        return {KZFileReason(KZLastFileError())};
    return {};
}

FileOutcome ReplaceFileSafely(const fs::path& file, std::string_view bytes)
{
    std::error_code ignored;
    const fs::file_status old = fs::status(file, ignored);
    if (fs::is_directory(old))
        return {FileIsAFolder};
    // Some systems replace a read-only file without asking: refused before anything is written.
    constexpr fs::perms writable = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    if (fs::exists(old) && (old.permissions() & writable) == fs::perms::none)
        return {FileIsReadOnly};

    constexpr fs::perms usual = writable | fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read;
    FileBeside replacement(file, fs::exists(old) ? old.permissions() : usual);
    if (!replacement.Become(file, bytes))
        return {KZFileReason(KZLastFileError())};
    return {};
}
