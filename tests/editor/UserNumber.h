// Numbers as this user writes them.
#pragma once

#include <windows.h>

#include <string>

#include "KZUtf8.h"

namespace editor_tests {

inline std::string UserSeparator()
{
    wchar_t separator[4] = L"";
    ::GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, separator, 4);
    return ToUtf8(separator);
}

// The text with one decimal separator in place of another, if it has it.
inline std::string WithSeparator(std::string text, const std::string& from, const std::string& to)
{
    const std::size_t place = text.find(from);
    return place == std::string::npos ? text : text.replace(place, from.size(), to);
}

// A number that is written with a point.
inline std::string UserNumber(const std::string& number)
{
    return WithSeparator(number, ".", UserSeparator());
}

}  // namespace editor_tests
