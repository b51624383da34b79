// Whether the project is there and can be read and written to.
#include "DiagnosisParts.h"
#include "KZSystemFile.h"
#include "project/DocumentName.h"
#include "text/EditorText.h"
#include "text/PlantTextIds.h"

namespace fs = std::filesystem;

namespace {

std::wstring Denied(const fs::path& path)
{
    const std::wstring reason = KZFileReason(KZLastFileError());
    return FormatEditorText(IDS_PLANT_FILE_DENIED, plant::Shown(path).c_str(), reason.c_str());
}

// What a folder's rights say is not what a network disk or a virus scanner allows, so it is tried.
std::wstring FaultOfWriting(const fs::path& folder)
{
    const fs::path file = folder / (L"diagnosis " + std::to_wstring(KZProcessNumber()) + L".tmp");
    KZSystemFile trial = KZSystemFile::Hold(file, KZHold::Temporary);
    if (!trial.IsOpen() || !trial.Write("trial"))
        return Denied(folder);
    KZSystemFile::RemoveHeld(std::move(trial), file);
    return {};
}

std::wstring FaultOfDocument(const fs::path& file)
{
    const std::optional<KZFileEntry> entry = KZFindFile(file);
    if (!entry || !KZSystemFile::OpenToRead(file).IsOpen())
        return Denied(file);
    return entry->readOnly ? FormatEditorText(IDS_PLANT_FILE_READ_ONLY, plant::Shown(file).c_str()) : std::wstring();
}

void Add(Diagnosis& diagnosis, std::wstring name, std::wstring fault)
{
    const wchar_t* value = fault.empty() ? L"read and write" : L"-";
    diagnosis.push_back({"project", std::move(name), value, std::move(fault)});
}

}  // namespace

void DiagnoseProject(Diagnosis& diagnosis, const fs::path& folder)
{
    std::error_code ignored;
    const fs::path whole = fs::absolute(folder, ignored).lexically_normal();
    const fs::path main = whole / plant::MainDocument;
    if (!fs::exists(main, ignored)) {
        if (folder == ".")
            return;
        const bool isFolder = fs::is_directory(whole, ignored);
        diagnosis.push_back({"project", plant::Shown(whole), L"-",
                             isFolder ? FormatEditorText(IDS_PLANT_NO_MAIN, plant::Shown(main).c_str())
                                      : FormatEditorText(IDS_PLANT_NO_FOLDER, plant::Shown(whole).c_str())});
        return;
    }
    Add(diagnosis, plant::Shown(whole), FaultOfWriting(whole));
    Add(diagnosis, plant::Shown(main.filename()), FaultOfDocument(main));
    const fs::path devices = whole / plant::DeviceFolder;
    if (fs::exists(devices, ignored))
        Add(diagnosis, plant::Shown(devices.filename()), FaultOfWriting(devices));
}
