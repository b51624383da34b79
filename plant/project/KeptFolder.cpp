#include "KeptFolder.h"

#include <algorithm>

#include "DocumentName.h"
#include "Sealed.h"

namespace plant {

// The folder has been made before any document is looked at, and by the clock that the documents' times are from, which
// for a server's disk is not the machine's.
KeptFolder::KeptFolder(Disk& disk, const Path& project, Path folder, const Manifest& before)
    : m_disk(disk), m_project(project), m_folder(std::move(folder)), m_before(before)
{
    m_disk.MakeFolder(m_folder);
    const auto found = m_disk.Find(m_folder);
    m_start = found ? found->time : 0;
}

std::optional<KeptDocument> KeptFolder::Keep(const std::string& name, const KZFileEntry& file, bool isReplaced)
{
    const bool mayChangeUnseen = isReplaced || file.time > m_start - CoarsestTick;
    const std::int64_t time = mayChangeUnseen ? 0 : std::max<std::int64_t>(file.time, 0);

    const auto found = m_before.project.find(name);
    const KeptDocument* const old = found == m_before.project.end() ? nullptr : &found->second;
    if (old && old->size == file.size && old->time == file.time && old->time != 0)
        return KeptDocument{old->size, old->hash, time};

    const std::optional<std::string> bytes = m_disk.Read(FileOf(m_project, name));
    if (!bytes)
        return std::nullopt;
    const KeptDocument document{bytes->size(), HashOf(*bytes), time};
    if (!old || old->size != document.size || old->hash != document.hash)
        Store(name, *bytes, isReplaced);
    return document;
}

void KeptFolder::Store(const std::string& name, const std::string& bytes, bool isReplaced)
{
    const Path copy = FileOf(m_folder, name);
    if (name != MainDocument)
        m_disk.MakeFolder(copy.parent_path());
    if (isReplaced)
        m_disk.Link(FileOf(m_project, name), copy);
    else
        m_disk.WriteLoosely(copy, bytes);
}

}  // namespace plant
