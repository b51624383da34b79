#include "UnitsRecord.h"

#include "ChildOrNew.h"
#include "KZWideChar.h"

namespace zep {
namespace {

constexpr const wchar_t* KiloFactor = L"3";
constexpr const wchar_t* PlainFactor = L"0";

UnitChoice ReadUnit(const XmlDocument::XmlNode& unit)
{
    return {KZWideChar::ToInteger(unit.Value(DecimalsName, DecimalsDefault)),
            ScaleOf(unit.Value(FactorName, FactorDefault))};
}

XmlDocument::XmlNode& WriteUnit(XmlDocument::XmlNode& setup, PowerUnit name, const UnitChoice& choice)
{
    XmlDocument::XmlNode& unit =
        ChildOrNew(setup, UnitElement, UnitName, PowerUnitNames[static_cast<std::size_t>(name)]);
    unit.SetValue(DecimalsName, choice.decimals);
    unit.SetValue(FactorName, FactorOf(choice.scale));
    return unit;
}

void WriteUnits(XmlDocument::XmlNode& setup, const UnitChoices& choices)
{
    for (std::size_t i = 0; i < PowerUnitCount; ++i)
        WriteUnit(setup, static_cast<PowerUnit>(i), choices[i]);
}

}  // namespace

int ScaleOf(const wchar_t* factor) noexcept
{
    return KZWideChar::Compare(factor, PlainFactor) == 0 ? UnitChoice::Plain : UnitChoice::Kilo;
}

const wchar_t* FactorOf(int scale) noexcept
{
    return scale == UnitChoice::Kilo ? KiloFactor : PlainFactor;
}

XmlDocument::XmlNode* FindUnit(const XmlDocument::XmlNode& setup, PowerUnit unit)
{
    return setup.NodeV(L"%s?%s=%s?", UnitElement, UnitName, PowerUnitNames[static_cast<std::size_t>(unit)]);
}

UnitsRecord::UnitsRecord(XmlDocument& configuration, const KZBasicString& driverId)
    : m_configuration(configuration), m_driverId(driverId), m_setup(FindSetup(configuration, UnitSetups, driverId))
{
}

UnitChoices UnitsRecord::Read() const
{
    UnitChoices choices;
    if (!m_setup)
        return choices;
    for (std::size_t i = 0; i < PowerUnitCount; ++i)
        if (const XmlDocument::XmlNode* unit = FindUnit(*m_setup, static_cast<PowerUnit>(i)))
            choices[i] = ReadUnit(*unit);
    return choices;
}

void ChangeUnit(XmlDocument& configuration, const KZBasicString& driverId, PowerUnit unit, std::optional<int> decimals,
                std::optional<int> scale)
{
    XmlDocument::XmlNode* setup = FindSetup(configuration, UnitSetups, driverId);
    if (!setup)
        WriteUnits(*(setup = &AppendSetup(configuration, UnitSetups, driverId)), {});
    XmlDocument::XmlNode* const found = FindUnit(*setup, unit);
    XmlDocument::XmlNode& changed = found ? *found : WriteUnit(*setup, unit, {});
    if (decimals)
        changed.SetValue(DecimalsName, *decimals);
    if (scale)
        changed.SetValue(FactorName, FactorOf(*scale));
}

void UnitsRecord::Write(const UnitChoices& choices)
{
    XmlDocument::XmlNode& setup = m_setup ? *m_setup : AppendSetup(m_configuration, UnitSetups, m_driverId);
    WriteUnits(setup, choices);
    m_configuration.SetDirty(true);
    // Not before it is whole: a write that fails leaves none.
    m_setup = &setup;
}

}  // namespace zep
