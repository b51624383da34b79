// Reads the values of devices from the files of a project, one device after the other.
#pragma once

#include <optional>
#include <string>

#include "DeviceRecords.h"
#include "KZDeviceIdentity.h"
#include "project/StoredProject.h"

namespace plant {

class DeviceReader {
public:
    // Both must outlive this object.
    DeviceReader(const XmlDocument& main, const StoredProject& files) : m_main(main), m_files(files) {}

    // The device's type must have a table. Valid until the next device is read. Who has just read the device of another
    // project names that reader: most documents are the same, and are then not read into a tree again; the values are
    // valid until that reader goes on, too. Throws Refusal when the device's document is broken or cannot be read.
    const DeviceRecords& Read(const KZDeviceIdentity& device, const DeviceReader* beside = nullptr);

private:
    const XmlDocument& m_main;
    const StoredProject& m_files;
    std::optional<std::string> m_bytes;  // of the device's document, if there is one
    XmlDocument m_document{L"device"};
    const XmlDocument::XmlNode* m_root = nullptr;  // what the bytes say
    std::optional<DeviceRecords> m_records;
};

}  // namespace plant
