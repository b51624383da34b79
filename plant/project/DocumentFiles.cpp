#include "DocumentFiles.h"

#include "text/Refusal.h"

namespace plant {

namespace {

// The document's name for a file's: they are the same where the system tells capitals from small letters.
std::string DocumentNameOf(std::string fileName)
{
    constexpr std::string_view extension = ".xml";
    if (IsSameName(fileName, MainDocument))
        return std::string(MainDocument);
    if (fileName.size() > extension.size()) {
        const std::size_t stem = fileName.size() - extension.size();
        if (IsSameName(std::string_view(fileName).substr(stem), extension))
            fileName.replace(stem, extension.size(), extension);
    }
    return fileName;
}

}  // namespace

void DocumentReader::Add(std::string name, const KZFileEntry& entry)
{
    if (entry.kind != KZFileEntry::Kind::Folder && IsDocumentName(name))
        m_files.emplace(std::move(name), entry);
}

void DocumentReader::Add(const KZFileEntry& entry)
{
    std::string name = NameOf(entry.name);
    if (m_place == Place::Devices)
        return Add(DeviceDocumentOfFile(DocumentNameOf(std::move(name))), entry);
    if (!IsSameName(name, DeviceFolder))
        return Add(DocumentNameOf(std::move(name)), entry);
    if (entry.kind == KZFileEntry::Kind::Other)
        throw Refusal(IDS_PLANT_NOT_A_FOLDER, {Shown(m_folder / entry.name)});
    m_hasDevices = entry.kind == KZFileEntry::Kind::Folder;
}

bool DocumentReader::ReadNext()
{
    if (m_place == Place::Before) {
        m_entries = m_disk.Open(m_folder);
        m_place = Place::Project;
    }
    std::optional<KZFileEntry> entry = m_entries ? m_entries->Next() : std::nullopt;
    if (!entry && m_place == Place::Project && m_hasDevices) {
        m_entries = m_disk.Open(m_folder / DeviceFolder);
        m_place = Place::Devices;
        entry = m_entries ? m_entries->Next() : std::nullopt;
    }
    if (entry)
        Add(*entry);
    else
        m_entries.reset();
    return entry.has_value();
}

DocumentFiles DocumentFilesIn(Disk& disk, const Path& folder)
{
    DocumentReader reader(disk, folder);
    while (reader.ReadNext()) {
    }
    return reader.Take();
}

}  // namespace plant
