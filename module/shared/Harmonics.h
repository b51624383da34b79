// The harmonic currents as all pages list them: 13 rows of odd orders, of which row 0 is the fundamental, on two sides.
#pragma once

namespace zep {

enum class Side { Net, Load };

inline constexpr int HarmonicRowCount = 13;

[[nodiscard]] constexpr int HarmonicOrder(int row) noexcept
{
    return 2 * row + 1;
}

}  // namespace zep
