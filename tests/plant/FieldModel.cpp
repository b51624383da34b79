#include "FieldModel.h"

#include <array>
#include <cstdio>
#include <cstdlib>

namespace kztest {

namespace {

using Names = std::vector<std::string>;

const Names Modes{"harmonics", "reactive", "balance", "neutral"};
const Names Filters{"3", "5", "7", "9", "11", "13", "15", "17", "19", "21", "23", "25"};

bool StartsWith(const std::string& text, const char* start)
{
    return text.rfind(start, 0) == 0;
}

bool EndsWith(const std::string& text, const std::string& end)
{
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

// A "-", then digits, at least one, and so many points at most.
bool IsNumber(const std::string& text, int points)
{
    int digits = 0;
    for (std::size_t i = text.empty() || text[0] != '-' ? 0 : 1; i < text.size(); ++i) {
        if (text[i] == '.' ? points-- == 0 : text[i] < '0' || text[i] > '9')
            return false;
        digits += text[i] != '.';
    }
    return digits > 0;
}

std::optional<std::string> AcceptedSet(const std::string& text, const Names& names)
{
    if (text == "none")
        return text;
    std::multiset<std::string> given;
    std::size_t start = 0;
    for (std::size_t end = 0; end != std::string::npos; start = end + 1) {
        end = text.find('+', start);
        given.insert(text.substr(start, end - start));
    }
    std::string ordered;
    for (const std::string& name : names) {
        if (given.count(name) > 1)
            return std::nullopt;
        if (given.erase(name) == 1)
            ordered += (ordered.empty() ? "" : "+") + name;
    }
    return given.empty() ? std::optional(ordered) : std::nullopt;
}

std::optional<std::string> AcceptedInteger(const std::string& text, long lowest, long highest)
{
    if (!IsNumber(text, 0))
        return std::nullopt;
    const long number = std::strtol(text.c_str(), nullptr, 10);
    return number >= lowest && number <= highest ? std::optional(std::to_string(number)) : std::nullopt;
}

// As six decimals, then without the zeros at their end.
std::optional<std::string> AcceptedDecimal(const std::string& text)
{
    if (!IsNumber(text, 1))
        return std::nullopt;
    std::array<char, 64> digits;
    std::snprintf(digits.data(), digits.size(), "%.6f", std::strtod(text.c_str(), nullptr));
    std::string stored = digits.data();
    stored.erase(stored.find_last_not_of('0') + 1);
    if (stored.back() == '.')
        stored.pop_back();
    return stored == "-0" ? "0" : stored;
}

std::string VariableOf(const std::string& key)
{
    return key.substr(0, key.rfind('.') + 1);
}

}  // namespace

std::vector<std::string> FieldModel::Keys()
{
    Names keys;
    for (const char* name : {"version", "serialNum", "gamma", "mode", "filters", "transRatio", "minCurrent",
                             "algorithm", "status", "numZEP"})
        keys.push_back(std::string("device.") + name);
    for (const char* name : {"AP-VA.scale", "AP-VA.decimals", "RP.scale", "RP.decimals"})
        keys.push_back(std::string("units.") + name);
    Names variables{"PF", "AP", "RP", "VA"};
    for (const char* side : {"N", "L"})
        for (int order = 1; order < 26; order += 2)
            variables.push_back("ARM" + std::to_string(order) + "A" + side);
    for (const std::string& variable : variables)
        for (const char* limit : {"nominal", "maxW", "maxD", "minW", "minD"})
            if (limit[1] == 'o' || limit[1] == 'a' || variable == "PF")
                keys.push_back("limits." + variable + "." + limit);
    return keys;
}

bool FieldModel::IsReadOnly(const std::string& key)
{
    static const std::set<std::string> keys{"device.version",    "device.serialNum", "device.gamma",
                                            "device.transRatio", "device.algorithm", "device.status"};
    return keys.count(key) != 0;
}

FieldModel::Values FieldModel::Defaults()
{
    Values values;
    for (const std::string& key : Keys())
        values[key] = StartsWith(key, "limits.") ? (EndsWith(key, "nominal") ? "0" : "1") : "";
    for (const char* key : {"device.version", "device.serialNum", "device.gamma"})
        values[key] = "?";
    values["device.mode"] = values["device.filters"] = "none";
    for (const char* unit : {"units.AP-VA", "units.RP"}) {
        values[std::string(unit) + ".scale"] = "plain";
        values[std::string(unit) + ".decimals"] = "1";
    }
    return values;
}

std::optional<std::string> FieldModel::Accepted(const std::string& key, const std::string& text)
{
    if (key == "device.mode")
        return AcceptedSet(text, Modes);
    if (key == "device.filters")
        return AcceptedSet(text, Filters);
    if (key == "device.minCurrent")
        return AcceptedInteger(text, 0, 200);
    if (key == "device.numZEP")
        return AcceptedInteger(text, 1, 8);
    if (EndsWith(key, ".decimals"))
        return AcceptedInteger(text, 0, 3);
    if (EndsWith(key, ".scale"))
        return text == "kilo" || text == "plain" ? std::optional(text) : std::nullopt;
    return AcceptedDecimal(text);
}

bool FieldModel::KeepsItsRules(const Values& values, const std::string& variable)
{
    const auto number = [&](const char* limit) { return std::strtod(values.at(variable + limit).c_str(), nullptr); };
    const double nominal = number("nominal");
    const double inner = number("maxW");
    const double outer = number("maxD");
    if (variable == "limits.PF.") {
        const auto folded = [](double value) { return value < 0 ? value + 2 : value; };
        const double low = number("minW");
        return (nominal == 0 || nominal == 1) && outer >= -1 && outer <= 1 && low >= -1 && low <= 1 &&
               folded(inner) <= folded(outer) && folded(number("minD")) <= folded(low) && folded(low) <= folded(inner);
    }
    const bool isPower = variable == "limits.AP." || variable == "limits.RP." || variable == "limits.VA.";
    if (inner <= 0 || outer <= 0 || inner > outer || inner > 100 || outer > 100)
        return false;
    if (isPower)
        return inner < 100 && outer < 100;
    return nominal >= 0 && (nominal < 100 || StartsWith(variable, "limits.ARM1A"));
}

std::optional<FieldModel::Values> FieldModel::After(const Values& before, const Wishes& wishes, bool mayStay)
{
    Values after = before;
    std::set<std::string> touched;
    for (const auto& [key, text] : wishes) {
        const std::string& present = before.at(key);
        if (mayStay && text == present)
            continue;
        if (IsReadOnly(key) || text.empty())
            return std::nullopt;
        if (text == present)
            continue;
        const auto accepted = Accepted(key, text);
        if (!accepted)
            return std::nullopt;
        if (*accepted != present && StartsWith(key, "limits."))
            touched.insert(VariableOf(key));
        after[key] = *accepted;
    }
    for (const std::string& variable : touched)
        if (!KeepsItsRules(after, variable))
            return std::nullopt;
    return after;
}

}  // namespace kztest
