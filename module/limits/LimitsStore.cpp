#include "LimitsStore.h"

#include <cstdlib>

#include "KZNumber.h"

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

// Not wcstod: MinGW's makes a copy of the text on the heap without looking whether there was memory for it. For a
// number of a usual length strtod takes none.
double Parse(const wchar_t* text) noexcept
{
    std::array<char, 512> copy{};  // of more digits than any double has
    for (std::size_t i = 0; i + 1 < copy.size() && text[i] > L'\0' && text[i] <= L'\x7F'; ++i)
        copy[i] = static_cast<char>(text[i]);
    return std::strtod(copy.data(), nullptr);
}

XmlDocument::XmlNode* FindCheck(const XmlDocument::XmlNode& viewSetup, const LimitVariable& variable)
{
    return viewSetup.NodeV(L"check?var=%s?", variable.name.data());
}

XmlDocument::XmlNode& FindOrMakeCheck(XmlDocument::XmlNode& viewSetup, const LimitVariable& variable)
{
    if (XmlDocument::XmlNode* check = FindCheck(viewSetup, variable))
        return *check;
    XmlDocument::XmlNode* check = viewSetup.NewChild(L"check", nullptr);
    check->SetValue(L"var", variable.name.data());
    return *check;
}

}  // namespace

LimitsStore::LimitsStore(const LimitsTable& table) : m_table(table), m_variables(table.variables.size())
{
    std::array<double, LimitFieldCount> defaults;
    defaults.fill(Parse(table.limitDefault));
    defaults[Index(LimitField::Nominal)] = Parse(table.nominalDefault);
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
            m_variables[v].edited[f] = Parse(plain.c_str());
        }
}

void LimitsStore::Load(const XmlDocument::XmlNode& viewSetup)
{
    for (std::size_t v = 0; v < m_variables.size(); ++v)
        if (const XmlDocument::XmlNode* check = FindCheck(viewSetup, m_table.variables[v]))
            LoadVariable(v, *check);
}

void LimitsStore::LoadVariable(std::size_t variable, const XmlDocument::XmlNode& check)
{
    for (std::size_t f = 0; f < m_table.variables[variable].fieldCount; ++f) {
        const double value = Parse(check.Value(LimitFieldNames[f], m_table.DefaultOf(FieldAt(f))));
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
    XmlDocument::XmlNode& check = FindOrMakeCheck(viewSetup, m_table.variables[variable]);
    for (std::size_t f = 0; f < m_table.variables[variable].fieldCount; ++f)
        check.SetValue(LimitFieldNames[f], KZBasicString::Format(L"%f", m_variables[variable].edited[f]).c_str());
}

XmlDocument::XmlNode& AppendViewSetup(XmlDocument& configuration, const KZBasicString& driverId)
{
    XmlDocument::XmlNode* viewSetups = configuration.Node(L"viewSetups");
    if (!viewSetups)
        viewSetups = configuration.Root()->NewChild(L"viewSetups", nullptr);
    XmlDocument::XmlNode* viewSetup = viewSetups->NewChild(L"viewSetup", nullptr);
    viewSetup->SetValue(L"driverId", driverId.c_str());
    return *viewSetup;
}

}  // namespace zep
