#include "RequiredFiles.h"

#include <filesystem>

#include "KZBaseDeviceCfg.h"
#include "KZMainCfg.h"
#include "KZPictures.h"
#include "KZQuorvelantaSetup.h"
#include "resources/EditorIds.h"
#include "text/EditorError.h"
#include "text/EditorText.h"

namespace fs = std::filesystem;

void RequireDeviceDocument(const KZDriver& driver)
{
    const KZBasicString fileName = KZBaseDeviceCfg::DocumentFileName(driver.DriverId());
    const fs::path file = fs::path(KZMainCfg::ProjectFolder().c_str()) / L"devices" / fileName.c_str();
    std::error_code ignored;
    if (!fs::exists(file, ignored))
        throw EditorError(FormatEditorText(IDS_DEVICE_NO_DOCUMENT, file.c_str()));
    // A file without content is a document of a device that nobody has set up yet.
    if (fs::is_regular_file(file, ignored) && fs::file_size(file, ignored) == 0)
        return;
    XmlDocument document(L"device");
    if (const KZDocumentResult read = document.Load(file); !read)
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
