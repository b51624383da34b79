#include "ProjectRules.h"

#include <pugixml.hpp>

#include <cstdlib>
#include <string_view>

namespace {

// A missing limit counts as 1, a missing nominal value as 0.
double Number(const pugi::xml_node& node, const wchar_t* name)
{
    const pugi::xml_node value = node.child(name);
    return value ? std::wcstod(value.child_value(), nullptr) : std::wstring_view(name) == L"nominal" ? 0.0 : 1.0;
}

bool IsWhole(const pugi::xml_node& node, const wchar_t* name, int least, int most)
{
    wchar_t* end = nullptr;
    const wchar_t* const text = node.child_value(name);
    const long value = std::wcstol(text, &end, 10);
    return end != text && *end == L'\0' && value >= least && value <= most;
}

bool IsUnitInOrder(const pugi::xml_node& unit, int fewestDecimals)
{
    const pugi::xml_node factor = unit.child(L"factor");
    const std::wstring power = factor ? factor.child_value() : L"3";
    return (!unit.child(L"decimals") || IsWhole(unit, L"decimals", fewestDecimals, 3)) &&
           (power == L"0" || power == L"3");
}

double Folded(double factor)
{
    return factor < 0 ? factor + 2 : factor;
}

bool IsPowerFactorInOrder(const pugi::xml_node& check)
{
    const double nominal = Number(check, L"nominal");
    const double maxW = Folded(Number(check, L"maxW"));
    const double maxD = Number(check, L"maxD");
    const double minW = Number(check, L"minW");
    const double minD = Folded(Number(check, L"minD"));
    return (nominal == 0 || nominal == 1) && maxD >= -1 && maxD <= 1 && minW >= -1 && minW <= 1 &&
           maxW <= Folded(maxD) && minD <= Folded(minW) && Folded(minW) <= maxW;
}

bool IsCheckInOrder(const pugi::xml_node& check)
{
    const std::wstring variable = check.child_value(L"var");
    if (variable == L"PF")
        return IsPowerFactorInOrder(check);
    const double nominal = Number(check, L"nominal");
    const double maxW = Number(check, L"maxW");
    const double maxD = Number(check, L"maxD");
    const bool isOrdered = maxW > 0 && maxW <= maxD;
    if (!variable.starts_with(L"ARM"))
        return isOrdered && maxD < 100;
    const bool isFundamental = variable.starts_with(L"ARM1A");
    return isOrdered && maxD <= 100 && nominal >= 0 && (isFundamental || nominal < 100);
}

}  // namespace

std::string BrokenRuleOfConfiguration(const std::string& text, int fewestDecimals)
{
    pugi::xml_document document;
    if (!document.load_buffer(text.data(), text.size(), pugi::parse_full, pugi::encoding_utf8))
        return "the main configuration is not well-formed";
    const pugi::xml_node root = document.child(L"configuration");
    for (const pugi::xml_node unit : root.child(L"unitSetups").child(L"unitSetup").children(L"unit"))
        if (!IsUnitInOrder(unit, fewestDecimals))
            return "a unit is out of its ranges";
    const pugi::xml_node viewSetup = root.child(L"viewSetups").child(L"viewSetup");
    if (viewSetup.next_sibling(L"viewSetup"))
        return "a driver has two view setups";
    for (const pugi::xml_node check : viewSetup.children(L"check"))
        if (!IsCheckInOrder(check))
            return "a limit is out of its range";
    return {};
}

std::string BrokenRuleOfDevice(const std::string& text)
{
    pugi::xml_document document;
    if (!document.load_buffer(text.data(), text.size(), pugi::parse_full, pugi::encoding_utf8))
        return "the device's document is not well-formed";
    constexpr int LowestCurrent = -99;  // the edit takes three characters, and the rule has no lower bound
    const pugi::xml_node record = document.child(L"device").child(L"information");
    const bool isInOrder = IsWhole(record, L"minCurrent", LowestCurrent, 200) && IsWhole(record, L"numZEP", 1, 8) &&
                           IsWhole(record, L"mode", 0, 15) && IsWhole(record, L"filters", 0, 4095);
    return isInOrder ? "" : "the device's record is out of its ranges";
}
