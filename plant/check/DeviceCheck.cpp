#include "DeviceCheck.h"

#include "ChosenCheck.h"
#include "InformationRecord.h"
#include "KZStringIds.h"
#include "KZUtf8.h"
#include "KZWideChar.h"
#include "LimitsRules.h"
#include "StoredText.h"
#include "fields/FieldValue.h"
#include "fields/ZepFields.h"
#include "project/DocumentName.h"

namespace plant {

namespace {

// A number that the list has no item for. Bits beyond a set do no harm: every reader leaves them out.
bool IsBeyondChoices(const Field& field, int number) noexcept
{
    return field.kind == FieldKind::Choice && field.section == FieldSection::Device &&
           static_cast<std::size_t>(number) >= field.choices.size();
}

// Why a stored text that counts as a whole number is none that a dialog would show or accept.
std::optional<Message> JudgeInteger(const Field& field, const wchar_t* text)
{
    if (!*text)
        return Message{KZS_FIELD_EMPTY, {}};
    if (!IsWholeNumber(text))
        return Message{IDS_PLANT_CHECK_NO_WHOLE_NUMBER, {text}};
    const int number = KZWideChar::ToInteger(text);
    if (IsBeyondChoices(field, number))
        return Message{IDS_PLANT_CHECK_NO_CHOICE, {text, FromUtf8(field.values)}};
    // By the rule that a new value is judged by.
    double ignored = 0.0;
    if (field.kind == FieldKind::WholeNumber && field.isWritable)
        return ReadValue(field, std::to_string(number), ignored);
    return std::nullopt;
}

}  // namespace

void DeviceCheck::Check(const KZDeviceIdentity& device, Findings& findings)
{
    const std::string name = ToUtf8(device.name.View());
    const std::string document = DeviceDocumentName(device.driverId);
    const XmlDocument::XmlNode* root = nullptr;
    try {
        root = m_read(document);
    } catch (const Refusal& refusal) {
        findings.push_back({name, document, refusal.What()});
    }
    const FieldTable* const table = FieldsOfType(device.typeName.View());
    if (!table) {
        findings.push_back(
            {name, std::string(MainDocument), {IDS_PLANT_CHECK_UNKNOWN_TYPE, {device.typeName.c_str()}}});
    } else {
        if (!m_records || &m_records->Table() != table)
            m_records.emplace(*table);
        m_records->Find(m_main, root, device.driverId);
        CheckValues(name, findings);
        CheckLimits(name, findings);
    }
    CheckChosenVariables(m_main, device, findings);
}

void DeviceCheck::CheckValues(const std::string& name, Findings& findings) const
{
    for (const Field& field : m_records->Table())
        if (m_records->IsStored(field) && field.kind != FieldKind::Text && field.kind != FieldKind::Decimal)
            if (auto reason = JudgeInteger(field, m_records->Text(field)))
                findings.push_back({name, field.key, std::move(*reason)});
}

void DeviceCheck::CheckLimits(const std::string& name, Findings& findings) const
{
    const FieldTable& table = m_records->Table();
    for (std::size_t row = 0; row < table.size();) {
        if (table[row].section != FieldSection::Limits) {
            ++row;
            continue;
        }
        const zep::LimitVariable& variable = LimitVariables()[table[row].part].Variable();
        zep::LimitValues values{};
        bool isStored = false;
        for (std::size_t item = 0; item < variable.fieldCount; ++item) {
            const Field& field = table[row + item];
            values[item] = StoredDecimal(m_records->Text(field));
            isStored = isStored || m_records->IsStored(field);
        }
        // The defaults of a variable that nobody has set keep all rules.
        if (isStored)
            for (const zep::LimitFault& fault : zep::JudgeLimits(variable, values))
                findings.push_back({name, table[row + static_cast<std::size_t>(fault.field)].key, {fault.textId, {}}});
        row += variable.fieldCount;
    }
}

}  // namespace plant
