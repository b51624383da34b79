// The host's device class for the ZEP active harmonic filter. Modules register under its run-time class.
#pragma once

#include "KZDriverDevice.h"

class KZ_API KZDriverDeviceZEP : public KZDriverDevice {
    DECLARE_DYNAMIC(KZDriverDeviceZEP)

public:
    explicit KZDriverDeviceZEP(KZDeviceIdentity identity);
    ~KZDriverDeviceZEP() override;
};
