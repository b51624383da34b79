// Who shows a project hears what has changed in it.
#pragma once

#include <span>

#include "KZBasicString.h"

namespace plant {

struct ProjectChange {
    // Another content altogether, or nobody knows what: whatever is shown is to be read anew.
    bool isAll = false;
    // Devices came, went or are called otherwise: places in Project::Devices() count no longer.
    bool isListChanged = false;
    // The devices whose values, chosen variables or documents may differ now, those that came or went among them.
    std::span<const KZBasicString> driverIds = {};
};

// A call with none of these says that something was saved. After every call Project::IsDirty, ChangedDevices and what
// can be undone may differ. The project must not be changed from inside a call.
class ProjectListener {
public:
    virtual void OnProjectChanged(const ProjectChange& change) noexcept = 0;

protected:
    ~ProjectListener() = default;
};

}  // namespace plant
