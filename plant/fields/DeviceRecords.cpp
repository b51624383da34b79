#include "DeviceRecords.h"

#include <algorithm>

#include "FieldValue.h"
#include "InformationRecord.h"
#include "LimitsStore.h"
#include "ZepFields.h"

namespace plant {

namespace {

using Node = XmlDocument::XmlNode;

// The first element of a variable counts, as everywhere in the documents.
void FindChecks(const Node* setup, std::vector<const Node*>& checks)
{
    checks.assign(LimitVariables().size(), nullptr);
    for (const Node* check = setup ? setup->FirstChild(zep::CheckElement) : nullptr; check;
         check = check->NextSibling(zep::CheckElement)) {
        const auto part = FindLimitVariable(check->Value(zep::CheckVariable, L""));
        if (part && !checks[*part])
            checks[*part] = check;
    }
}

}  // namespace

void DeviceRecords::Find(const XmlDocument& main, const Node* device, const KZBasicString& driverId)
{
    m_information = device ? device->Node(zep::InformationElement) : nullptr;
    const Node* const units = zep::FindSetup(main, zep::UnitSetups, driverId);
    for (std::size_t unit = 0; unit < m_units.size(); ++unit)
        m_units[unit] = units ? zep::FindUnit(*units, static_cast<zep::PowerUnit>(unit)) : nullptr;
    FindChecks(zep::FindSetup(main, zep::ViewSetups, driverId), m_checks);
    for (const Field& field : m_table) {
        const Place place = PlaceOf(field);
        const wchar_t* const text = place.element ? place.element->Value(place.name, nullptr) : nullptr;
        m_texts[field.row] = {text ? text : place.otherwise, text != nullptr};
    }
}

DeviceRecords::Place DeviceRecords::PlaceOf(const Field& field) const noexcept
{
    switch (field.section) {
    case FieldSection::Device: {
        const zep::InformationFieldInfo& info = zep::InformationFields[field.part];
        return {m_information, info.name, info.defaultText};
    }
    case FieldSection::Units: {
        const Node* const unit = m_units[field.part];
        if (field.item == static_cast<std::size_t>(UnitItem::Decimals))
            return {unit, zep::DecimalsName, zep::DecimalsDefault};
        // A unit that is missing is plain, one that lacks its factor is not.
        return {unit, zep::FactorName, unit ? zep::FactorDefault : zep::FactorOf(zep::UnitChoice{}.scale)};
    }
    default: {
        const zep::LimitsTable& table = *LimitVariables()[field.part].table;
        return {m_checks[field.part], zep::LimitFieldNames[field.item],
                table.DefaultOf(static_cast<zep::LimitField>(field.item))};
    }
    }
}

void DeviceRecords::AppendValue(std::string& out, const Field& field) const
{
    plant::AppendValue(out, field, Text(field));
}

std::string DeviceRecords::Value(const Field& field) const
{
    std::string value;
    AppendValue(value, field);
    return value;
}

}  // namespace plant
