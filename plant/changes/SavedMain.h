// The main configuration document as its file holds it.
#pragma once

#include <string>
#include <unordered_map>

#include "project/Project.h"

namespace plant {

class SavedMain {
public:
    // Throws Refusal when the file cannot be read.
    explicit SavedMain(const Project& project);

    [[nodiscard]] const std::string& Bytes() const noexcept { return m_bytes; }
    [[nodiscard]] const XmlDocument& Main() const noexcept { return m_main; }
    [[nodiscard]] const DeviceList& Devices() const noexcept { return m_devices; }
    // Null when it lists no such device.
    [[nodiscard]] const KZDeviceIdentity* Find(const KZBasicString& driverId) const;

private:
    std::string m_bytes;
    XmlDocument m_main{L"configuration"};
    DeviceList m_devices;
    std::unordered_map<std::wstring_view, const KZDeviceIdentity*> m_byId;
};

}  // namespace plant
