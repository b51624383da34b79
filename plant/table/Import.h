// A table of values, taken into the plant that it was made of.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "changes/FieldEdit.h"

namespace plant {

// Reads a CSV table and adds what its rows want the devices to have to an edit that lets stay what can only be read.
// The header is "device", for the names or driverIds, and keys of fields, in any order; empty values leave the device's
// as they are. Goes on after each finding, and stops only where the text is no table any more.
//   text  the bytes of the file
//   file  what findings call it
// Returns what is wrong with the table and with documents that cannot be read; the edit has what is wrong with values.
[[nodiscard]] std::vector<Finding> ImportTable(Project& project, FieldEdit& edit, std::string_view text,
                                               const std::wstring& file);

}  // namespace plant
