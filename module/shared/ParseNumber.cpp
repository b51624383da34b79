#include "ParseNumber.h"

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
        if (*text > L'\0' && *text <= L'\x7F')
            copy += static_cast<char>(*text);
        else if (isOutsideAscii)
            copy += separator;  // no other character outside ASCII can stand in a number
        else
            break;
    }
    return std::strtod(copy.c_str(), nullptr);
}

}  // namespace zep
