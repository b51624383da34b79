// What the project's files were when they were last read or written, so that another program's changes are noticed.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "Disk.h"
#include "DocumentName.h"

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
    // It is about to: should that fail half way, finding them later is no surprise.
    void WillWrite(const std::string& name, const std::optional<std::string>& bytes);
    // Somebody who has seen this hash, or no document, hands his work over.
    void Assume(const std::string& name, const std::optional<std::uint64_t>& hash);
    void Forget(const std::string& name) noexcept;
    // Takes over what others have seen: in place of what was seen before, or only where nothing was.
    void Replace(SeenDocuments newer) noexcept;
    void Complete(SeenDocuments others) noexcept;

    // The hash of what was seen; nothing when there was no file or nobody has looked.
    [[nodiscard]] std::optional<std::uint64_t> HashSeen(const std::string& name) const;

    // Whether a document was last seen to be these bytes, or to be missing.
    [[nodiscard]] bool Saw(const std::string& name, const std::optional<std::string>& bytes) const;

    // Whether a document with this hash, or none, is something else than what was seen. Where nobody has looked, every
    // document is.
    [[nodiscard]] bool Differs(const std::string& name, const std::optional<std::uint64_t>& hash) const;
    // The documents that have changed, of all that were seen.
    [[nodiscard]] ForeignChanges Changed();

private:
    struct Seen {
        std::optional<std::uint64_t> hash;  // nothing: there was no file
        std::uint64_t size = 0;
        std::int64_t time = 0;
        bool settled = false;  // a later change would show in the time
        // What a write that was begun would make of it.
        std::optional<std::optional<std::uint64_t>> begun;

        [[nodiscard]] bool Is(const std::optional<std::uint64_t>& other) const
        {
            return hash == other || (begun && *begun == other);
        }
    };
    [[nodiscard]] Seen Look(const Path& file, std::optional<std::string>& bytes) const;
    void LookAgain(const std::string& name, Seen& seen, ForeignChanges& changed) const;

    Disk* m_disk;
    Path m_project;
    std::map<std::string, Seen, NameLess> m_seen;
};

// Nothing for no document.
[[nodiscard]] std::optional<std::uint64_t> DocumentHash(const std::optional<std::string>& bytes) noexcept;

}  // namespace plant
