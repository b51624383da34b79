// What is wrong with one device of a project: its document, its values, its chosen variables.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "KZDeviceIdentity.h"
#include "changes/Finding.h"
#include "fields/DeviceRecords.h"

namespace plant {

using Findings = std::vector<Finding>;

// The root element of a device's document; nothing for one that is missing or empty. Throws Refusal when it is broken.
// The element is valid until the next call.
using DeviceReading = std::function<const XmlDocument::XmlNode*(const std::string& name)>;

class DeviceCheck {
public:
    // The main configuration document and what reads the others must outlive this object.
    DeviceCheck(const XmlDocument& main, DeviceReading read) : m_main(main), m_read(std::move(read)) {}

    // Appends what a user has to mend. A value that the documents lack is no fault.
    void Check(const KZDeviceIdentity& device, Findings& findings);

private:
    void CheckValues(const std::string& name, Findings& findings) const;
    void CheckLimits(const std::string& name, Findings& findings) const;

    const XmlDocument& m_main;
    DeviceReading m_read;
    std::optional<DeviceRecords> m_records;  // of the device that is looked at
};

}  // namespace plant
