// What the list of devices shows of each, which of them, and in which order. Knows no window.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "check/DeviceCheck.h"
#include "modules/ModuleLoader.h"
#include "project/DeviceFilter.h"
#include "project/Project.h"

enum class DeviceColumn { Signs, Number, Name, Description, Variables, Model };
inline constexpr int DeviceColumnCount = 6;

// What the first column says of a device. That it is marked is the list's own affair.
struct DeviceSigns {
    bool isChanged = false;
    bool hasFindings = false;
    bool hasNoModule = false;
};

class DeviceRows {
public:
    // Both must outlive this object.
    DeviceRows(plant::Project& project, const ModuleLoader& modules);

    // The project's devices or their variables have changed: all of them, or those that a change names.
    void Refresh(const plant::ProjectChange& change);
    // Signs the devices that have findings; they are found by the words of these too. Returns whether other rows are
    // shown now.
    bool ShowFindings(const plant::Findings& findings);
    // Only the devices in which every word of the text occurs.
    void Filter(const std::wstring& text);
    // In ascending or descending order of a column; at first in the project's order.
    void Sort(DeviceColumn column, bool isDescending);

    // The devices that are shown, by their places in the project's list.
    [[nodiscard]] const std::vector<std::size_t>& Shown() const noexcept { return m_shown; }
    [[nodiscard]] std::wstring Text(std::size_t device, DeviceColumn column) const;
    [[nodiscard]] DeviceSigns SignsOf(std::size_t device) const;

private:
    [[nodiscard]] std::wstring ModelOf(std::size_t device) const;
    [[nodiscard]] std::wstring MoreWordsOf(std::size_t device) const;
    [[nodiscard]] std::size_t WeightOf(std::size_t device, DeviceColumn column) const;
    void CountVariables(const plant::ProjectChange& change);
    void Order();

    plant::Project& m_project;
    const ModuleLoader& m_modules;
    plant::DeviceFilter m_filter;
    std::wstring m_text;
    std::optional<DeviceColumn> m_sorted;
    bool m_isDescending = false;
    std::vector<std::size_t> m_shown;
    std::vector<int> m_variables;                                     // chosen ones, by device
    std::map<std::wstring, plant::Findings, std::less<>> m_findings;  // by the device's name
};
