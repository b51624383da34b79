#include "KZWideChar.h"

#include <algorithm>
#include <cstdint>
#include <limits>

int KZWideChar::Compare(const wchar_t* first, const wchar_t* second) noexcept
{
    first = first ? first : L"";
    second = second ? second : L"";
    while (*first && *first == *second) {
        ++first;
        ++second;
    }
    return *first == *second ? 0 : *first < *second ? -1 : 1;
}

int KZWideChar::ToInteger(const wchar_t* text) noexcept
{
    if (!text)
        return 0;
    while (*text == L' ' || (*text >= L'\t' && *text <= L'\r'))
        ++text;
    const bool negative = *text == L'-';
    if (negative || *text == L'+')
        ++text;

    // One more than the largest int, so that the smallest one is reached too.
    constexpr std::int64_t limit = std::int64_t{std::numeric_limits<int>::max()} + 1;
    std::int64_t value = 0;
    for (; *text >= L'0' && *text <= L'9'; ++text)
        value = std::min(limit, value * 10 + (*text - L'0'));
    return static_cast<int>(negative ? -value : std::min(value, limit - 1));
}
