// What a device is set to, as rows of text: every field of its type, in the user's language and number format.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "KZDeviceIdentity.h"
#include "project/Project.h"

struct SummaryRow {
    std::wstring section;
    std::wstring name;
    std::wstring value;
    std::wstring unit;

    friend bool operator==(const SummaryRow&, const SummaryRow&) = default;
};

using SummaryRows = std::vector<SummaryRow>;

// One row for each field. When the device's own document cannot be read, one row gives the reason in place of those of
// its section; when the type of the device has no fields, one row says so.
[[nodiscard]] SummaryRows DeviceSummary(plant::Project& project, const KZDeviceIdentity& device);

// The same of several devices: a value that they do not all have is said to be different. Of none there are no rows.
[[nodiscard]] SummaryRows DeviceSummary(plant::Project& project, std::span<const KZDeviceIdentity* const> devices);
