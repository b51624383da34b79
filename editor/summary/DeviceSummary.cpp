#include "DeviceSummary.h"

#include "LimitsSummary.h"
#include "SettingsSummary.h"
#include "UnitsSummary.h"
#include "project/DeviceDocument.h"
#include "text/EditorText.h"

namespace {

void AddDevice(SummaryRows& rows, const KZDriver& driver)
{
    XmlDocument document(L"device");
    if (const KZDocumentResult read = ReadDeviceDocument(driver, document); read)
        AddSettings(rows, *document.Root());
    else
        rows.push_back({EditorText(IDS_SECTION_DEVICE), EditorText(IDS_SUMMARY_UNREADABLE), read.message.c_str()});
}

}  // namespace

SummaryRows DeviceSummary(const XmlDocument& configuration, const KZDriver& driver)
{
    const wchar_t* driverId = driver.DriverId().c_str();
    const XmlDocument::XmlNode* root = configuration.Root();
    SummaryRows rows;
    AddDevice(rows, driver);
    AddUnits(rows, root->NodeV(L"unitSetups/unitSetup?driverId=%s?", driverId));
    AddLimits(rows, root->NodeV(L"viewSetups/viewSetup?driverId=%s?", driverId));
    return rows;
}
