#include "DeviceSummary.h"

#include <algorithm>

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

// The row of the same setting; null when there is none.
const SummaryRow* FindSetting(const SummaryRows& rows, const SummaryRow& wanted)
{
    const auto found = std::find_if(rows.begin(), rows.end(), [&wanted](const SummaryRow& row) {
        return row.section == wanted.section && row.name == wanted.name;
    });
    return found == rows.end() ? nullptr : &*found;
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

// Devices of another type, or whose document cannot be read, have other rows; what is common to all is then little.
SummaryRows DeviceSummary(plant::Project& project, std::span<const KZDeviceIdentity* const> devices)
{
    SummaryRows rows;
    for (const KZDeviceIdentity* const device : devices) {
        const SummaryRows next = DeviceSummary(project, *device);
        if (device == devices.front()) {
            rows = next;
            continue;
        }
        const auto isGone = [&next](const SummaryRow& row) { return !FindSetting(next, row); };
        std::erase_if(rows, isGone);
        for (SummaryRow& row : rows)
            if (FindSetting(next, row)->value != row.value)
                row.value = EditorText(IDS_VALUE_DIFFERENT);
    }
    return rows;
}
