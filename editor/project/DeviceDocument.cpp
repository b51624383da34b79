#include "DeviceDocument.h"

#include "KZBaseDeviceCfg.h"
#include "KZMainCfg.h"

namespace fs = std::filesystem;

namespace {

bool HasContent(const fs::path& file) noexcept
{
    std::error_code ignored;
    const fs::file_status status = fs::status(file, ignored);
    if (!fs::exists(status))
        return false;
    return !fs::is_regular_file(status) || fs::file_size(file, ignored) != 0;
}

}  // namespace

fs::path DeviceDocumentFile(const KZDriver& driver)
{
    const KZBasicString fileName = KZBaseDeviceCfg::DocumentFileName(driver.DriverId());
    return fs::path(KZMainCfg::ProjectFolder().c_str()) / L"devices" / fileName.c_str();
}

KZDocumentResult ReadDeviceDocument(const KZDriver& driver, XmlDocument& document)
{
    const fs::path file = DeviceDocumentFile(driver);
    return HasContent(file) ? document.Load(file) : KZDocumentResult{};
}
