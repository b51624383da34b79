#include "FieldEdit.h"

#include <algorithm>

#include "ChildOrNew.h"
#include "InformationRecord.h"
#include "KZMainCfg.h"
#include "KZUtf8.h"
#include "LimitsRules.h"
#include "ParseNumber.h"
#include "fields/FieldValue.h"
#include "fields/ZepFields.h"
#include "project/DocumentName.h"

namespace plant {

namespace {

bool IsOfDevice(const Field& field) noexcept
{
    return field.section == FieldSection::Device;
}

}  // namespace

void FieldEdit::Add(std::size_t device, std::span<const Assignment> values)
{
    const KZDeviceIdentity& identity = m_project.Devices()[device];
    const FieldTable& table = *FieldsOfType(identity.typeName.View());
    if (!m_records || &m_records->Table() != &table)
        m_records.emplace(table);
    XmlDocument document(L"device");
    if (std::any_of(values.begin(), values.end(), [](const Assignment& value) { return IsOfDevice(*value.field); }))
        m_project.ReadDeviceDocument(DeviceDocumentName(identity.driverId), document);
    m_records->Find(*KZMainCfg::Get(), document.Root(), identity.driverId);

    const std::size_t first = m_changes.size();
    for (std::size_t i = 0; i < values.size(); ++i) {
        const auto same = [&](const Assignment& earlier) { return earlier.field == values[i].field; };
        if (std::any_of(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(i), same))
            Refuse(device, values[i].field->key, {IDS_PLANT_FIELD_TWICE, {}});
        else
            Want(values[i], device);
    }
    JudgeLimits(device, first);
    if (first < m_changes.size())
        m_edits.push_back({device, first, m_changes.size() - first});
}

void FieldEdit::Want(const Assignment& assignment, std::size_t device)
{
    const Field& field = *assignment.field;
    std::string before = m_records->Value(field);
    const bool isSettable = field.isWritable && !before.empty();
    if (assignment.value == before && (isSettable || m_same == Unsettable::MayStay))
        return;
    if (!field.isWritable)
        return Refuse(device, field.key, {IDS_PLANT_FIELD_READ_ONLY, {}});
    double number = 0.0;
    if (auto reason = ReadValue(field, assignment.value, number))
        return Refuse(device, field.key, std::move(*reason));
    std::string after = ValueOfNumber(field, number);
    if (after == before)
        return;
    m_numbers.push_back(number);
    m_changes.push_back({device, &field, std::move(before), std::move(after)});
}

void FieldEdit::JudgeLimits(std::size_t device, std::size_t first)
{
    // Several limits of one variable are judged once.
    std::vector<std::size_t> judged;
    for (std::size_t i = first; i < m_changes.size(); ++i) {
        const Field& field = *m_changes[i].field;
        if (field.section != FieldSection::Limits ||
            std::find(judged.begin(), judged.end(), field.part) != judged.end())
            continue;
        judged.push_back(field.part);
        JudgeVariable(device, field.part, first);
    }
}

void FieldEdit::JudgeVariable(std::size_t device, std::size_t part, std::size_t first)
{
    zep::LimitValues values{};
    std::array<const Field*, zep::LimitFieldCount> fields{};
    for (const Field& field : m_records->Table()) {
        if (field.section != FieldSection::Limits || field.part != part)
            continue;
        fields[field.item] = &field;
        values[field.item] = zep::ParseNumber(m_records->Text(field));
    }
    for (std::size_t i = first; i < m_changes.size(); ++i)
        if (const Field& field = *m_changes[i].field; field.section == FieldSection::Limits && field.part == part)
            values[field.item] = m_numbers[i];
    for (const zep::LimitFault& fault : zep::JudgeLimits(LimitVariables()[part].Variable(), values))
        Refuse(device, fields[static_cast<std::size_t>(fault.field)]->key, {fault.textId, {}});
}

void FieldEdit::Refuse(std::size_t device, const std::string& key, Message reason)
{
    m_findings.push_back({ToUtf8(m_project.Devices()[device].name.View()), key, std::move(reason)});
}

Project::Outcome FieldEdit::Save(const std::string& cause)
{
    bool isMainChanged = false;
    Change documents = ChangeAll(isMainChanged);
    return m_project.SaveTogether(std::move(documents), isMainChanged, cause);
}

void FieldEdit::Keep()
{
    bool isMainChanged = false;
    Change documents = ChangeAll(isMainChanged);
    m_project.KeepUnsaved(std::move(documents), isMainChanged);
}

Change FieldEdit::ChangeAll(bool& isMainChanged)
{
    Change documents;
    for (const DeviceEdit& edit : m_edits)
        ChangeDocument(edit, documents);
    // Last, since nothing but memory can fail here, and then the document takes back all of it.
    for (const DeviceEdit& edit : m_edits)
        isMainChanged = ChangeMain(edit) || isMainChanged;
    return documents;
}

void FieldEdit::ChangeDocument(const DeviceEdit& edit, Change& documents)
{
    XmlDocument document(L"device");
    const std::string name = DeviceDocumentName(m_project.Devices()[edit.device].driverId);
    bool isRead = false;
    for (std::size_t i = edit.first; i < edit.first + edit.count; ++i) {
        const Field& field = *m_changes[i].field;
        if (!IsOfDevice(field))
            continue;
        // Whoever has written the document since it was judged is asked about, not overwritten.
        if (!std::exchange(isRead, true))
            m_project.ReadDeviceToShow(name, document);
        zep::ChildOrNew(*document.Root(), zep::InformationElement)
            .SetValue(zep::InformationFields[field.part].name, static_cast<int>(m_numbers[i]));
    }
    if (isRead)
        documents[name] = document.Serialize();
}

bool FieldEdit::ChangeMain(const DeviceEdit& edit)
{
    XmlDocument& main = *KZMainCfg::Get();
    const KZBasicString& driverId = m_project.Devices()[edit.device].driverId;
    bool isChanged = false;
    for (std::size_t i = edit.first; i < edit.first + edit.count; ++i) {
        const Field& field = *m_changes[i].field;
        if (IsOfDevice(field))
            continue;
        isChanged = true;
        if (field.section == FieldSection::Limits) {
            const LimitVariablePlace& place = LimitVariables()[field.part];
            zep::ChangeLimit(main, driverId, *place.table, {place.index, static_cast<zep::LimitField>(field.item)},
                             m_numbers[i]);
            continue;
        }
        const auto number = static_cast<int>(m_numbers[i]);
        const bool isScale = field.item == static_cast<std::size_t>(UnitItem::Scale);
        zep::ChangeUnit(main, driverId, static_cast<zep::PowerUnit>(field.part),
                        isScale ? std::nullopt : std::optional(number), isScale ? std::optional(number) : std::nullopt);
    }
    return isChanged;
}

}  // namespace plant
