// Decimals as text, the same in every locale.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace plant {

// The shortest digits, without an exponent, that read back as the number; zero has no sign.
[[nodiscard]] std::string DecimalText(double value);

// A "-", digits and one point, and nothing else; nothing for any other text and for what is beyond a double's range.
[[nodiscard]] std::optional<double> ParseDecimal(std::string_view text) noexcept;

}  // namespace plant
