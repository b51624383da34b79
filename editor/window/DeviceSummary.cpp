#include "DeviceSummary.h"

#include "KZMainCfg.h"
#include "KZUtf8.h"
#include "fields/DeviceRecords.h"
#include "project/DocumentName.h"
#include "text/EditorText.h"
#include "text/FieldText.h"
#include "text/PlantMessage.h"

namespace {

using plant::FieldSection;

std::wstring SectionName(FieldSection section)
{
    constexpr unsigned names[] = {IDS_SECTION_DEVICE, IDS_SECTION_UNITS, IDS_SECTION_LIMITS};
    return EditorText(names[static_cast<std::size_t>(section)]);
}

// Why the document cannot be read; nothing when it can.
std::wstring ReadDocument(plant::Project& project, const KZBasicString& driverId, XmlDocument& document)
{
    try {
        project.ReadDeviceToShow(plant::DeviceDocumentName(driverId), document);
        return {};
    } catch (const plant::Refusal& refusal) {
        return PlantMessage(refusal.What());
    }
}

}  // namespace

SummaryRows DeviceSummary(plant::Project& project, const KZDeviceIdentity& device)
{
    const plant::FieldTable* const fields = plant::FieldsOfType(device.typeName.View());
    if (!fields)
        return {{SectionName(FieldSection::Device),
                 EditorText(IDS_COLUMN_MODEL),
                 FormatEditorText(IDS_SUMMARY_NO_FIELDS, device.typeName.c_str()),
                 {}}};

    XmlDocument document(L"device");
    const std::wstring reason = ReadDocument(project, device.driverId, document);
    plant::DeviceRecords records(*fields);
    records.Find(*KZMainCfg::Get(), document.Root(), device.driverId);
    SummaryRows rows;
    if (!reason.empty())
        rows.push_back({SectionName(FieldSection::Device), EditorText(IDS_SUMMARY_UNREADABLE), reason, {}});
    for (const plant::Field& field : *fields)
        if (reason.empty() || field.section != FieldSection::Device)
            rows.push_back({SectionName(field.section), FieldCaption(field),
                            FieldValueText(field, records.Value(field)), FromUtf8(field.unit)});
    return rows;
}
