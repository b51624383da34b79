// The documents that lie in a folder.
#pragma once

#include <map>
#include <string>

#include "Disk.h"
#include "DocumentName.h"

namespace plant {

// By the documents' names. What is no file is a link.
using DocumentFiles = std::map<std::string, KZFileEntry, NameLess>;

// Reads them one after the other, so that somebody with little time can go on later.
class DocumentReader {
public:
    // The disk must outlive this object.
    DocumentReader(Disk& disk, Path folder) : m_disk(disk), m_folder(std::move(folder)) {}

    // Looks at one more entry of the folders. False when there is none. Throws Refusal when a folder cannot be read, or
    // when "devices" is a link, which would lead to somewhere else.
    bool ReadNext();
    // What was found.
    [[nodiscard]] DocumentFiles Take() noexcept { return std::move(m_files); }

private:
    void Add(const KZFileEntry& entry);
    void Add(std::string name, const KZFileEntry& entry);

    enum class Place { Before, Project, Devices };

    Disk& m_disk;
    Path m_folder;
    Place m_place = Place::Before;
    bool m_hasDevices = false;
    std::unique_ptr<FolderEntries> m_entries;  // of the folder that is read
    DocumentFiles m_files;
};

// What has the name of a document in a project's folder, or in one that is laid out like it; empty when there is no
// such folder. Throws Refusal like DocumentReader.
[[nodiscard]] DocumentFiles DocumentFilesIn(Disk& disk, const Path& folder);

}  // namespace plant
