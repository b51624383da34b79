#include <chrono>
#include <fstream>

#include "Disk.h"
#include "DocumentName.h"
#include "text/Refusal.h"

namespace plant {

namespace {

namespace fs = std::filesystem;

unsigned TextFor(KZFileFailure failure) noexcept
{
    switch (failure) {
    case KZFileFailure::Missing:
        return IDS_PLANT_FILE_MISSING;
    case KZFileFailure::Denied:
        return IDS_PLANT_FILE_DENIED;
    case KZFileFailure::Full:
        return IDS_PLANT_FILE_FULL;
    case KZFileFailure::InUse:
        return IDS_PLANT_FILE_IN_USE;
    case KZFileFailure::PathTooLong:
        return IDS_PLANT_FILE_LONG_PATH;
    default:
        return IDS_PLANT_FILE_FAILED;
    }
}

[[noreturn]] void Refuse(const Path& file, int error)
{
    throw Refusal(TextFor(KZFileFailureOf(error)), {Shown(file), KZFileReason(error)});
}

// A check of what has just been done to a file.
void Check(bool done, const Path& file)
{
    if (!done)
        Refuse(file, KZLastFileError());
}

void Check(const std::error_code& error, const Path& file)
{
    if (error)
        Refuse(file, error.value());
}

// Most programs on Windows can open no longer paths, and Windows itself says of them that they are not there.
void CheckLength([[maybe_unused]] const Path& file)
{
#ifdef _WIN32
    constexpr std::size_t longestPath = 259;
    if (file.native().size() > longestPath)
        throw Refusal(IDS_PLANT_FILE_LONG_PATH, {Shown(file)});
#endif
}

std::string ReadToEnd(KZSystemFile& open, const Path& file)
{
    std::string bytes;
    std::error_code unknown;  // reading says why
    if (const auto size = fs::file_size(file, unknown); !unknown)
        bytes.reserve(size);
    Check(open.ReadToEnd(bytes), file);
    return bytes;
}

// For everybody, less what the process's mask takes away.
constexpr fs::perms Usual = static_cast<fs::perms>(0666);

class RealHeldFile : public HeldFile {
public:
    RealHeldFile(KZSystemFile file, Path name) noexcept : m_file(std::move(file)), m_name(std::move(name)) {}
    std::string Read() override
    {
        Check(m_file.Seek(0), m_name);
        return ReadToEnd(m_file, m_name);
    }
    void Write(std::uint64_t place, std::string_view bytes) override
    {
        Check(m_file.Seek(place) && m_file.Write(bytes), m_name);
    }
    void Remove() noexcept override { KZSystemFile::RemoveHeld(std::move(m_file), m_name); }

private:
    KZSystemFile m_file;
    Path m_name;
};

class RealFolder : public FolderEntries {
public:
    explicit RealFolder(const Path& folder) : m_reader(folder), m_folder(folder)
    {
        if (m_reader.IsInOrder())
            return;
        const int error = KZLastFileError();
        m_isMissing = KZFileFailureOf(error) == KZFileFailure::Missing;
        if (!m_isMissing)
            Refuse(m_folder, error);
    }
    [[nodiscard]] bool IsMissing() const noexcept { return m_isMissing; }
    std::optional<KZFileEntry> Next() override
    {
        std::optional<KZFileEntry> entry = m_reader.Next();
        Check(m_reader.IsInOrder(), m_folder);
        return entry;
    }

private:
    KZFolderReader m_reader;
    Path m_folder;
    bool m_isMissing = false;
};

class MachineDisk : public Disk {
public:
    std::optional<std::string> Read(const Path& file) override
    {
        KZSystemFile open = KZSystemFile::OpenToRead(file);
        if (!open.IsOpen()) {
            const int error = KZLastFileError();
            if (KZFileFailureOf(error) == KZFileFailure::Missing)
                return std::nullopt;
            Refuse(file, error);
        }
        return ReadToEnd(open, file);
    }

    std::optional<KZFileEntry> Find(const Path& path) override
    {
        std::optional<KZFileEntry> entry = KZFindFile(path);
        if (!entry && KZFileFailureOf(KZLastFileError()) != KZFileFailure::Missing)
            Refuse(path, KZLastFileError());
        return entry;
    }

    std::unique_ptr<FolderEntries> Open(const Path& folder) override
    {
        auto entries = std::make_unique<RealFolder>(folder);
        return entries->IsMissing() ? nullptr : std::move(entries);
    }

    void Write(const Path& file, std::string_view bytes) override
    {
        CheckLength(file);
        KZSystemFile created = KZSystemFile::Create(file, Usual);
        Check(created.IsOpen() && created.Write(bytes) && created.Close(), file);
    }

    void WriteLoosely(const Path& file, std::string_view bytes) override
    {
        CheckLength(file);
        std::ofstream stream(file, std::ios::binary | std::ios::trunc);
        stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        stream.close();
        Check(stream.good(), file);
    }

    void Move(const Path& from, const Path& to) override
    {
        CheckLength(to);
        Check(KZMoveOver(from, to), to);
    }

    void Link(const Path& file, const Path& name) override
    {
        CheckLength(name);
        std::error_code error;
        fs::create_hard_link(file, name, error);
        if (error)
            fs::copy_file(file, name, error);
        Check(error, name);
    }

    void Remove(const Path& path) override
    {
        std::error_code error;
        fs::remove(path, error);
        Check(error, path);
    }

    void MakeFolder(const Path& folder) override
    {
        CheckLength(folder);
        std::error_code error;
        fs::create_directory(folder, error);
        Check(error, folder);
    }

    std::unique_ptr<HeldFile> Hold(const Path& file, KZHold hold) override
    {
        CheckLength(file);
        KZSystemFile held = KZSystemFile::Hold(file, hold);
        if (held.IsOpen())
            return std::make_unique<RealHeldFile>(std::move(held), file);
        const int error = KZLastFileError();
        const KZFileFailure failure = KZFileFailureOf(error);
        if (failure != KZFileFailure::InUse && !(failure == KZFileFailure::Missing && hold == KZHold::ExistingFile))
            Refuse(file, error);
        return nullptr;
    }

    std::int64_t Now() noexcept override
    {
        const auto now = std::chrono::system_clock::now().time_since_epoch();
        return std::chrono::duration_cast<std::chrono::nanoseconds>(now).count() / 100;
    }
};

}  // namespace

Disk& RealDisk() noexcept
{
    static MachineDisk disk;
    return disk;
}

}  // namespace plant
