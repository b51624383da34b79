// The input's lines: a key of the table, then a value that somebody wants, or a text that a document holds.
#include <cmath>

#include "Fuzzing.h"
#include "fields/FieldValue.h"

namespace {

using fuzzing::Require;
using plant::Field;

const Field& FieldOf(std::string_view key)
{
    const plant::FieldTable& fields = *plant::FieldsOfType(L"ZEP");
    const Field* const field = plant::FindField(fields, key);
    return field ? *field
                 : fields[static_cast<std::size_t>(fuzzing::Integer(key, 0, static_cast<int>(fields.size()) - 1))];
}

void CheckWanted(const Field& field, std::string_view value)
{
    double number = 0.0;
    if (plant::ReadValue(field, value, number))
        return;
    Require(!value.empty() && value.find_first_of(" \t\r\n,") == std::string_view::npos, "values are read whole");
    Require(std::isfinite(number), "an accepted number is one");
    const std::string shown = plant::ValueOfNumber(field, number);
    double again = 0.0;
    Require(!plant::ReadValue(field, shown, again), "what is shown of an accepted value is accepted");
    Require(plant::ValueOfNumber(field, again) == shown, "what is shown of a value is itself shown so");
    Require(field.kind == plant::FieldKind::Decimal || again == number, "a whole value reads back the same");
}

// Decimals and whole numbers are values again when they are shown; what is out of bounds is refused for that alone.
void CheckStored(const Field& field, const std::wstring& text)
{
    std::string shown;
    plant::AppendValue(shown, field, text.c_str());
    double number = 0.0;
    const bool isWanted = !plant::ReadValue(field, shown, number);
    if (field.kind == plant::FieldKind::Set)
        Require(isWanted, "a set that is shown can be set");
    if (field.kind != plant::FieldKind::Decimal || !isWanted)
        return;
    std::string twice;
    plant::AppendValue(twice, field, std::wstring(shown.begin(), shown.end()).c_str());
    Require(twice == shown, "the shortest text of a number reads as that number");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzzing::Input input(data, size);
    const Field& field = FieldOf(input.TakeLine());
    CheckWanted(field, input.Rest());
    CheckStored(field, fuzzing::Wide(input.Rest()));
    return 0;
}
