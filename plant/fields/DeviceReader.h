// Reads the values of devices from the files of a project, one device after the other.
#pragma once

#include <optional>

#include "DeviceRecords.h"
#include "KZDeviceIdentity.h"
#include "project/StoredProject.h"

namespace plant {

class DeviceReader {
public:
    // Both must outlive this object.
    DeviceReader(const XmlDocument& main, const StoredProject& files) : m_main(main), m_files(files) {}

    // The device's type must have a table. Valid until the next device is read. Throws Refusal when the device's
    // document is broken or cannot be read.
    const DeviceRecords& Read(const KZDeviceIdentity& device);

private:
    const XmlDocument& m_main;
    const StoredProject& m_files;
    XmlDocument m_document{L"device"};
    std::optional<DeviceRecords> m_records;
};

}  // namespace plant
