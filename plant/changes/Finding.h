// What is wrong with a project, or with what somebody wants to change in it.
#pragma once

#include <string>

#include "text/Refusal.h"

namespace plant {

struct Finding {
    std::string device;  // its name in UTF-8; empty when it concerns none
    std::string place;   // the key of a field, or a document's name
    Message reason;

    friend bool operator==(const Finding&, const Finding&) = default;
};

}  // namespace plant
