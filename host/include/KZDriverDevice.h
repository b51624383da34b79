// A driver object that is a device of the project: it takes its values from the project's device list.
#pragma once

#include "KZDeviceIdentity.h"
#include "KZDriver.h"

class KZ_API KZDriverDevice : public KZDriver {
    DECLARE_DYNAMIC(KZDriverDevice)

public:
    explicit KZDriverDevice(KZDeviceIdentity identity);
    ~KZDriverDevice() override;

    [[nodiscard]] const KZBasicString& DriverId() const override;
    [[nodiscard]] const KZBasicString& Name() const override;
    [[nodiscard]] const KZVariableGroups& VariableGroups() const override;
    [[nodiscard]] int Number() const override;
    [[nodiscard]] const KZBasicString& TypeName() const override;
    [[nodiscard]] const KZBasicString& Description() const override;

private:
    KZDeviceIdentity m_identity;
};
