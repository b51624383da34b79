#include "NumberConventions.h"

#include <clocale>
#include <cstdlib>
#include <cstring>

wchar_t CLibraryDecimalSeparator() noexcept
{
    const char* separator = std::localeconv()->decimal_point;
    wchar_t character = L'.';
    return std::mbtowc(&character, separator, std::strlen(separator)) > 0 ? character : L'.';
}
