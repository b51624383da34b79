// Variable-group masks as text: hexadecimal, such as 0x74.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "KZDriver.h"

// "0x" before the digits may be missing. Nothing when there is no digit, another character, or a bit above the 34.
[[nodiscard]] std::optional<KZVariableGroups> ParseGroupMask(std::wstring_view text) noexcept;

[[nodiscard]] std::wstring FormatGroupMask(const KZVariableGroups& groups);

// All 34 groups.
[[nodiscard]] inline KZVariableGroups AllGroups() noexcept
{
    return KZVariableGroups{}.set();
}
