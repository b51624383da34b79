#include "NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <vector>

namespace {

constexpr int MostDecimals = 99;

// The largest double has 309 digits, the smallest 324 decimals.
constexpr std::size_t LongestNumber = 512;
static_assert(LongestNumber > std::numeric_limits<double>::max_exponent10 + MostDecimals + 8);

bool IsBlank(wchar_t character) noexcept
{
    return character == L' ' || (character >= L'\t' && character <= L'\r') || character == L'\u00A0' ||
           character == L'\u2009' || character == L'\u202F';
}

bool IsDigit(wchar_t character) noexcept
{
    return character >= L'0' && character <= L'9';
}

std::wstring_view WithoutBlanksAround(std::wstring_view text) noexcept
{
    while (!text.empty() && IsBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

std::wstring_view TakeDigits(std::wstring_view& text) noexcept
{
    const auto end = std::find_if_not(text.begin(), text.end(), IsDigit);
    const std::wstring_view digits = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(digits.size());
    return digits;
}

// How many characters at the start of a text separate groups: the user's separator or any blank, since users type a
// plain blank where the conventions have one that does not break. 0 when the text starts with anything else.
std::size_t GroupSeparatorLength(std::wstring_view text, const NumberConventions& user) noexcept
{
    if (text.empty() || text.starts_with(user.decimalSeparator))
        return 0;
    if (!user.groupSeparator.empty() && text.starts_with(user.groupSeparator))
        return user.groupSeparator.size();
    return IsBlank(text.front()) ? 1 : 0;
}

// The number of digits that the conventions put into a group, counted from the decimal separator; 0 for "all the rest".
std::size_t GroupSize(const std::wstring& sizes, std::size_t group) noexcept
{
    if (group < sizes.size() && sizes[group] != L'0')
        return static_cast<std::size_t>(sizes[group] - L'0');
    const bool repeats = sizes.size() > 1 && sizes.back() == L'0';
    return repeats ? static_cast<std::size_t>(sizes[sizes.size() - 2] - L'0') : 0;
}

// Whether groups of these lengths, in reading order, are where the conventions have them. Without this check a Spanish
// user who types 1.5 would silently get 15.
bool GroupsInPlace(const std::vector<std::size_t>& lengths, const std::wstring& sizes) noexcept
{
    for (std::size_t group = 0; group < lengths.size(); ++group) {
        const std::size_t length = lengths[lengths.size() - 1 - group];
        const std::size_t size = GroupSize(sizes, group);
        const bool leftmost = group + 1 == lengths.size();
        if (leftmost ? length == 0 || (size != 0 && length > size) : size == 0 || length != size)
            return false;
    }
    return true;
}

// The integer part of a number: its digits without separators, or false when groups are out of place.
bool TakeInteger(std::wstring_view& text, const NumberConventions& user, std::string& digits)
{
    std::vector<std::size_t> lengths;
    for (;;) {
        const std::wstring_view group = TakeDigits(text);
        lengths.push_back(group.size());
        for (const wchar_t digit : group)
            digits += static_cast<char>(digit);
        const std::size_t separator = GroupSeparatorLength(text, user);
        if (separator == 0)
            break;
        text.remove_prefix(separator);
    }
    return lengths.size() == 1 || GroupsInPlace(lengths, user.groupSizes);
}

// Only the digits before the decimal separator can take a number beyond the range.
bool InRange(const std::string& integerDigits) noexcept
{
    double value = 0.0;
    return integerDigits.empty() ||
           std::from_chars(integerDigits.data(), integerDigits.data() + integerDigits.size(), value).ec == std::errc();
}

}  // namespace

void WriteNumber(std::wstring& text, double value, int decimals, bool exact, const NumberConventions& user)
{
    text.clear();
    if (!std::isfinite(value))
        return;
    const int wanted = std::min(std::abs(std::max(decimals, -MostDecimals)), MostDecimals);
    const int least = decimals < 0 ? 0 : wanted;

    std::array<char, LongestNumber> buffer;
    char* const start = buffer.data();
    // Without a number of decimals it is the shortest text that gives the very value back.
    const auto written = exact ? std::to_chars(start, start + buffer.size(), value, std::chars_format::fixed)
                               : std::to_chars(start, start + buffer.size(), value, std::chars_format::fixed, wanted);
    std::string_view plain(start, static_cast<std::size_t>(written.ptr - start));
    const std::size_t point = std::min(plain.find('.'), plain.size() - 1);
    int shown = static_cast<int>(plain.size() - 1 - point);
    for (; shown > least && plain.back() == '0'; --shown)
        plain.remove_suffix(1);
    if (plain.back() == '.')
        plain.remove_suffix(1);
    // What rounds to zero has no sign, unless the very value has to come back, which has one.
    if (!exact && plain.front() == '-' && plain.find_first_not_of("-0.") == std::string_view::npos)
        plain.remove_prefix(1);

    for (const char character : plain) {
        if (character == '.')
            text += user.decimalSeparator;
        else
            text += static_cast<wchar_t>(character);
    }
    if (shown == 0 && least > 0)
        text += user.decimalSeparator;
    text.append(static_cast<std::size_t>(std::max(least - shown, 0)), L'0');
}

std::wstring PlainNumber(std::wstring_view text, const NumberConventions& user, wchar_t plainSeparator)
{
    std::wstring plain;
    plain.reserve(text.size());
    while (!text.empty()) {
        std::size_t used = GroupSeparatorLength(text, user);
        if (used == 0 && !user.decimalSeparator.empty() && text.starts_with(user.decimalSeparator)) {
            plain += plainSeparator;
            used = user.decimalSeparator.size();
        } else if (used == 0) {
            plain += text.front();
            used = 1;
        }
        text.remove_prefix(used);
    }
    return plain;
}

bool IsNumber(std::wstring_view text, int decimals, const NumberConventions& user)
{
    text = WithoutBlanksAround(text);
    if (!text.empty() && (text.front() == L'-' || text.front() == L'+'))
        text.remove_prefix(1);
    std::string integerDigits;
    if (!TakeInteger(text, user, integerDigits))
        return false;
    std::size_t decimalDigits = 0;
    if (decimals != 0 && !user.decimalSeparator.empty() && text.starts_with(user.decimalSeparator)) {
        text.remove_prefix(user.decimalSeparator.size());
        decimalDigits = TakeDigits(text).size();
    }
    const bool digits = !integerDigits.empty() || decimalDigits > 0;
    const bool fewEnough = decimals < 0 || decimalDigits <= static_cast<std::size_t>(decimals);
    return text.empty() && digits && fewEnough && InRange(integerDigits);
}
