// The device models that the host has a device class for.
#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "KZDriverDevice.h"

struct DeviceType {
    const wchar_t* name;  // the device list's "type"; also the model in a module's file name, KZUsr<name>.dll
    const CRuntimeClass* deviceClass;
    std::unique_ptr<KZDriverDevice> (*make)(KZDeviceIdentity identity);
};

[[nodiscard]] std::span<const DeviceType> DeviceTypes();

// Null for a type without a device class.
[[nodiscard]] const DeviceType* FindDeviceType(std::wstring_view name);

// The host's driver object for a device; of a type without a class of its own a plain one. Never null.
[[nodiscard]] std::unique_ptr<KZDriverDevice> MakeDriver(const KZDeviceIdentity& identity);
