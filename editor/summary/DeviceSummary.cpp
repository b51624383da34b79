#include "DeviceSummary.h"

#include "KZMainCfg.h"
#include "LimitsSummary.h"
#include "SettingsSummary.h"
#include "UnitsSummary.h"
#include "project/DocumentName.h"
#include "text/EditorText.h"
#include "text/PlantMessage.h"

namespace {

void AddDevice(SummaryRows& rows, plant::Project& project, const KZBasicString& driverId)
{
    XmlDocument document(L"device");
    try {
        project.ReadDeviceToShow(plant::DeviceDocumentName(driverId), document);
        AddSettings(rows, *document.Root());
    } catch (const plant::Refusal& refusal) {
        rows.push_back(
            {EditorText(IDS_SECTION_DEVICE), EditorText(IDS_SUMMARY_UNREADABLE), PlantMessage(refusal.What())});
    }
}

}  // namespace

SummaryRows DeviceSummary(plant::Project& project, const KZBasicString& driverId)
{
    const XmlDocument::XmlNode* root = KZMainCfg::Get()->Root();
    SummaryRows rows;
    AddDevice(rows, project, driverId);
    AddUnits(rows, root->NodeV(L"unitSetups/unitSetup?driverId=%s?", driverId.c_str()));
    AddLimits(rows, root->NodeV(L"viewSetups/viewSetup?driverId=%s?", driverId.c_str()));
    return rows;
}
