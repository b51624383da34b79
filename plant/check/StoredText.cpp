#include "StoredText.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "KZUtf8.h"

namespace plant {

namespace {

// Without the blanks around it and the "+" that from_chars does not know.
std::string Digits(std::wstring_view text)
{
    constexpr std::wstring_view blanks = L" \t\r\n";
    const std::size_t first = std::min(text.find_first_not_of(blanks), text.size());
    text.remove_prefix(first);
    text = text.substr(0, text.find_last_not_of(blanks) + 1);
    if (text.starts_with(L'+') && !text.starts_with(L"+-"))
        text.remove_prefix(1);
    return ToUtf8(text);
}

template <typename Number>
bool IsWholly(const std::string& digits, Number& number)
{
    const char* const last = digits.data() + digits.size();
    const auto [end, error] = std::from_chars(digits.data(), last, number);
    return error == std::errc{} && end == last;
}

}  // namespace

bool IsWholeNumber(const wchar_t* text)
{
    int number = 0;
    return IsWholly(Digits(text), number);
}

double StoredDecimal(const wchar_t* text)
{
    double number = 0.0;
    return IsWholly(Digits(text), number) && std::isfinite(number) ? number : std::numeric_limits<double>::quiet_NaN();
}

}  // namespace plant
