// What a limits page accepts. The rules read texts and edited values and never touch a window.
#pragma once

#include <optional>
#include <vector>

#include "LimitsStore.h"

namespace zep {

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

// Check every variable in the table's order, the edited values having been read from the texts just before. Nothing is
// returned when all of them are accepted.
[[nodiscard]] std::optional<LimitFailure> CheckHarmonicLimits(const LimitsStore& store);
[[nodiscard]] std::optional<LimitFailure> CheckPowerLimits(const LimitsStore& store);

}  // namespace zep
