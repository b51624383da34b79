#include <array>
#include <cwchar>

#include "NumberConventions.h"

// Asked by writing a number: localeconv has the separator in bytes, which can only be read in the character set that
// belongs to them, and LC_CTYPE may name another one.
wchar_t CLibraryDecimalSeparator() noexcept
{
    std::array<wchar_t, 8> text{};
    return std::swprintf(text.data(), text.size(), L"%.1f", 0.5) == 3 ? text[1] : L'.';
}
