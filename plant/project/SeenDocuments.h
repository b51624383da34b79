// What the project's files were when they were last read or written, so that another program's changes are noticed.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "Disk.h"

namespace plant {

// Documents that another program has changed, with the hash of what they are now; nothing: they are gone.
using ForeignChanges = std::map<std::string, std::optional<std::uint64_t>>;

class SeenDocuments {
public:
    SeenDocuments(Disk& disk, Path project) : m_disk(&disk), m_project(std::move(project)) {}

    // Reads a document and remembers it; nothing when there is none, which is remembered too.
    std::optional<std::string> Read(const std::string& name);
    // This process has written these bytes, or taken the document out.
    void Wrote(const std::string& name, const std::optional<std::string>& bytes);

    // The hash of what was seen; nothing when there was no file or nobody has looked.
    [[nodiscard]] std::optional<std::uint64_t> HashSeen(const std::string& name) const;

    // Whether these bytes, or the lack of any, are something else than what was seen. What nobody has looked at does
    // not differ.
    [[nodiscard]] bool Differs(const std::string& name, const std::optional<std::string>& bytes) const;
    // The documents that have changed, of all that were seen.
    [[nodiscard]] ForeignChanges Changed();

private:
    struct Seen {
        std::optional<std::uint64_t> hash;  // nothing: there was no file
        std::uint64_t size = 0;
        std::int64_t time = 0;
        bool settled = false;  // a later change would show in the time
    };
    [[nodiscard]] Seen Look(const Path& file, std::optional<std::string>& bytes) const;
    void LookAgain(const std::string& name, Seen& seen, ForeignChanges& changed) const;

    Disk* m_disk;
    Path m_project;
    std::map<std::string, Seen> m_seen;
};

}  // namespace plant
