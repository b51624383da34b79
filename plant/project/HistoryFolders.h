// Where the history's entries lie: one folder for each, "history/000012".
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "Disk.h"
#include "HistoryEntry.h"

namespace plant {

// Every operation throws Refusal when the disk fails or when a link or file stands where a folder should.
class HistoryFolders {
public:
    // Not an entry's: what is left of those that were let go of.
    static constexpr int Base = 0;
    static constexpr int LastNumber = 999'999'999;

    HistoryFolders(Disk& disk, const Path& project);

    [[nodiscard]] const Path& Root() const noexcept { return m_folder; }
    [[nodiscard]] Path Of(int number) const;
    [[nodiscard]] Path EntryOf(int number) const;
    // "history/000012/entry", relative to the project.
    [[nodiscard]] static std::string NameOfEntry(int number);
    [[nodiscard]] static bool IsNameOfEntry(std::string_view name);

    struct Found {
        std::vector<int> numbers;              // of all folders, the lowest first
        std::map<int, std::uint64_t> entries;  // those that have a manifest, and its size
    };
    [[nodiscard]] Found Look();

    // An entry's manifest. Refuses one that is damaged, names what is no document or is not the one that belongs there.
    [[nodiscard]] Manifest Read(int number);

    // Takes out what the history has put into a folder, and the folder. What is anybody else's stays.
    void Clear(int number);
    void RemoveIfEmpty(int number);

private:
    [[nodiscard]] std::vector<int> Numbers();

    Disk& m_disk;
    Path m_folder;
};

}  // namespace plant
