// Which devices and which of their fields somebody names.
#pragma once

#include <string>
#include <vector>

#include "Field.h"
#include "project/Project.h"

namespace plant {

// The places of the devices with these names or driverIds, each once and in that order; without any, of all devices
// whose type has a table. Throws Refusal for what names no device, and for a device whose type has no table.
[[nodiscard]] std::vector<std::size_t> DevicesNamed(const Project& project, const std::vector<std::wstring>& names);

// Throws Refusal when the table has no such key.
[[nodiscard]] const Field& FieldNamed(const FieldTable& table, const std::string& key);

// The fields of these keys, each once and in that order; without any, all of the table. Throws Refusal.
[[nodiscard]] std::vector<const Field*> FieldsNamed(const FieldTable& table, const std::vector<std::string>& keys);

}  // namespace plant
