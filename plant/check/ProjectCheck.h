// What is wrong with a whole project.
#pragma once

#include <span>

#include "DeviceCheck.h"
#include "project/DeviceList.h"
#include "project/DeviceSetups.h"
#include "project/StoredProject.h"

namespace plant {

// Looks at every document of a project, or at some of its devices alone, and goes on after each fault. The order is
// that of the documents: the device list, each device, setups of no device, documents of no device.
//   devices  names or driverIds, a name first; empty for the whole project
// Throws Refusal when a device is named that the project does not have.
[[nodiscard]] Findings CheckProject(const StoredProject& project, std::span<const std::wstring> devices);

// Appends a finding for each setup of a list that is not the first of its driverId or whose driverId no device has.
void CheckSetups(const XmlDocument& main, const zep::SetupList& setups, const DeviceList& devices, Findings& findings);

// Takes the device's document out of those of a project; what is left in the end belongs to no device.
void TakeOutOwned(DocumentFiles& documents, const KZDeviceIdentity& device);
// Appends a finding for each document that is left.
void ReportStrays(const DocumentFiles& left, Findings& findings);

}  // namespace plant
