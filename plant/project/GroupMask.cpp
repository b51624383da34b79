#include "GroupMask.h"

#include <cstdint>

namespace plant {

namespace {

int HexDigit(wchar_t character) noexcept
{
    if (character >= L'0' && character <= L'9')
        return character - L'0';
    if (character >= L'a' && character <= L'f')
        return character - L'a' + 10;
    if (character >= L'A' && character <= L'F')
        return character - L'A' + 10;
    return -1;
}

}  // namespace

std::optional<KZVariableGroups> ParseGroupMask(std::wstring_view text) noexcept
{
    if (text.starts_with(L"0x") || text.starts_with(L"0X"))
        text.remove_prefix(2);
    if (text.empty())
        return std::nullopt;
    std::uint64_t mask = 0;
    for (const wchar_t character : text) {
        const int digit = HexDigit(character);
        if (digit < 0)
            return std::nullopt;
        mask = mask << 4 | static_cast<unsigned>(digit);
        if (mask >> KZVariableGroupCount)
            return std::nullopt;
    }
    return KZVariableGroups{mask};
}

std::wstring FormatGroupMask(const KZVariableGroups& groups)
{
    std::uint64_t mask = groups.to_ullong();
    std::wstring digits;
    do {
        digits.insert(digits.begin(), L"0123456789ABCDEF"[mask & 0xF]);
        mask >>= 4;
    } while (mask != 0);
    return L"0x" + digits;
}

}  // namespace plant
