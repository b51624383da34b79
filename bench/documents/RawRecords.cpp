#include "RawRecords.h"

#include <cstdlib>
#include <cwchar>
#include <stdexcept>

namespace kzbench {
namespace {

pugi::xml_node FindByValue(pugi::xml_node parent, const wchar_t* entry, const wchar_t* name, const wchar_t* text)
{
    for (pugi::xml_node node = parent.child(entry); node; node = node.next_sibling(entry))
        if (std::wcscmp(node.child_value(name), text) == 0)
            return node;
    return {};
}

int Integer(const wchar_t* text)
{
    return static_cast<int>(std::wcstol(text, nullptr, 10));
}

void SetInteger(pugi::xml_node parent, const wchar_t* name, int value)
{
    wchar_t text[16];
    std::swprintf(text, std::size(text), L"%d", value);
    parent.child(name).text().set(text);
}

}  // namespace

RawDocument::RawDocument(const std::string& utf8)
{
    if (!m_tree.load_buffer(utf8.data(), utf8.size(), pugi::parse_full | pugi::parse_ws_pcdata, pugi::encoding_utf8))
        throw std::runtime_error("the document is malformed");
}

pugi::xml_node FindDriver(pugi::xml_node root, const wchar_t* section, const wchar_t* entry, const wchar_t* driverId)
{
    return FindByValue(root.child(section), entry, L"driverId", driverId);
}

zep::UnitChoices ReadUnits(pugi::xml_node unitSetup)
{
    zep::UnitChoices choices;
    for (std::size_t i = 0; i < zep::PowerUnitCount; ++i) {
        const pugi::xml_node unit = FindByValue(unitSetup, L"unit", L"name", zep::PowerUnitNames[i]);
        const bool plain = std::wcscmp(unit.child_value(L"factor"), L"0") == 0;
        choices[i] = {Integer(unit.child_value(L"decimals")), plain ? zep::UnitChoice::Plain : zep::UnitChoice::Kilo};
    }
    return choices;
}

void WriteUnits(pugi::xml_node unitSetup, const zep::UnitChoices& choices)
{
    for (std::size_t i = 0; i < zep::PowerUnitCount; ++i) {
        pugi::xml_node unit = FindByValue(unitSetup, L"unit", L"name", zep::PowerUnitNames[i]);
        SetInteger(unit, L"decimals", choices[i].decimals);
        unit.child(L"factor").text().set(choices[i].scale == zep::UnitChoice::Kilo ? L"3" : L"0");
    }
}

void ReadLimits(pugi::xml_node viewSetup, const zep::LimitsTable& table, std::span<LimitValues> values)
{
    for (std::size_t v = 0; v < table.variables.size(); ++v) {
        const zep::LimitVariable& variable = table.variables[v];
        const pugi::xml_node check = FindByValue(viewSetup, L"check", L"var", variable.name.data());
        for (std::size_t f = 0; f < variable.fieldCount; ++f)
            values[v][f] = std::wcstod(check.child_value(zep::LimitFieldNames[f]), nullptr);
    }
}

void WriteLimits(pugi::xml_node viewSetup, const zep::LimitsTable& table, double value)
{
    for (const zep::LimitVariable& variable : table.variables) {
        pugi::xml_node check = FindByValue(viewSetup, L"check", L"var", variable.name.data());
        for (std::size_t f = 0; f < variable.fieldCount; ++f) {
            wchar_t text[352];
            std::swprintf(text, std::size(text), L"%f", value);
            check.child(zep::LimitFieldNames[f]).text().set(text);
        }
    }
}

std::size_t ReadInformation(pugi::xml_node root)
{
    std::size_t sum = 0;
    const pugi::xml_node information = root.child(L"information");
    for (const zep::InformationFieldInfo& info : zep::InformationFields) {
        const wchar_t* text = information.child_value(info.name);
        sum += std::wcslen(text);
        if (info.setting)
            sum += static_cast<std::size_t>(Integer(text) & info.mask);
    }
    return sum;
}

void WriteInformation(pugi::xml_node root, const zep::InformationSettings& settings)
{
    const pugi::xml_node information = root.child(L"information");
    for (const zep::InformationFieldInfo& info : zep::InformationFields)
        if (info.written)
            SetInteger(information, info.name, settings.*info.setting);
}

}  // namespace kzbench
