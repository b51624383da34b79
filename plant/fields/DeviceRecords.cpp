#include "DeviceRecords.h"

#include <cwchar>

#include "FieldValue.h"
#include "InformationRecord.h"
#include "LimitsStore.h"
#include "ZepFields.h"

namespace plant {

namespace {

using Element = XmlDocument::Element;

bool Is(const wchar_t* text, const wchar_t* other) noexcept
{
    return std::wcscmp(text, other) == 0;
}

// The first of a name counts, as everywhere in the documents.
Element FirstNamed(Element parent, const wchar_t* name) noexcept
{
    Element child = parent.FirstChild();
    while (child && !Is(child.Name(), name))
        child = child.NextSibling();
    return child;
}

Element LookAt(const XmlDocument::XmlNode* node) noexcept
{
    return node ? node->Look() : Element();
}

}  // namespace

DeviceRecords::DeviceRecords(const FieldTable& table)
    : m_table(table), m_checks(LimitVariables().size()), m_otherwise(table.size()), m_isFound(LimitVariables().size())
{
    for (const Field& field : table)
        AddRow(field);
}

void DeviceRecords::AddRow(const Field& field)
{
    switch (field.section) {
    case FieldSection::Device: {
        const zep::InformationFieldInfo& info = zep::InformationFields[field.part];
        m_information.push_back({info.name, field.row});
        m_otherwise[field.row].text = info.defaultText;
        break;
    }
    case FieldSection::Units: {
        const bool isDecimals = field.item == static_cast<std::size_t>(UnitItem::Decimals);
        m_units[field.part].push_back({isDecimals ? zep::DecimalsName : zep::FactorName, field.row});
        // A unit that is missing is plain, one that lacks its factor is not.
        m_otherwise[field.row].text = isDecimals ? zep::DecimalsDefault : zep::FactorOf(zep::UnitChoice{}.scale);
        break;
    }
    default:
        m_checks[field.part].push_back({zep::LimitFieldNames[field.item], field.row});
        m_otherwise[field.row].text =
            LimitVariables()[field.part].table->DefaultOf(static_cast<zep::LimitField>(field.item));
    }
}

void DeviceRecords::Find(const XmlDocument& main, const XmlDocument::XmlNode* device, const KZBasicString& driverId)
{
    m_texts = m_otherwise;
    Take(FirstNamed(LookAt(device), zep::InformationElement), m_information);
    TakeUnits(LookAt(zep::FindSetup(main, zep::UnitSetups, driverId)));
    TakeLimits(LookAt(zep::FindSetup(main, zep::ViewSetups, driverId)));
}

// In one pass over the element, of which most children are fields.
void DeviceRecords::Take(Element element, const Record& record)
{
    for (Element value = element.FirstChild(); value; value = value.NextSibling()) {
        const wchar_t* const name = value.Name();
        for (const Named& named : record)
            if (!m_texts[named.row].isStored && Is(name, named.name))
                m_texts[named.row] = {value.Text(), true};
    }
}

void DeviceRecords::TakeUnits(Element setup)
{
    std::array<bool, zep::PowerUnitCount> isFound{};
    for (Element unit = setup.FirstChild(); unit; unit = unit.NextSibling()) {
        const Element name = Is(unit.Name(), zep::UnitElement) ? FirstNamed(unit, zep::UnitName) : Element();
        for (std::size_t i = 0; name && i < m_units.size(); ++i) {
            if (isFound[i] || !Is(name.Text(), zep::PowerUnitNames[i]))
                continue;
            isFound[i] = true;
            for (const Named& value : m_units[i])
                if (Is(value.name, zep::FactorName))
                    m_texts[value.row].text = zep::FactorDefault;
            Take(unit, m_units[i]);
        }
    }
}

void DeviceRecords::TakeLimits(Element setup)
{
    m_isFound.assign(m_isFound.size(), false);
    for (Element check = setup.FirstChild(); check; check = check.NextSibling()) {
        if (!Is(check.Name(), zep::CheckElement))
            continue;
        const auto variable = FindLimitVariable(FirstNamed(check, zep::CheckVariable).Text());
        if (!variable || m_isFound[*variable])
            continue;
        m_isFound[*variable] = true;
        Take(check, m_checks[*variable]);
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
