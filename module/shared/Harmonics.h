// The harmonic currents as all pages list them: 13 rows of odd orders, of which row 0 is the fundamental, on two sides.
#pragma once

#include <string>

namespace zep {

enum class Side { Net, Load };

// The letter that ends a variable's name.
[[nodiscard]] constexpr wchar_t SideLetter(Side side) noexcept
{
    return side == Side::Net ? L'N' : L'L';
}

inline constexpr int HarmonicRowCount = 13;

[[nodiscard]] constexpr int HarmonicOrder(int row) noexcept
{
    return 2 * row + 1;
}

// "ARM<order>A", which opens all names of a row: a phase and the side's letter follow, or for limits the letter alone.
[[nodiscard]] std::wstring HarmonicCode(int row);

}  // namespace zep
