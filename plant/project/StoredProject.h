// The documents of a project as its files hold them, for somebody who only reads, also beside a project that is open.
#pragma once

#include <optional>
#include <string>

#include "Disk.h"
#include "DocumentFiles.h"
#include "KZXmlDocument.h"

namespace plant {

// The full path of a project's folder. Throws Refusal when there is no such folder.
[[nodiscard]] Path ExistingFolder(const Path& folder);

// Throws Refusal, naming the file and the place in it, when the bytes are no document with the root that is expected;
// the document is then as it was.
void ParseDocument(XmlDocument& document, const std::string& bytes, const Path& file);

class StoredProject {
public:
    // Waits for a save that is under way. Throws Refusal when the folder is missing, or when a save was interrupted
    // there, which only the next opening completes.
    explicit StoredProject(const Path& folder, Disk& disk = RealDisk());

    [[nodiscard]] const Path& Folder() const noexcept { return m_folder; }

    // Every document that there is.
    [[nodiscard]] DocumentFiles Documents() const { return DocumentFilesIn(m_disk, m_folder); }

    // Reads the main configuration document. Throws Refusal when it is missing or broken.
    void ReadMain(XmlDocument& main) const;

    // A device's document, which may be broken; none when it is missing or empty. Throws Refusal when it cannot be
    // read.
    [[nodiscard]] std::optional<std::string> ReadDevice(const std::string& name) const;

    // Reads a device's document into one with the root element "device". False when it is missing or empty: the
    // document is then as it was. Throws Refusal when it is broken or cannot be read.
    bool ReadDevice(const std::string& name, XmlDocument& document) const;

private:
    Disk& m_disk;
    Path m_folder;
};

}  // namespace plant
