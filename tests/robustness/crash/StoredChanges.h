// The unsaved changes that a worker stores: all of them follows from their number.
#pragma once

#include <string>

#include "SavedContent.h"
#include "project/RecoveryFormat.h"

// One to four documents, together from about 100 bytes to 400 KB. The time is the number.
[[nodiscard]] inline plant::Unsaved ChangesOf(long number)
{
    plant::Unsaved changes;
    changes.time = number;
    changes.documents["main.xml"] = ContentOf(number);
    changes.before["main.xml"] = std::nullopt;
    for (long device = 0; device < number % 4; ++device) {
        const std::string name = "devices/zep-" + std::to_string(device) + ".xml";
        if (number % 5 != 0)
            changes.documents[name] = ContentOf(number * 3 + device);
        else
            changes.documents[name] = std::nullopt;
        changes.before[name] = static_cast<std::uint64_t>(number);
    }
    return changes;
}
