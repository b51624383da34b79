// Writing and reading of numbers for given conventions; KZNumber.h says what each does.
#pragma once

#include <string>
#include <string_view>

#include "NumberConventions.h"

void WriteNumber(std::wstring& text, double value, int decimals, bool exact, const NumberConventions& user);

// plainSeparator is the decimal separator of the result.
[[nodiscard]] std::wstring PlainNumber(std::wstring_view text, const NumberConventions& user, wchar_t plainSeparator);

[[nodiscard]] bool IsNumber(std::wstring_view text, int decimals, const NumberConventions& user);
