#include "UnitsRecord.h"

#include "ChildOrNew.h"
#include "KZWideChar.h"

namespace zep {
namespace {

constexpr const wchar_t* KiloFactor = L"3";
constexpr const wchar_t* PlainFactor = L"0";

// Reading is not the mirror image of writing: only a factor of exactly "0" is plain, every other text and a missing
// factor are kilo-units.
int ScaleOf(const wchar_t* factor) noexcept
{
    return KZWideChar::Compare(factor, PlainFactor) == 0 ? UnitChoice::Plain : UnitChoice::Kilo;
}

UnitChoice ReadUnit(const XmlDocument::XmlNode& unit)
{
    return {KZWideChar::ToInteger(unit.Value(L"decimals", L"1")), ScaleOf(unit.Value(L"factor", L"1"))};
}

}  // namespace

UnitsRecord::UnitsRecord(XmlDocument& configuration, const KZBasicString& driverId)
    : m_configuration(configuration), m_driverId(driverId),
      m_setup(configuration.Root()->NodeV(L"unitSetups/unitSetup?driverId=%s?", driverId.c_str()))
{
}

UnitChoices UnitsRecord::Read() const
{
    UnitChoices choices;
    if (!m_setup)
        return choices;
    for (std::size_t i = 0; i < PowerUnitCount; ++i)
        if (const XmlDocument::XmlNode* unit = m_setup->NodeV(L"unit?name=%s?", PowerUnitNames[i]))
            choices[i] = ReadUnit(*unit);
    return choices;
}

void UnitsRecord::Write(const UnitChoices& choices)
{
    XmlDocument::XmlNode& setup = m_setup ? *m_setup : NewSetup();
    for (std::size_t i = 0; i < PowerUnitCount; ++i) {
        XmlDocument::XmlNode& unit = ChildOrNew(setup, L"unit", L"name", PowerUnitNames[i]);
        unit.SetValue(L"decimals", choices[i].decimals);
        unit.SetValue(L"factor", choices[i].scale == UnitChoice::Kilo ? KiloFactor : PlainFactor);
    }
    m_configuration.SetDirty(true);
    // Not before it is whole: a write that fails leaves none.
    m_setup = &setup;
}

XmlDocument::XmlNode& UnitsRecord::NewSetup() const
{
    XmlDocument::XmlNode& setups = ChildOrNew(*m_configuration.Root(), L"unitSetups");
    return NewChildWith(setups, L"unitSetup", L"driverId", m_driverId.c_str());
}

}  // namespace zep
