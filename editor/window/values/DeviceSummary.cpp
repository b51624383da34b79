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

bool CommonValues::Work(std::chrono::milliseconds slice)
{
    const auto end = std::chrono::steady_clock::now() + slice;
    while (m_next < m_devices.size()) {
        Add(DeviceSummary(m_project, m_project.Devices()[m_devices[m_next++]]));
        if (std::chrono::steady_clock::now() >= end)
            break;
    }
    return m_next < m_devices.size();
}

// Devices of another type, or whose document cannot be read, have other rows; what is common to all is then little.
void CommonValues::Add(const SummaryRows& rows)
{
    if (m_next == 1) {
        m_rows = rows;
        return;
    }
    // Devices of one type have the same rows in the same order.
    const bool isSameType = rows.size() == m_rows.size();
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        const SummaryRow& mine = m_rows[row];
        const bool isThere = isSameType && rows[row].name == mine.name && rows[row].section == mine.section;
        const SummaryRow* other = isThere ? &rows[row] : FindSetting(rows, mine);
        if (!other)
            m_rows.erase(m_rows.begin() + static_cast<std::ptrdiff_t>(row--));
        else if (other->value != mine.value)
            m_rows[row].value = EditorText(IDS_VALUE_DIFFERENT);
    }
}
