// The values of fields as text: what commands and tables show and take, the same for every language and locale.
//
// Whole numbers and decimals are digits with a "-" in front and one point, decimals in their shortest form that reads
// back the same. A choice is one of its names, a set its names with "+" between them, or "none".
#pragma once

#include <string>
#include <string_view>

#include "Field.h"

namespace plant {

// Appends the value that a text of the document stands for, as the dialogs read it. A number that a choice has no name
// for stands for itself; where a dialog shows nothing, nothing is appended.
void AppendValue(std::string& out, const Field& field, const wchar_t* text);

// A value as a number: a whole number or a decimal itself, the number of a choice, the bits of a set.
// Returns why the value is refused; number is then left as it is. A limit is judged by its form alone, since its rules
// concern all limits of its variable.
[[nodiscard]] std::optional<Message> ReadValue(const Field& field, std::string_view value, double& number);

// The value that a number reads as once it is stored.
[[nodiscard]] std::string ValueOfNumber(const Field& field, double number);

}  // namespace plant
