#include "RequiredFiles.h"

#include <filesystem>

#include "KZPictures.h"
#include "KZQuorvelantaSetup.h"
#include "project/DocumentName.h"
#include "resources/EditorIds.h"
#include "text/EditorError.h"
#include "text/EditorText.h"

namespace fs = std::filesystem;

void RequireDeviceDocument(plant::Project& project, const KZBasicString& driverId)
{
    const std::string name = plant::DeviceDocumentName(driverId);
    const fs::path file = plant::FileOf(project.Folder(), name);
    std::error_code ignored;
    if (!fs::exists(file, ignored))
        throw EditorError(FormatEditorText(IDS_DEVICE_NO_DOCUMENT, plant::Shown(file).c_str()));
    XmlDocument document(L"device");
    project.ReadDeviceDocument(name, document);
}

std::optional<std::wstring> MissingPicture()
{
    const KZBasicString folder = KZQuorvelantaSetup::Get()->getImageFilePath();
    for (const wchar_t* picture : KZPictures) {
        const KZBasicString file = folder + picture;
        std::error_code ignored;
        if (!fs::exists(fs::path(file.c_str()), ignored))
            return file.c_str();
    }
    return std::nullopt;
}

void RequirePictures()
{
    if (const std::optional<std::wstring> missing = MissingPicture())
        throw EditorError(FormatEditorText(IDS_PICTURE_MISSING, missing->c_str()));
}
