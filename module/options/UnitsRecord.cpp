#include "UnitsRecord.h"

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

// Where a set-up has the units of PowerUnitNames. Formatting these paths takes longer than following them.
constexpr std::array<const wchar_t*, PowerUnitCount> UnitPaths{L"unit?name=AP-VA?", L"unit?name=RP?"};

XmlDocument::XmlNode& FindOrMakeUnit(XmlDocument::XmlNode& setup, std::size_t index)
{
    if (XmlDocument::XmlNode* unit = setup.Node(UnitPaths[index]))
        return *unit;
    XmlDocument::XmlNode* unit = setup.NewChild(L"unit", nullptr);
    unit->SetValue(L"name", PowerUnitNames[index]);
    return *unit;
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
        if (const XmlDocument::XmlNode* unit = m_setup->Node(UnitPaths[i]))
            choices[i] = ReadUnit(*unit);
    return choices;
}

void UnitsRecord::Write(const UnitChoices& choices)
{
    XmlDocument::XmlNode& setup = MakeSetup();
    for (std::size_t i = 0; i < PowerUnitCount; ++i) {
        XmlDocument::XmlNode& unit = FindOrMakeUnit(setup, i);
        unit.SetValue(L"decimals", choices[i].decimals);
        unit.SetValue(L"factor", choices[i].scale == UnitChoice::Kilo ? KiloFactor : PlainFactor);
    }
    m_configuration.SetDirty(true);
}

XmlDocument::XmlNode& UnitsRecord::MakeSetup()
{
    if (m_setup)
        return *m_setup;
    XmlDocument::XmlNode* setups = m_configuration.Node(L"unitSetups");
    if (!setups)
        setups = m_configuration.Root()->NewChild(L"unitSetups", nullptr);
    m_setup = setups->NewChild(L"unitSetup", nullptr);
    m_setup->SetValue(L"driverId", m_driverId.c_str());
    return *m_setup;
}

}  // namespace zep
