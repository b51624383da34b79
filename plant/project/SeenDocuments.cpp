#include "SeenDocuments.h"

#include "DocumentName.h"
#include "Sealed.h"

namespace plant {

std::optional<std::uint64_t> DocumentHash(const std::optional<std::string>& bytes) noexcept
{
    return bytes ? std::optional(HashOf(*bytes)) : std::nullopt;
}

SeenDocuments::Seen SeenDocuments::Look(const Path& file, std::optional<std::string>& bytes) const
{
    Seen seen;
    // Before reading, so that a change in between shows as one.
    if (const auto found = m_disk->Find(file)) {
        seen.size = found->size;
        seen.time = found->time;
        seen.settled = m_disk->Now() - found->time > CoarsestTick;
    }
    bytes = m_disk->Read(file);
    seen.hash = DocumentHash(bytes);
    return seen;
}

std::optional<std::string> SeenDocuments::Read(const std::string& name)
{
    std::optional<std::string> bytes;
    m_seen[name] = Look(FileOf(m_project, name), bytes);
    return bytes;
}

void SeenDocuments::Wrote(const std::string& name, const std::optional<std::string>& bytes)
{
    Assume(name, DocumentHash(bytes));
}

void SeenDocuments::WillWrite(const std::string& name, const std::optional<std::string>& bytes)
{
    m_seen[name].begun = DocumentHash(bytes);
}

void SeenDocuments::Assume(const std::string& name, const std::optional<std::uint64_t>& hash)
{
    Seen& seen = m_seen[name];
    seen = {};
    seen.hash = hash;
}

void SeenDocuments::Forget(const std::string& name) noexcept
{
    m_seen.erase(name);
}

void SeenDocuments::Replace(SeenDocuments newer) noexcept
{
    while (!newer.m_seen.empty()) {
        const auto inserted = m_seen.insert(newer.m_seen.extract(newer.m_seen.begin()));
        if (!inserted.inserted)
            inserted.position->second = inserted.node.mapped();
    }
}

void SeenDocuments::Complete(SeenDocuments others) noexcept
{
    m_seen.merge(others.m_seen);
}

std::optional<std::uint64_t> SeenDocuments::HashSeen(const std::string& name) const
{
    const auto seen = m_seen.find(name);
    return seen == m_seen.end() ? std::nullopt : seen->second.hash;
}

bool SeenDocuments::Saw(const std::string& name, const std::optional<std::string>& bytes) const
{
    const auto seen = m_seen.find(name);
    return seen != m_seen.end() && seen->second.hash == DocumentHash(bytes);
}

void SeenDocuments::LookAgain(const std::string& name, Seen& seen, ForeignChanges& changed) const
{
    const Path file = FileOf(m_project, name);
    const auto found = m_disk->Find(file);
    if (!found && seen.Is(std::nullopt))
        return;
    if (found && seen.settled && found->size == seen.size && found->time == seen.time)
        return;
    std::optional<std::string> bytes;
    Seen now = Look(file, bytes);
    if (!seen.Is(now.hash)) {
        changed[name] = now.hash;
        return;
    }
    now.begun = seen.begun;
    seen = now;
}

bool SeenDocuments::Differs(const std::string& name, const std::optional<std::uint64_t>& hash) const
{
    const auto seen = m_seen.find(name);
    return seen == m_seen.end() ? hash.has_value() : !seen->second.Is(hash);
}

ForeignChanges SeenDocuments::Changed()
{
    ForeignChanges changed;
    for (auto& [name, seen] : m_seen)
        LookAgain(name, seen, changed);
    return changed;
}

}  // namespace plant
