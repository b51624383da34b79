#include "SettingsSummary.h"

#include <array>
#include <span>
#include <utility>

#include "KZLoadString.h"
#include "KZStringIds.h"
#include "KZWideChar.h"
#include "text/EditorText.h"

namespace {

constexpr std::array<unsigned, 4> modes{KZS_MODE_FIRST, KZS_MODE_SECOND, KZS_MODE_THIRD, KZS_MODE_FOURTH};
constexpr std::array<unsigned, 3> algorithms{KZS_ALGORITHM_FIRST, KZS_ALGORITHM_SECOND, KZS_ALGORITHM_THIRD};
constexpr std::array<unsigned, 2> states{KZS_STATUS_OFF, KZS_STATUS_ON};
constexpr int filterCount = 12;  // bit 0 filters the 3rd harmonic, bit 11 the 25th

using Lines = std::vector<std::wstring>;

// The modes have long names, so each has a line of its own.
Lines Modes(const wchar_t* text)
{
    const int bits = KZWideChar::ToInteger(text);
    Lines lines;
    for (std::size_t i = 0; i < modes.size(); ++i)
        if (bits & (1 << i))
            lines.emplace_back(KZLoadString(modes[i]).View());
    return lines;
}

Lines Orders(const wchar_t* text)
{
    const int bits = KZWideChar::ToInteger(text);
    std::wstring orders;
    for (int i = 0; i < filterCount; ++i)
        if (bits & (1 << i))
            orders += (orders.empty() ? L"" : L", ") + std::to_wstring(2 * i + 3);
    return {orders};
}

Lines Plain(const wchar_t* text)
{
    return {text};
}

Lines Ratio(const wchar_t* text)
{
    return {FormatEditorText(IDS_VALUE_RATIO, text)};
}

Lines Amperes(const wchar_t* text)
{
    return {FormatEditorText(IDS_VALUE_AMPERES, text)};
}

// The name of a choice; a number that none of them has stands for itself.
Lines Choice(const wchar_t* text, std::span<const unsigned> names)
{
    const auto index = static_cast<std::size_t>(KZWideChar::ToInteger(text));
    return {index < names.size() ? KZLoadString(names[index]).c_str() : text};
}

Lines Algorithm(const wchar_t* text)
{
    return Choice(text, algorithms);
}

Lines Status(const wchar_t* text)
{
    return Choice(text, states);
}

constexpr struct {
    unsigned name;
    const wchar_t* path;
    Lines (*show)(const wchar_t* text);
} settings[] = {
    {KZS_DEVICE_VERSION, L"information/version", Plain},
    {KZS_DEVICE_SERIAL_NUMBER, L"information/serialNum", Plain},
    {KZS_DEVICE_RANGE, L"information/gamma", Plain},
    {KZS_WORKING_MODE, L"information/mode", Modes},
    {KZS_FILTERED_HARMONICS, L"information/filters", Orders},
    {KZS_TRANSFORMER_RATIO, L"information/transRatio", Ratio},
    {KZS_MINIMUM_CURRENT, L"information/minCurrent", Amperes},
    {KZS_ALGORITHM, L"information/algorithm", Algorithm},
    {KZS_NUMBER_OF_UNITS, L"information/numZEP", Plain},
    {KZS_STATUS, L"information/status", Status},
};

}  // namespace

void AddSettings(SummaryRows& rows, const XmlDocument::XmlNode& root)
{
    for (const auto& setting : settings) {
        const wchar_t* text = root.Value(setting.path, L"");
        Lines lines = *text ? setting.show(text) : Lines();
        if (lines.empty() || lines.front().empty())
            lines = {NoValue};
        std::wstring name = KZLoadString(setting.name).c_str();
        for (std::wstring& line : lines)
            rows.push_back({EditorText(IDS_SECTION_DEVICE), std::exchange(name, {}), std::move(line)});
    }
}
