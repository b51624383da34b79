// The values of a whole plant as one table.
#pragma once

#include <span>
#include <string>

#include "fields/DeviceReader.h"
#include "project/DeviceList.h"

namespace plant {

// A CSV table with a row for each device whose type has fields, in the order of the list: its name, then the values as
// FieldValue.h has them.
//   keys  of the fields, in the order of their columns, none twice; what a device has no field for stays empty
// Throws Refusal when a device's document cannot be read.
[[nodiscard]] std::string ExportTable(const DeviceList& devices, DeviceReader& reader,
                                      std::span<const std::string> keys);

}  // namespace plant
