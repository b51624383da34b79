#include "StoredProject.h"

#include "Commit.h"
#include "DocumentName.h"
#include "text/Refusal.h"

namespace plant {

namespace fs = std::filesystem;

Path ExistingFolder(const Path& folder)
{
    std::error_code error;
    if (!fs::is_directory(folder, error))
        throw Refusal(IDS_PLANT_NO_FOLDER, {Shown(folder)});
    Path absolute = fs::absolute(folder, error).lexically_normal();
    return absolute.has_filename() ? absolute : absolute.parent_path();
}

void ParseDocument(XmlDocument& document, const std::string& bytes, const Path& file)
{
    if (const KZDocumentResult parsed = document.Parse(bytes); !parsed)
        throw Refusal(IDS_PLANT_BROKEN_DOCUMENT, {Shown(file) + L": " + parsed.message.c_str()});
}

StoredProject::StoredProject(const Path& folder, Disk& disk) : m_disk(disk), m_folder(ExistingFolder(folder))
{
    if (!HasJournal(m_disk, m_folder))
        return;
    // A save that is under way ends soon.
    const ProjectLock lock(m_disk, m_folder);
    if (HasJournal(m_disk, m_folder))
        throw Refusal(IDS_PLANT_SAVE_UNFINISHED, {Shown(m_folder)});
}

void StoredProject::ReadMain(XmlDocument& main) const
{
    const Path file = m_folder / MainDocument;
    const std::optional<std::string> bytes = m_disk.Read(file);
    if (!bytes)
        throw Refusal(IDS_PLANT_NO_MAIN, {Shown(file)});
    ParseDocument(main, *bytes, file);
}

std::optional<std::string> StoredProject::ReadDevice(const std::string& name) const
{
    std::optional<std::string> bytes = m_disk.Read(FileOf(m_folder, name));
    if (bytes && bytes->empty())
        bytes.reset();
    return bytes;
}

bool StoredProject::ReadDevice(const std::string& name, XmlDocument& document) const
{
    const std::optional<std::string> bytes = ReadDevice(name);
    if (bytes)
        ParseDocument(document, *bytes, FileOf(m_folder, name));
    return bytes.has_value();
}

}  // namespace plant
