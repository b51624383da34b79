#include "ZepFields.h"

#include <array>
#include <cmath>
#include <unordered_map>

#include "DecimalText.h"
#include "InformationRecord.h"
#include "KZStringIds.h"
#include "KZUtf8.h"
#include "LimitsRules.h"

namespace plant {

namespace {

using zep::InformationField;

struct DeviceRow {
    InformationField field;
    FieldKind kind;
    unsigned caption;
    const char* unit = "";
};

// The order of the table differs from that of the record: what is written stands before and after what is only shown.
constexpr std::array<DeviceRow, zep::InformationFieldCount> DeviceRows{{
    {InformationField::Version, FieldKind::Text, KZS_DEVICE_VERSION},
    {InformationField::SerialNumber, FieldKind::Text, KZS_DEVICE_SERIAL_NUMBER},
    {InformationField::Gamma, FieldKind::Text, KZS_DEVICE_RANGE},
    {InformationField::Mode, FieldKind::Set, KZS_WORKING_MODE},
    {InformationField::Filters, FieldKind::Set, KZS_FILTERED_HARMONICS},
    {InformationField::TransformerRatio, FieldKind::WholeNumber, KZS_TRANSFORMER_RATIO, "A"},
    {InformationField::MinimumCurrent, FieldKind::WholeNumber, KZS_MINIMUM_CURRENT, "A"},
    {InformationField::Algorithm, FieldKind::Choice, KZS_ALGORITHM},
    {InformationField::Status, FieldKind::Choice, KZS_STATUS},
    {InformationField::UnitCount, FieldKind::WholeNumber, KZS_NUMBER_OF_UNITS},
}};

template <std::size_t Count>
std::vector<FieldChoice> Choices(const std::array<const char*, Count>& names, const std::array<unsigned, Count>& texts)
{
    std::vector<FieldChoice> choices;
    for (std::size_t i = 0; i < Count; ++i)
        choices.push_back({names[i], {texts[i]}});
    return choices;
}

std::vector<FieldChoice> Filters()
{
    std::vector<FieldChoice> filters;
    for (int filter = 0; filter < zep::FilterCount; ++filter) {
        const int order = zep::FilteredOrder(filter);
        filters.push_back({std::to_string(order), {.number = order}});
    }
    return filters;
}

std::vector<FieldChoice> DeviceChoices(InformationField field)
{
    using Modes = std::array<const char*, zep::ModeCount>;
    using Algorithms = std::array<const char*, zep::AlgorithmCount>;
    using States = std::array<const char*, zep::StatusCount>;
    switch (field) {
    case InformationField::Mode:
        return Choices(Modes{"harmonics", "reactive", "balance", "neutral"}, zep::ModeTexts);
    case InformationField::Filters:
        return Filters();
    case InformationField::Algorithm:
        return Choices(Algorithms{"standard", "selective", "fast"}, zep::AlgorithmTexts);
    case InformationField::Status:
        return Choices(States{"stopped", "running"}, zep::StatusTexts);
    default:
        return {};
    }
}

std::string NamesOf(const std::vector<FieldChoice>& choices)
{
    std::string names;
    for (const FieldChoice& choice : choices)
        names.append(names.empty() ? "" : "|").append(choice.name);
    return names;
}

std::string Range(int lowest, int highest)
{
    return std::to_string(lowest) + ".." + std::to_string(highest);
}

// "0..<100": an end that is not in has its sign, an end that is open has no number.
std::string Range(const zep::LimitBounds& bounds)
{
    const auto end = [](double value) { return std::isinf(value) ? std::string() : DecimalText(value); };
    if (bounds.onlyEndsAreIn)
        return end(bounds.lowest) + "|" + end(bounds.highest);
    std::string range(bounds.lowestIsIn ? "" : ">");
    range.append(end(bounds.lowest)).append(bounds.highestIsIn ? ".." : "..<").append(end(bounds.highest));
    return range;
}

Field DeviceField(const DeviceRow& row)
{
    const auto part = static_cast<std::size_t>(row.field);
    const zep::InformationFieldInfo& info = zep::InformationFields[part];
    Field field{.key = "device." + ToUtf8(info.name),
                .section = FieldSection::Device,
                .kind = row.kind,
                .isWritable = info.written,
                .unit = row.unit,
                .caption = {{row.caption}},
                .choices = DeviceChoices(row.field),
                .part = part};
    field.values = info.bounds ? Range(info.bounds->lowest, info.bounds->highest) : NamesOf(field.choices);
    return field;
}

void AddUnit(FieldTable& fields, zep::PowerUnit unit)
{
    struct {
        unsigned caption;
        const wchar_t* kilo;
        const wchar_t* plain;
    } constexpr shown[] = {{KZS_UNITS_ACTIVE_APPARENT, L"kW / kVA", L"W / VA"}, {KZS_UNITS_REACTIVE, L"kVAR", L"VAR"}};
    const auto part = static_cast<std::size_t>(unit);
    const std::string key = "units." + ToUtf8(zep::PowerUnitNames[part]);
    std::vector<FieldChoice> scales(2);
    scales[zep::UnitChoice::Kilo] = {"kilo", {.literal = shown[part].kilo}};
    scales[zep::UnitChoice::Plain] = {"plain", {.literal = shown[part].plain}};
    fields.push_back({.key = key + ".scale",
                      .section = FieldSection::Units,
                      .kind = FieldKind::Choice,
                      .isWritable = true,
                      .values = NamesOf(scales),
                      .caption = {{shown[part].caption}, {KZS_UNIT}},
                      .choices = scales,
                      .part = part,
                      .item = static_cast<std::size_t>(UnitItem::Scale)});
    fields.push_back({.key = key + ".decimals",
                      .section = FieldSection::Units,
                      .kind = FieldKind::WholeNumber,
                      .isWritable = true,
                      .values = Range(0, zep::DecimalsChoiceCount - 1),
                      .caption = {{shown[part].caption}, {KZS_DECIMALS}},
                      .part = part,
                      .item = static_cast<std::size_t>(UnitItem::Decimals)});
}

std::vector<Words> VariableCaption(const LimitVariablePlace& place)
{
    if (place.table == &zep::PowerLimitsTable)
        return {{zep::PowerLimitTitle(static_cast<zep::PowerLimit>(place.index))}};
    const zep::LimitMessageLine label = zep::HarmonicLimitLabel(place.index);
    const bool isNet = place.table == &zep::HarmonicLimitsTable(zep::Side::Net);
    const unsigned side = isNet ? KZS_NET_SIDE : KZS_LOAD_SIDE;
    return {{label.textId, label.argument}, {side}};
}

// A nominal power factor is a number, a nominal power or current has its unit; all limits but the power factor's are
// percentages.
const char* LimitUnit(const LimitVariablePlace& place, zep::LimitField field)
{
    constexpr std::array<const char*, zep::PowerLimitCount> powers{"", "kW", "kvar", "kVA"};
    switch (place.Variable().kind) {
    case zep::LimitKind::PowerFactor:
        return "";
    case zep::LimitKind::Power:
        return field == zep::LimitField::Nominal ? powers[place.index] : "%";
    case zep::LimitKind::Fundamental:
        return field == zep::LimitField::Nominal ? "A" : "%";
    default:
        return "%";
    }
}

void AddVariable(FieldTable& fields, std::size_t part)
{
    const LimitVariablePlace& place = LimitVariables()[part];
    const zep::LimitVariable& variable = place.Variable();
    for (std::size_t item = 0; item < variable.fieldCount; ++item) {
        const auto limit = static_cast<zep::LimitField>(item);
        const zep::LimitBounds* const bounds = zep::BoundsOf(variable.kind, limit);
        std::vector<Words> caption = VariableCaption(place);
        caption.push_back({zep::LimitFieldTitle(limit)});
        fields.push_back({.key = "limits." + ToUtf8(variable.name) + "." + ToUtf8(zep::LimitFieldNames[item]),
                          .section = FieldSection::Limits,
                          .kind = FieldKind::Decimal,
                          .isWritable = true,
                          .unit = LimitUnit(place, limit),
                          .values = bounds ? Range(*bounds) : "",
                          .caption = caption,
                          .part = part,
                          .item = item});
    }
}

}  // namespace

FieldTable MakeZepFields()
{
    FieldTable fields;
    for (const DeviceRow& row : DeviceRows)
        fields.push_back(DeviceField(row));
    for (std::size_t unit = 0; unit < zep::PowerUnitCount; ++unit)
        AddUnit(fields, static_cast<zep::PowerUnit>(unit));
    for (std::size_t part = 0; part < LimitVariables().size(); ++part)
        AddVariable(fields, part);
    for (std::size_t row = 0; row < fields.size(); ++row)
        fields[row].row = row;
    return fields;
}

std::span<const LimitVariablePlace> LimitVariables()
{
    static const auto places = [] {
        std::vector<LimitVariablePlace> all;
        for (const zep::LimitsTable* table : {&zep::PowerLimitsTable, &zep::HarmonicLimitsTable(zep::Side::Net),
                                              &zep::HarmonicLimitsTable(zep::Side::Load)})
            for (std::size_t index = 0; index < table->variables.size(); ++index)
                all.push_back({table, index});
        return all;
    }();
    return places;
}

std::optional<std::size_t> FindLimitVariable(std::wstring_view name)
{
    static const auto places = [] {
        std::unordered_map<std::wstring_view, std::size_t> all;
        for (std::size_t part = 0; part < LimitVariables().size(); ++part)
            all.emplace(LimitVariables()[part].Variable().name, part);
        return all;
    }();
    const auto found = places.find(name);
    return found == places.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace plant
