// What differs between two projects.
#pragma once

#include <string>
#include <vector>

#include "Field.h"
#include "project/DeviceList.h"
#include "project/StoredProject.h"

namespace plant {

// The main configuration document of a project, read, with the devices that it lists.
struct ReadProject {
    const XmlDocument& main;
    const DeviceList& devices;
    const StoredProject& files;
};

struct FieldDifference {
    enum class Kind { Value, Type, OnlyHere, OnlyThere };
    std::string device;  // its name in UTF-8
    Kind kind;
    const Field* field;  // of Value alone
    std::string here;    // of Value and Type
    std::string there;
};

// Compares the devices of the same name: the devices of the one in its order, then those that only the other has.
// Devices whose types have no table are left out. Throws Refusal when a device's document is broken.
[[nodiscard]] std::vector<FieldDifference> Differences(const ReadProject& here, const ReadProject& there);

}  // namespace plant
