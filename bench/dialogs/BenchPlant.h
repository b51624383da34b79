// What the dialogs need around them: one device with its document, its units and its limits.
#pragma once

#include "KZDriverDeviceZEP.h"
#include "TemporaryFolder.h"

class BenchPlant {
public:
    BenchPlant();
    ~BenchPlant();
    BenchPlant(const BenchPlant&) = delete;
    BenchPlant& operator=(const BenchPlant&) = delete;

    [[nodiscard]] KZDriverDeviceZEP& Device() noexcept { return m_device; }

private:
    kztest::TemporaryFolder m_folder;
    KZDriverDeviceZEP m_device;
};
