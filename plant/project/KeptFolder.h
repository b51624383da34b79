// The folder of an entry of the history while the project is being kept in it.
#pragma once

#include "Disk.h"
#include "HistoryEntry.h"

namespace plant {

class KeptFolder {
public:
    // Makes the folder. The manifest is that of the entry before.
    KeptFolder(Disk& disk, const Path& project, Path folder, const Manifest& before);

    // Keeps a document of the project, unless the history has its content already. Returns nothing when it is gone.
    [[nodiscard]] std::optional<KeptDocument> Keep(const std::string& name, const KZFileEntry& file, bool isReplaced);

private:
    void Store(const std::string& name, const std::string& bytes, bool isReplaced);

    Disk& m_disk;
    const Path& m_project;
    Path m_folder;
    const Manifest& m_before;
    std::int64_t m_start;  // of keeping, in the disk's time
};

}  // namespace plant
