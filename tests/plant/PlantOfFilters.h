// A project of two filters and a device of another type, for tests of what is set for them.
#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <vector>

#include "KZMainCfg.h"
#include "TemporaryFolder.h"
#include "project/Project.h"

namespace kztest {

struct TestDevice {
    const char* driverId;
    const char* name;
    const char* type = "ZEP";
};

class PlantOfFilters : public testing::Test {
protected:
    PlantOfFilters() { WriteDevices({{"zep-1", "Feeder 1"}, {"xyz-2", "Meter 2", "XYZ"}, {"zep-3", "Feeder 3"}}); }

    // Writes the list of devices, and what stands behind it in the document.
    void WriteDevices(const std::vector<TestDevice>& devices, const std::string& behind = "") const
    {
        WriteDevicesOf(m_folder, devices, behind);
    }
    static void WriteDevicesOf(const TemporaryFolder& folder, const std::vector<TestDevice>& devices,
                               const std::string& behind = "")
    {
        std::string list;
        for (const auto& [driverId, name, type] : devices)
            list.append("<device><driverId>")
                .append(driverId)
                .append("</driverId><name>")
                .append(name)
                .append("</name><type>")
                .append(type)
                .append("</type></device>\n");
        folder.Write("main.xml", "<configuration><devices>" + list + "</devices>" + behind + "</configuration>\n");
    }
    // Writes the document of a device, with these values in its information.
    static void WriteInformation(const TemporaryFolder& folder, const std::string& driverId, const std::string& values)
    {
        folder.Write("devices/" + driverId + ".xml", "<device><information>" + values + "</information></device>\n");
    }
    // Opens the project as it is on disk.
    plant::Project& Opened()
    {
        m_project.reset();
        return m_project.emplace(m_folder.Path());
    }

    TemporaryFolder m_folder;
    std::optional<plant::Project> m_project;
};

}  // namespace kztest
