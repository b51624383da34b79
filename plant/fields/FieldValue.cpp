#include "FieldValue.h"

#include <algorithm>
#include <charconv>
#include <limits>

#include "DecimalText.h"
#include "InformationRecord.h"
#include "KZStringIds.h"
#include "KZUtf8.h"
#include "KZWideChar.h"
#include "ParseNumber.h"
#include "StoredNumber.h"
#include "UnitsRecord.h"
#include "ZepFields.h"

namespace plant {

namespace {

constexpr std::string_view EmptySet = "none";

// The number of a choice, the bits of a set, a whole number.
int StoredInteger(const Field& field, const wchar_t* text)
{
    if (field.section == FieldSection::Units && field.kind == FieldKind::Choice)
        return zep::ScaleOf(text);
    const int number = KZWideChar::ToInteger(text);
    return field.section == FieldSection::Device ? number & zep::InformationFields[field.part].mask : number;
}

void AppendSet(std::string& out, const Field& field, int bits)
{
    const std::size_t start = out.size();
    for (std::size_t bit = 0; bit < field.choices.size(); ++bit)
        if (bits >> bit & 1)
            out.append(out.size() == start ? "" : "+").append(field.choices[bit].name);
    if (out.size() == start)
        out.append(EmptySet);
}

void AppendInteger(std::string& out, const Field& field, int number)
{
    if (field.kind == FieldKind::Set)
        return AppendSet(out, field, number);
    const auto index = static_cast<std::size_t>(number);
    if (index < field.choices.size())
        out.append(field.choices[index].name);
    else
        out.append(std::to_string(number));
}

std::optional<std::size_t> IndexOf(const Field& field, std::string_view name)
{
    const auto found = std::find_if(field.choices.begin(), field.choices.end(),
                                    [&](const FieldChoice& choice) { return choice.name == name; });
    return found == field.choices.end() ? std::nullopt
                                        : std::optional(static_cast<std::size_t>(found - field.choices.begin()));
}

// Nothing for a name that is none and for one that comes twice.
std::optional<int> ReadSet(const Field& field, std::string_view value)
{
    if (value == EmptySet)
        return 0;
    int bits = 0;
    for (bool isLast = false; !isLast;) {
        const std::size_t end = std::min(value.find('+'), value.size());
        isLast = end == value.size();
        const auto index = IndexOf(field, value.substr(0, end));
        if (!index || bits >> *index & 1)
            return std::nullopt;
        bits |= 1 << *index;
        value.remove_prefix(isLast ? end : end + 1);
    }
    return bits;
}

std::optional<int> ReadChoice(const Field& field, std::string_view value)
{
    if (field.kind == FieldKind::Set)
        return ReadSet(field, value);
    const auto index = IndexOf(field, value);
    return index ? std::optional(static_cast<int>(*index)) : std::nullopt;
}

// Digits with a "-" in front; beyond an int's range the nearest bound, which no field accepts.
std::optional<int> ReadWholeNumber(std::string_view value)
{
    int number = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
    if (error == std::errc::invalid_argument || end != value.data() + value.size())
        return std::nullopt;
    if (error == std::errc::result_out_of_range)
        return value.front() == '-' ? std::numeric_limits<int>::lowest() : std::numeric_limits<int>::max();
    return number;
}

zep::InformationBounds BoundsOf(const Field& field)
{
    if (field.section == FieldSection::Units)
        return {0, zep::DecimalsChoiceCount - 1};
    return *zep::InformationFields[field.part].bounds;
}

}  // namespace

void AppendValue(std::string& out, const Field& field, const wchar_t* text)
{
    if (field.kind == FieldKind::Text)
        out.append(ToUtf8(text));
    else if (field.kind == FieldKind::Decimal)
        out.append(DecimalText(zep::ParseNumber(text)));
    else if (*text || field.kind == FieldKind::Set || field.section == FieldSection::Units)
        AppendInteger(out, field, StoredInteger(field, text));
}

std::optional<Message> ReadValue(const Field& field, std::string_view value, double& number)
{
    if (value.empty())
        return Message{KZS_FIELD_EMPTY, {}};
    if (field.kind == FieldKind::Decimal) {
        const auto decimal = ParseDecimal(value);
        if (!decimal)
            return Message{KZS_NOT_A_NUMBER, {}};
        number = *decimal;
        return std::nullopt;
    }
    const bool isWhole = field.kind == FieldKind::WholeNumber;
    const auto integer = isWhole ? ReadWholeNumber(value) : ReadChoice(field, value);
    if (!integer && isWhole)
        return Message{IDS_PLANT_FIELD_NOT_WHOLE, {}};
    if (!integer) {
        const unsigned text = field.kind == FieldKind::Set ? IDS_PLANT_FIELD_NO_SET : IDS_PLANT_FIELD_NO_CHOICE;
        return Message{text, {FromUtf8(field.values)}};
    }
    if (isWhole)
        if (const auto bounds = BoundsOf(field); *integer < bounds.lowest || *integer > bounds.highest)
            return Message{KZS_OUT_OF_RANGE, {}, {bounds.lowest, bounds.highest}};
    number = *integer;
    return std::nullopt;
}

std::string ValueOfNumber(const Field& field, double number)
{
    if (field.kind == FieldKind::Decimal)
        return DecimalText(zep::StoredNumber(number).Value());
    std::string value;
    AppendInteger(value, field, static_cast<int>(number));
    return value;
}

}  // namespace plant
