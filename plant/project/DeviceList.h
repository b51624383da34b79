// Reads the devices out of the main configuration's "devices" section.
#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

#include "KZDeviceIdentity.h"
#include "KZXmlDocument.h"
#include "text/Refusal.h"

namespace plant {

using DeviceList = std::vector<KZDeviceIdentity>;

// Why a device cannot be told apart from others, or what it says of itself not be read.
struct DeviceFault {
    std::wstring device;  // what messages call it
    Message reason;
};

// The devices in the document's order. The file is named in messages only. A driverId or name that is missing, used
// twice or not fit for its use, and a number or groups mask that is none, are faults; of the devices those without a
// driverId of their own are then left out. Those that are there twice are told last.
[[nodiscard]] DeviceList ReadDevices(const XmlDocument& document, const std::wstring& file,
                                     std::vector<DeviceFault>& faults);

// The same; throws Refusal for the first fault.
[[nodiscard]] DeviceList ReadDevices(const XmlDocument& document, const std::wstring& file);

// The place in the list of the device of that name, or of that name or else driverId. Throws Refusal, naming the file
// and the devices that there are, when there is none.
[[nodiscard]] std::size_t DeviceByName(const DeviceList& devices, std::wstring_view name,
                                       const std::filesystem::path& file);
[[nodiscard]] std::size_t DeviceByNameOrId(const DeviceList& devices, std::wstring_view text,
                                           const std::filesystem::path& file);

}  // namespace plant
