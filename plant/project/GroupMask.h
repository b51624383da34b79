// Variable-group masks: the editor's own, and masks as text, which is hexadecimal, such as 0x74.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "KZVariableGroups.h"

namespace plant {

// The groups of measured quantities, bits 2, 4, 5 and 6. A device that has none of them says so when it is asked.
inline constexpr KZVariableGroups MeasuredGroups{0x74};

// "0x" before the digits may be missing. Nothing when there is no digit, another character, or a bit above the 34.
[[nodiscard]] std::optional<KZVariableGroups> ParseGroupMask(std::wstring_view text) noexcept;

[[nodiscard]] std::wstring FormatGroupMask(const KZVariableGroups& groups);

// All 34 groups.
[[nodiscard]] inline KZVariableGroups AllGroups() noexcept
{
    return KZVariableGroups{}.set();
}

}  // namespace plant
