// Every value of a device that its documents hold, as a row of one table per device type.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "text/Refusal.h"

namespace plant {

enum class FieldSection { Device, Units, Limits };
enum class FieldKind { WholeNumber, Decimal, Choice, Set, Text };

// A text of the host's table, with a number where it takes one; without an id what is the same in each language: a
// number or a text.
struct Words {
    unsigned textId = 0;
    std::optional<int> number = std::nullopt;
    const wchar_t* literal = L"";
};

// A number of a choice, a bit of a set.
struct FieldChoice {
    std::string name;
    Words words;
};

struct Field {
    std::string key;  // "limits.PF.maxW"
    FieldSection section = FieldSection::Device;
    FieldKind kind = FieldKind::Text;
    bool isWritable = false;
    std::string unit = {};  // "A"; empty for none
    std::string values =
        {};  // what is accepted: "0..200", ">0..<100", "0|1", "kilo|plain"; empty when nothing bounds it
    std::vector<Words> caption = {};        // from the whole to the part
    std::vector<FieldChoice> choices = {};  // by number or bit
    std::size_t row = 0;                    // its place in the table
    // What holds it: of the device section a zep::InformationField, of the units a zep::PowerUnit and which of its
    // values, of the limits the variable and a zep::LimitField.
    std::size_t part = 0;
    std::size_t item = 0;
};

using FieldTable = std::vector<Field>;

// The table of a device type, which lives as long as the process; null for a type without one.
[[nodiscard]] const FieldTable* FieldsOfType(std::wstring_view typeName);

// The row of a key; null when there is none.
[[nodiscard]] const Field* FindField(const FieldTable& table, std::string_view key);

}  // namespace plant
