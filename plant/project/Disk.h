// Every file operation of the plant, in one place, so that tests can let each of them fail.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "KZSystemFile.h"

namespace plant {

using Path = std::filesystem::path;

// How coarse the times of files may be, in 100 ns: those of FAT disks are. What was written so shortly before it was
// read may be written again without a later time.
inline constexpr std::int64_t CoarsestTick = 20'000'000;

// A file that nobody else can open until this object is gone, or its process.
class HeldFile {
public:
    virtual ~HeldFile() = default;
    // Every byte.
    [[nodiscard]] virtual std::string Read() = 0;
    // Writes the bytes at a place, counted from the start of the file, to the disk itself.
    virtual void Write(std::uint64_t place, std::string_view bytes) = 0;
    // Takes the file out of its folder at the end instead of leaving it.
    virtual void Remove() noexcept = 0;
};

// What a folder holds, in no order.
class FolderEntries {
public:
    virtual ~FolderEntries() = default;
    // Nothing behind the last. Throws Refusal.
    [[nodiscard]] virtual std::optional<KZFileEntry> Next() = 0;
};

// Every operation throws Refusal, naming the file, the reason and the remedy, when it fails, and then has done
// nothing.
class Disk {
public:
    virtual ~Disk() = default;

    // Every byte of a file, or nothing when there is no such file.
    [[nodiscard]] virtual std::optional<std::string> Read(const Path& file) = 0;
    // What stands at the path, or nothing.
    [[nodiscard]] virtual std::optional<KZFileEntry> Find(const Path& path) = 0;
    // Begins to read a folder; null when there is no such folder.
    [[nodiscard]] virtual std::unique_ptr<FolderEntries> Open(const Path& folder) = 0;
    // All that a folder holds; empty when there is no such folder.
    [[nodiscard]] std::vector<KZFileEntry> List(const Path& folder)
    {
        std::vector<KZFileEntry> entries;
        const std::unique_ptr<FolderEntries> reading = Open(folder);
        for (std::optional<KZFileEntry> entry; reading && (entry = reading->Next());)
            entries.push_back(std::move(*entry));
        return entries;
    }

    // Writes a file that is not there yet, to the disk itself. When it fails, a part may be left.
    virtual void Write(const Path& file, std::string_view bytes) = 0;
    // The same without waiting for the disk: a power failure may take the file. For what is checked before it is used.
    virtual void WriteLoosely(const Path& file, std::string_view bytes) = 0;
    // Moves a file to another name in one step, over the file of that name if there is one.
    virtual void Move(const Path& from, const Path& to) = 0;
    // Gives a file a second name, or a copy of that name where the file system knows no second names.
    virtual void Link(const Path& file, const Path& name) = 0;
    // What is not there needs no removing. A folder must be empty.
    virtual void Remove(const Path& path) = 0;
    // A folder that is there already is left as it is. The folder around it must be there.
    virtual void MakeFolder(const Path& folder) = 0;
    // Nothing when somebody else holds the file, or when an existing file was asked for and there is none.
    [[nodiscard]] virtual std::unique_ptr<HeldFile> Hold(const Path& file, KZHold hold) = 0;

    // The time now in 100 ns since 1970, as files have it.
    [[nodiscard]] virtual std::int64_t Now() noexcept = 0;
};

// The machine's own.
[[nodiscard]] Disk& RealDisk() noexcept;

}  // namespace plant
