#include "ParseNumber.h"

#include <charconv>
#include <clocale>
#include <cstdlib>
#include <string>

namespace zep {

// std::wcstod itself is no use: MinGW's copies the text to the heap without looking whether there was memory for it,
// and is off by the last bit for some numbers. std::strtod needs no memory for a number of a usual length.
double ParseNumber(const wchar_t* text)
{
    const std::string separator = std::localeconv()->decimal_point;
    const bool isOutsideAscii = static_cast<unsigned char>(separator.front()) > 0x7F;
    std::string copy;
    for (; *text; ++text) {
        if (static_cast<unsigned>(*text) <= 0x7F)
            copy += static_cast<char>(*text);
        else if (isOutsideAscii)
            copy += separator;  // no other character outside ASCII can stand in a number
        else
            break;
    }
    // Nearly all are digits and a point, for which this takes a fraction of the time.
    double number = 0.0;
    const char* const last = copy.data() + copy.size();
    const auto [end, error] = std::from_chars(copy.data(), last, number, std::chars_format::fixed);
    if (separator == "." && error == std::errc{} && end == last)
        return number;
    return std::strtod(copy.c_str(), nullptr);
}

}  // namespace zep
