// The grammar of ZEP variable names: coordinates to name and back. Parsing allocates nothing.
//
//   harmonic currents    ARM<order>A<phase><side>    ARM3A2L
//   other quantities     <code>I<phase><side>        VI2N, PFI1L; frequency has no phase: HZIN
//
// order is 1, 3, 5 … 25; phase 1, 2 or 3; side N (net, the supply) or L (load).
#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "Harmonics.h"

namespace zep {

inline constexpr std::array Sides{Side::Net, Side::Load};
inline constexpr int PhaseCount = 3;

// The families of variables, one selection page each.
enum class Family { General, Power, Harmonic };
inline constexpr std::size_t FamilyCount = 3;

inline constexpr int QuantityRowCount = 4;

// The codes that open the names of the general and the power family, by row. The voltage's code is the single letter V
// although its row is captioned VPN: the code goes into names, not the caption.
inline constexpr std::array<std::wstring_view, QuantityRowCount> GeneralCodes{L"V", L"HZ", L"A", L"DA"};
inline constexpr std::array<std::wstring_view, QuantityRowCount> PowerCodes{L"AP", L"RP", L"VA", L"PF"};
inline constexpr int FrequencyRow = 1;  // of the general family

// Where a variable stands in its family.
struct VariablePosition {
    int row = 0;    // 0 to 12 for harmonics, 0 to 3 otherwise
    int phase = 0;  // index 0 to 2 for L1 to L3
    Side side = Side::Net;

    friend bool operator==(const VariablePosition&, const VariablePosition&) noexcept = default;
};

// A set of positions of one family, as wide as the largest family.
inline constexpr std::size_t PositionCount = std::size_t{HarmonicRowCount} * 2 * PhaseCount;
using PositionSet = std::bitset<PositionCount>;

[[nodiscard]] constexpr std::size_t PositionIndex(const VariablePosition& position) noexcept
{
    const auto rowSide = 2 * static_cast<std::size_t>(position.row) + static_cast<std::size_t>(position.side);
    return PhaseCount * rowSide + static_cast<std::size_t>(position.phase);
}

// Appends the name of a variable. The position must lie within the family.
void AppendVariableName(std::wstring& text, Family family, const VariablePosition& position);

// Parses a name of one family. Returns nothing when the name does not belong to it. What follows the side letter is not
// examined, and the position may be one that no variable has (the load's voltage): the grammar alone decides here.
[[nodiscard]] std::optional<VariablePosition> ParseVariableName(Family family, std::wstring_view name) noexcept;

// A variable of any family. No name belongs to two of them.
struct Variable {
    Family family = Family::General;
    VariablePosition position;

    friend bool operator==(const Variable&, const Variable&) noexcept = default;
};

// Parses a name of whatever family it belongs to.
[[nodiscard]] std::optional<Variable> ParseVariableName(std::wstring_view name) noexcept;

}  // namespace zep
