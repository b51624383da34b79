// What a project was before each save, so that everything that was ever saved can be brought back.
//
//   history/000012/entry         the manifest of entry 12: every document that there was before save 12, with its hash
//   history/000012/main.xml      the documents whose content the entries before do not have
//   history/000012/devices/…
//   history/000000/…             what entries that were let go of have left to those after them
//
// So the content of a document as of entry N lies in the highest folder up to N that has the document. What the save
// replaces is kept as a second name of its file, since the save leaves it to the history alone; what other programs may
// go on writing to is copied. The manifest is put into place by the save's journal, so an entry exists exactly when its
// save took place; a folder above the last entry is what a save that did not take place has left.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Change.h"
#include "Disk.h"
#include "DocumentFiles.h"
#include "HistoryEntry.h"
#include "HistoryFolders.h"

namespace plant {

struct HistoryLimits {
    std::size_t entries = 100;
    std::uint64_t bytes = 500'000'000;  // in all folders of the history
};

// Every operation is for the owner of the project's lock. All throw Refusal: when the disk fails; when a manifest is
// damaged, names what is no document or is not the one that belongs there; when a link stands where a folder should. No
// operation changes the project's own documents.
class History {
public:
    History(Disk& disk, Path project, HistoryLimits limits = {});

    // Oldest first.
    [[nodiscard]] std::vector<HistoryEntry> Entries();

    // What a save is to put into place, together with its documents.
    struct NewEntry {
        int number;
        std::string name;  // "history/000012/entry", relative to the project
        std::string bytes;
    };
    // Keeps the project as it now is, before the save of a change in which every document differs from the file.
    // Refuses to keep a link. What it leaves when it fails, or when the save does not take place, goes with the next
    // call.
    [[nodiscard]] NewEntry Keep(const std::string& cause, const Change& change);

    // After a save: lets go of the oldest entries beyond the limits, never of the newest. Where it fails, the next call
    // goes on.
    void Prune();

    // The change that brings every document back as it was before the save of that number, and takes out those made
    // since. Refuses when there is no such entry, or when what it kept is not what it was.
    [[nodiscard]] Change Restoring(int number);

private:
    [[nodiscard]] std::uint64_t BytesIn(const HistoryFolders::Found& folders);
    void KeepProject(Manifest& manifest, const Manifest& before, const Change& change);
    [[nodiscard]] std::uint64_t Release(const std::vector<int>& numbers, const Manifest& oldest);
    [[nodiscard]] std::optional<std::string> ReadIfSame(const Path& folder, const DocumentFiles::value_type& document,
                                                        const KeptDocument& kept);
    void AddKept(Change& change, std::vector<std::string> wanted, const Manifest& manifest, std::vector<int> numbers);

    Disk& m_disk;
    Path m_project;
    HistoryFolders m_folders;
    HistoryLimits m_limits;
};

}  // namespace plant
