// What the project's device list says of one device.
#pragma once

#include "KZBasicString.h"
#include "KZVariableGroups.h"

struct KZDeviceIdentity {
    KZBasicString driverId;
    KZBasicString name;
    int number = 0;
    KZBasicString typeName;
    KZBasicString description;
    KZVariableGroups groups;
};
