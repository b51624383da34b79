// The host's driver objects for the devices of a project, made when they are first asked for.
#pragma once

#include <memory>
#include <vector>

#include "DeviceType.h"
#include "project/DeviceList.h"

class DeviceDrivers {
public:
    // The list must live as long as this object, and change only together with Reset.
    explicit DeviceDrivers(const plant::DeviceList& devices) : m_devices(devices), m_drivers(devices.size()) {}

    // The driver of the device at that place in the list; of a model without a class of its own a plain device.
    // Valid until Reset.
    [[nodiscard]] KZDriver& operator[](std::size_t index)
    {
        std::unique_ptr<KZDriverDevice>& driver = m_drivers[index];
        if (!driver)
            driver = MakeDriver(m_devices[index]);
        return *driver;
    }

    // The list has changed: all drivers go.
    void Reset()
    {
        m_drivers.clear();
        m_drivers.resize(m_devices.size());
    }

private:
    const plant::DeviceList& m_devices;
    std::vector<std::unique_ptr<KZDriverDevice>> m_drivers;
};
