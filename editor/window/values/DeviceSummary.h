// What a device is set to, as rows of text: every field of its type, in the user's language and number format.
#pragma once

#include <chrono>
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

// The same of several devices: the settings that all have, where a value that they do not share is said to be
// different.
class CommonValues {
public:
    // The devices by their places in the project's list; both must stay as they are.
    CommonValues(plant::Project& project, std::vector<std::size_t> devices)
        : m_project(project), m_devices(std::move(devices))
    {
    }

    // Goes on for about so long, and for one device at least. Returns whether there is more to do.
    bool Work(std::chrono::milliseconds slice);
    [[nodiscard]] const SummaryRows& Rows() const noexcept { return m_rows; }

private:
    void Add(const SummaryRows& rows);

    plant::Project& m_project;
    std::vector<std::size_t> m_devices;
    std::size_t m_next = 0;
    SummaryRows m_rows;
};
