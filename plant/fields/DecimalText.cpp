#include "DecimalText.h"

#include <array>
#include <charconv>

namespace plant {

std::string DecimalText(double value)
{
    // The smallest double has 1,074 decimals, of which the shortest text has fewer.
    std::array<char, 1200> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value == 0.0 ? 0.0 : value,
                                   std::chars_format::fixed);
    return {digits.data(), end.ptr};
}

std::optional<double> ParseDecimal(std::string_view text) noexcept
{
    // from_chars knows neither a "+" nor blanks, but infinities, NaN and exponents.
    if (text.find_first_not_of("-.0123456789") != std::string_view::npos)
        return std::nullopt;
    double value = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
    if (error != std::errc{} || end != text.data() + text.size())
        return std::nullopt;
    return value;
}

}  // namespace plant
