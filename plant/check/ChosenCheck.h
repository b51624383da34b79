// What is wrong with the variables that are chosen of a device.
#pragma once

#include "DeviceCheck.h"

namespace plant {

// Appends a finding for each name that no page of the device's selection would offer, for each that comes twice, and
// one when the device can have none at all. Of a model without a table only the device in front of the name is looked
// at.
void CheckChosenVariables(const XmlDocument& main, const KZDeviceIdentity& device, Findings& findings);

}  // namespace plant
