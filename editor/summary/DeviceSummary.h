// What the project's documents hold of a device: its settings, its units and its limits, in the user's language and
// number format.
#pragma once

#include "SummaryRow.h"
#include "project/Project.h"

// When the device's own document cannot be read, one row gives the reason in place of the settings.
[[nodiscard]] SummaryRows DeviceSummary(plant::Project& project, const KZBasicString& driverId);
