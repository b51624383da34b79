// The host's driver object: one configured device as the drivers' modules see it.
#pragma once

#include <afx.h>

#include "KZBasicString.h"
#include "KZVariableGroups.h"

class KZ_API KZDriver : public CObject {
    DECLARE_DYNAMIC(KZDriver)

public:
    // The driver's identifier: the key of its records in the main configuration and the name of its device document.
    [[nodiscard]] virtual const KZBasicString& DriverId() const = 0;
    // The device's name, the part before the "." of its variables' full names.
    [[nodiscard]] virtual const KZBasicString& Name() const = 0;
    // The variable groups that this device model provides; bit 0 is the least significant.
    [[nodiscard]] virtual const KZVariableGroups& VariableGroups() const = 0;
    // The device's number in its project.
    [[nodiscard]] virtual int Number() const = 0;
    // The key under which KZQuorvelantaSetup::DriverName knows the model.
    [[nodiscard]] virtual const KZBasicString& TypeName() const = 0;
    // The engineer's description of the device.
    [[nodiscard]] virtual const KZBasicString& Description() const = 0;
};
