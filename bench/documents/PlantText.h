// Configuration documents of any size, as the editor writes them.
#pragma once

#include <string>

#include "KZBasicString.h"

namespace kzbench {

// The identifier of one driver of the plant, by its place from 0.
[[nodiscard]] KZBasicString DriverId(int place);

// A main configuration document of that many drivers with their units. The last ones have the limits of all 30
// variables, the others that of one.
[[nodiscard]] std::string ConfigurationText(int drivers, int driversWithLimits);

// The main configuration document of a whole project. What each device has set: everything, which is its units and the
// limits of all 30 variables, or the limits of one variable.
enum class Settings { All, OneLimit };
[[nodiscard]] std::string ProjectText(int devices, Settings settings);

// A device configuration document with every child of its record.
[[nodiscard]] std::string DeviceText();

}  // namespace kzbench
