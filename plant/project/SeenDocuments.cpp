#include "SeenDocuments.h"

#include "DocumentName.h"
#include "Sealed.h"

namespace plant {

namespace {

// The clocks of files tick slowly: what was written a moment before it was read may be written again in the same tick.
constexpr std::int64_t Unsettled = 2 * 10'000'000;

}  // namespace

SeenDocuments::Seen SeenDocuments::Look(const Path& file, std::optional<std::string>& bytes) const
{
    Seen seen;
    // Before reading, so that a change in between shows as one.
    if (const auto found = m_disk->Find(file)) {
        seen.size = found->size;
        seen.time = found->time;
        seen.settled = m_disk->Now() - found->time > Unsettled;
    }
    bytes = m_disk->Read(file);
    if (bytes)
        seen.hash = HashOf(*bytes);
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
    Seen& seen = m_seen[name];
    seen = {};
    if (bytes)
        seen.hash = HashOf(*bytes);
}

std::optional<std::uint64_t> SeenDocuments::HashSeen(const std::string& name) const
{
    const auto seen = m_seen.find(name);
    return seen == m_seen.end() ? std::nullopt : seen->second.hash;
}

void SeenDocuments::LookAgain(const std::string& name, Seen& seen, ForeignChanges& changed) const
{
    const Path file = FileOf(m_project, name);
    const auto found = m_disk->Find(file);
    if (!found && !seen.hash)
        return;
    if (found && seen.settled && found->size == seen.size && found->time == seen.time)
        return;
    std::optional<std::string> bytes;
    const Seen now = Look(file, bytes);
    if (now.hash == seen.hash)
        seen = now;
    else
        changed[name] = now.hash;
}

bool SeenDocuments::Differs(const std::string& name, const std::optional<std::string>& bytes) const
{
    const auto seen = m_seen.find(name);
    if (seen == m_seen.end())
        return false;
    return bytes ? seen->second.hash != HashOf(*bytes) : seen->second.hash.has_value();
}

ForeignChanges SeenDocuments::Changed()
{
    ForeignChanges changed;
    for (auto& [name, seen] : m_seen)
        LookAgain(name, seen, changed);
    return changed;
}

}  // namespace plant
