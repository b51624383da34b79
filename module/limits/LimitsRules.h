// What limits are accepted. The rules read texts and values and never touch a window.
#pragma once

#include <limits>
#include <optional>
#include <vector>

#include "LimitsStore.h"

namespace zep {

// The range that a limit keeps by itself.
struct LimitBounds {
    double lowest = -std::numeric_limits<double>::infinity();
    double highest = std::numeric_limits<double>::infinity();
    bool lowestIsIn = true;
    bool highestIsIn = true;
    bool onlyEndsAreIn = false;

    // False for NaN.
    [[nodiscard]] bool Hold(double value) const noexcept;
};

// Null for a limit that only its neighbours bound.
[[nodiscard]] const LimitBounds* BoundsOf(LimitKind kind, LimitField field) noexcept;

// The limits of one variable by their fields; those that it lacks do not count. NaN stands for what is no number.
using LimitValues = std::array<double, LimitFieldCount>;

// A broken rule.
struct LimitFault {
    LimitField field;
    unsigned textId;         // why, a host text
    bool namesField = true;  // whether the message says which field is at fault

    friend bool operator==(const LimitFault&, const LimitFault&) noexcept = default;
};

// Every rule that the limits of a variable break, in the order in which they are told. The order of limits is judged
// when each of them is in its own range.
[[nodiscard]] std::vector<LimitFault> JudgeLimits(const LimitVariable& variable, const LimitValues& values);

// A line of a message: a host text, or one formatted with an integer.
struct LimitMessageLine {
    unsigned textId = 0;
    std::optional<int> argument;

    friend bool operator==(const LimitMessageLine&, const LimitMessageLine&) noexcept = default;
};

// The first rule that a page breaks.
struct LimitFailure {
    std::vector<LimitMessageLine> lines;
    std::optional<LimitCell> focus;  // the edit box to focus; none on the power page

    friend bool operator==(const LimitFailure&, const LimitFailure&) = default;
};

// What the row of a harmonic page is called, on the page and in its messages.
[[nodiscard]] LimitMessageLine HarmonicLimitLabel(std::size_t row) noexcept;

// What the group box of a power variable says, and the first line of its messages.
[[nodiscard]] unsigned PowerLimitTitle(PowerLimit variable) noexcept;

// What a message of the power page calls a field.
[[nodiscard]] unsigned LimitFieldTitle(LimitField field) noexcept;

// The power factor's own scale: negative factors lie above 1, so that -0.9 counts as 1.1.
[[nodiscard]] constexpr double FoldedPowerFactor(double value) noexcept
{
    return value >= 0.0 ? value : value + 2.0;
}

// Checks every variable of a page in the table's order, the edited values having been read from the texts just before.
// Nothing is returned when all of them are accepted.
[[nodiscard]] std::optional<LimitFailure> CheckLimits(const LimitsStore& store);

}  // namespace zep
