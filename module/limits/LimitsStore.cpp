#include "LimitsStore.h"

#include "ChildOrNew.h"
#include "KZNumber.h"
#include "NumericLocale.h"
#include "ParseNumber.h"
#include "StoredNumber.h"

namespace zep {
namespace {

constexpr int AtMostThreeDecimals = -3;

constexpr std::size_t Index(LimitField field) noexcept
{
    return static_cast<std::size_t>(field);
}
constexpr LimitField FieldAt(std::size_t index) noexcept
{
    return static_cast<LimitField>(index);
}

}  // namespace

LimitsStore::LimitsStore(const LimitsTable& table) : m_table(table), m_variables(table.variables.size())
{
    std::array<double, LimitFieldCount> defaults;
    defaults.fill(ParseNumber(table.limitDefault));
    defaults[Index(LimitField::Nominal)] = ParseNumber(table.nominalDefault);
    for (auto& variable : m_variables)
        variable.edited = variable.loaded = defaults;
}

double LimitsStore::Value(LimitCell cell) const noexcept
{
    return m_variables[cell.variable].edited[Index(cell.field)];
}

KZBasicString& LimitsStore::Text(LimitCell cell) noexcept
{
    return m_variables[cell.variable].texts[Index(cell.field)];
}

const KZBasicString& LimitsStore::Text(LimitCell cell) const noexcept
{
    return m_variables[cell.variable].texts[Index(cell.field)];
}

void LimitsStore::ValuesToTexts()
{
    for (std::size_t v = 0; v < m_variables.size(); ++v)
        for (std::size_t f = 0; f < m_table.variables[v].fieldCount; ++f)
            FormatNumber(m_variables[v].texts[f], m_variables[v].edited[f], AtMostThreeDecimals, true);
}

void LimitsStore::TextsToValues()
{
    KZBasicString plain;
    for (std::size_t v = 0; v < m_variables.size(); ++v)
        for (std::size_t f = 0; f < m_table.variables[v].fieldCount; ++f) {
            UnformatNumber(m_variables[v].texts[f], plain);
            m_variables[v].edited[f] = ParseNumber(plain.c_str());
        }
}

void LimitsStore::Load(const XmlDocument::XmlNode& viewSetup)
{
    const DocumentLocale locale;
    for (std::size_t v = 0; v < m_variables.size(); ++v)
        if (const XmlDocument::XmlNode* check = viewSetup.NodeV(L"check?var=%s?", m_table.variables[v].name.data()))
            LoadVariable(v, *check);
}

void LimitsStore::LoadVariable(std::size_t variable, const XmlDocument::XmlNode& check)
{
    for (std::size_t f = 0; f < m_table.variables[variable].fieldCount; ++f) {
        const double value = ParseNumber(check.Value(LimitFieldNames[f], m_table.DefaultOf(FieldAt(f))));
        m_variables[variable].edited[f] = value;
        m_variables[variable].loaded[f] = value;
    }
}

bool LimitsStore::IsModified() noexcept
{
    m_modified = true;
    for (std::size_t v = 0; v < m_variables.size(); ++v)
        if (IsModified(v))
            return true;
    m_modified = false;
    return false;
}

bool LimitsStore::IsModified(std::size_t variable) const noexcept
{
    const auto& values = m_variables[variable];
    for (std::size_t f = 0; f < m_table.variables[variable].fieldCount; ++f)
        if (!(values.edited[f] == values.loaded[f]))
            return true;
    return false;
}

void LimitsStore::Save(XmlDocument::XmlNode& viewSetup) const
{
    if (m_table.saving == LimitSaving::WhenModified && !m_modified)
        return;
    for (std::size_t v = 0; v < m_variables.size(); ++v)
        SaveVariable(v, viewSetup);
}

void LimitsStore::SaveVariable(std::size_t variable, XmlDocument::XmlNode& viewSetup) const
{
    XmlDocument::XmlNode& check = ChildOrNew(viewSetup, L"check", L"var", m_table.variables[variable].name.data());
    for (std::size_t f = 0; f < m_table.variables[variable].fieldCount; ++f)
        check.SetValue(LimitFieldNames[f], StoredNumber(m_variables[variable].edited[f]).Text());
}

XmlDocument::XmlNode& AppendViewSetup(XmlDocument& configuration, const KZBasicString& driverId)
{
    XmlDocument::XmlNode& viewSetups = ChildOrNew(*configuration.Root(), L"viewSetups");
    return NewChildWith(viewSetups, L"viewSetup", L"driverId", driverId.c_str());
}

}  // namespace zep
