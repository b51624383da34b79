// A disk on which one file can be held, which exists in memory only, and which remembers how it was written.
#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "FaultyDisk.h"

namespace kztest {

struct WrittenPart {
    std::uint64_t place;
    std::string bytes;
};

// What a file is when bytes are written into it; a gap behind its end is filled with zeros, as file systems do.
[[nodiscard]] inline std::string Overwritten(std::string file, std::uint64_t place, std::string_view bytes)
{
    file.resize(std::max<std::size_t>(file.size(), place + bytes.size()));
    return file.replace(place, bytes.size(), bytes);
}

class MemoryDisk : public FaultyDisk {
public:
    MemoryDisk() noexcept : FaultyDisk(plant::RealDisk()) {}

    std::string file;
    std::vector<WrittenPart> writes;

    std::optional<KZFileEntry> Find(const plant::Path&) override { return std::nullopt; }
    // Each time another one, empty.
    std::unique_ptr<plant::HeldFile> Hold(const plant::Path&, KZHold) override
    {
        file.clear();
        writes.clear();
        return std::make_unique<MemoryFile>(*this);
    }

private:
    class MemoryFile : public plant::HeldFile {
    public:
        explicit MemoryFile(MemoryDisk& disk) noexcept : m_disk(disk) {}
        std::string Read() override { return m_disk.file; }
        void Write(std::uint64_t place, std::string_view bytes) override
        {
            m_disk.file = Overwritten(std::move(m_disk.file), place, bytes);
            m_disk.writes.push_back({place, std::string(bytes)});
        }
        void Remove() noexcept override { m_disk.file.clear(); }

    private:
        MemoryDisk& m_disk;
    };
};

}  // namespace kztest
