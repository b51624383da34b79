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

XmlDocument::XmlNode* FindCheck(const XmlDocument::XmlNode& viewSetup, const LimitVariable& variable)
{
    return viewSetup.NodeV(L"%s?%s=%s?", CheckElement, CheckVariable, variable.name.c_str());
}

void SetLimit(XmlDocument::XmlNode& check, LimitField field, double value)
{
    check.SetValue(LimitFieldNames[Index(field)], StoredNumber(value).Text());
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
        if (const XmlDocument::XmlNode* check = FindCheck(viewSetup, m_table.variables[v]))
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
    XmlDocument::XmlNode& check =
        ChildOrNew(viewSetup, CheckElement, CheckVariable, m_table.variables[variable].name.c_str());
    for (std::size_t f = 0; f < m_table.variables[variable].fieldCount; ++f)
        SetLimit(check, FieldAt(f), m_variables[variable].edited[f]);
}

void ChangeLimit(XmlDocument& configuration, const KZBasicString& driverId, const LimitsTable& table, LimitCell cell,
                 double value)
{
    const LimitVariable& variable = table.variables[cell.variable];
    XmlDocument::XmlNode* const found = FindSetup(configuration, ViewSetups, driverId);
    XmlDocument::XmlNode& setup = found ? *found : AppendSetup(configuration, ViewSetups, driverId);
    XmlDocument::XmlNode* check = FindCheck(setup, variable);
    if (!check) {
        check = &NewChildWith(setup, CheckElement, CheckVariable, variable.name.c_str());
        for (std::size_t f = 0; f < variable.fieldCount; ++f)
            SetLimit(*check, FieldAt(f), ParseNumber(table.DefaultOf(FieldAt(f))));
    }
    SetLimit(*check, cell.field, value);
}

}  // namespace zep
