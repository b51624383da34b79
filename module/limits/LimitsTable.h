// Which variables have limits, which limits, and how the document names them: the tables behind the limits pages.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>

#include "Harmonics.h"

namespace zep {

// W is the inner limit, D the outer one. Only the power factor has lower limits.
enum class LimitField { Nominal, MaxW, MaxD, MinW, MinD };
inline constexpr std::size_t LimitFieldCount = 5;

// Their named values in a "check" element, in storage order.
inline constexpr std::array<const wchar_t*, LimitFieldCount> LimitFieldNames{L"nominal", L"maxW", L"maxD", L"minW",
                                                                             L"minD"};

inline constexpr std::size_t UpperLimitFields = 3;  // nominal, maxW, maxD

// Which rules its limits keep (LimitsRules.h).
enum class LimitKind { PowerFactor, Power, Fundamental, Harmonic };

struct LimitVariable {
    std::wstring name;  // the named value "var"
    LimitKind kind = LimitKind::Harmonic;
    std::size_t fieldCount = UpperLimitFields;
};

// When a page writes its variables.
enum class LimitSaving { Always, WhenModified };

// One page: its variables in the order in which they are loaded, checked and saved.
struct LimitsTable {
    std::span<const LimitVariable> variables;
    const wchar_t* nominalDefault;  // texts for named values that are missing
    const wchar_t* limitDefault;
    LimitSaving saving;

    [[nodiscard]] constexpr const wchar_t* DefaultOf(LimitField field) const noexcept
    {
        return field == LimitField::Nominal ? nominalDefault : limitDefault;
    }
};

enum class PowerLimit { PowerFactor, Active, Reactive, Apparent };
inline constexpr std::size_t PowerLimitCount = 4;

extern const LimitsTable PowerLimitsTable;
[[nodiscard]] const LimitsTable& HarmonicLimitsTable(Side side);

}  // namespace zep
