// Where the main configuration document has what belongs to a device: one element in each of these lists.
#pragma once

#include <array>

#include "ChosenVariables.h"
#include "LimitsStore.h"
#include "UnitsRecord.h"

namespace plant {

inline constexpr zep::SetupList DeviceElements{L"devices", L"device"};
inline constexpr std::array<zep::SetupList, 3> ListsOfSetups{zep::UnitSetups, zep::ViewSetups, Selections};
inline constexpr std::array<zep::SetupList, 4> AllOfDevice{DeviceElements, zep::UnitSetups, zep::ViewSetups,
                                                           Selections};

}  // namespace plant
