#include "RequiredFiles.h"

#include <filesystem>

#include "DeviceDocument.h"
#include "KZPictures.h"
#include "KZQuorvelantaSetup.h"
#include "resources/EditorIds.h"
#include "text/EditorError.h"
#include "text/EditorText.h"

namespace fs = std::filesystem;

void RequireDeviceDocument(const KZDriver& driver)
{
    const fs::path file = DeviceDocumentFile(driver);
    std::error_code ignored;
    if (!fs::exists(file, ignored))
        throw EditorError(FormatEditorText(IDS_DEVICE_NO_DOCUMENT, file.c_str()));
    XmlDocument document(L"device");
    if (const KZDocumentResult read = ReadDeviceDocument(driver, document); !read)
        throw EditorError(FormatEditorText(IDS_DEVICE_BROKEN_DOCUMENT, read.message.c_str()));
}

void RequirePictures()
{
    const KZBasicString folder = KZQuorvelantaSetup::Get()->getImageFilePath();
    for (const wchar_t* picture : KZPictures) {
        const KZBasicString file = folder + picture;
        std::error_code ignored;
        if (!fs::exists(fs::path(file.c_str()), ignored))
            throw EditorError(FormatEditorText(IDS_PICTURE_MISSING, file.c_str()));
    }
}
