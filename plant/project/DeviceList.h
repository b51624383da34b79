// Reads the devices out of the main configuration's "devices" section.
#pragma once

#include <vector>

#include "KZDeviceIdentity.h"
#include "KZXmlDocument.h"

namespace plant {

using DeviceList = std::vector<KZDeviceIdentity>;

// The devices in the document's order. The file is named in errors only.
// Throws Refusal for a driverId or name that is missing, used twice or not fit for its use, and for a number or groups
// mask that is none.
[[nodiscard]] DeviceList ReadDevices(const XmlDocument& document, const std::wstring& file);

}  // namespace plant
