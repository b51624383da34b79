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

void Add(DocumentFiles& files, std::string name, const KZFileEntry& entry)
{
    if (entry.kind != KZFileEntry::Kind::Folder && IsDocumentName(name))
        files.emplace(std::move(name), entry);
}

}  // namespace

DocumentFiles DocumentFilesIn(Disk& disk, const Path& folder)
{
    DocumentFiles files;
    bool hasDevices = false;
    for (const KZFileEntry& entry : disk.List(folder)) {
        std::string name = NameOf(entry.name);
        if (IsSameName(name, DeviceFolder)) {
            if (entry.kind == KZFileEntry::Kind::Other)
                throw Refusal(IDS_PLANT_NOT_A_FOLDER, {Shown(folder / entry.name)});
            hasDevices = entry.kind == KZFileEntry::Kind::Folder;
        } else {
            Add(files, DocumentNameOf(std::move(name)), entry);
        }
    }
    if (hasDevices) {
        for (const KZFileEntry& entry : disk.List(folder / DeviceFolder))
            Add(files, DeviceDocumentOfFile(DocumentNameOf(NameOf(entry.name))), entry);
    }
    return files;
}

}  // namespace plant
