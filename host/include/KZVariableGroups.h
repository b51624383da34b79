// The groups of variables that a device model may provide.
#pragma once

#include <bitset>
#include <cstddef>

inline constexpr std::size_t KZVariableGroupCount = 34;
using KZVariableGroups = std::bitset<KZVariableGroupCount>;
