// Reads the devices out of the main configuration's "devices" section.
#pragma once

#include <filesystem>
#include <memory>
#include <vector>

#include "DeviceType.h"
#include "KZXmlDocument.h"

struct Device {
    std::unique_ptr<KZDriverDevice> driver;  // never null
    const DeviceType* type;                  // null: listed, but no module can serve it
};

// The devices in the document's order. The file is named in errors only.
// Throws EditorError for a driverId or name that is missing, used twice or not fit for its use, and for a number or
// groups mask that is none.
[[nodiscard]] std::vector<Device> ReadDevices(const XmlDocument& document, const std::filesystem::path& file);
