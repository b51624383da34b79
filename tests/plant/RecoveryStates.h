// What the tests of recovery files store, and what they find.
#pragma once

#include <string>

#include "RefusalOf.h"
#include "project/DocumentName.h"
#include "project/Recovery.h"
#include "project/Sealed.h"

namespace plant {

// Each differs from the next in every part, in its length too.
[[nodiscard]] inline Unsaved StateOf(long number)
{
    const std::string text = "<configuration>" + std::to_string(number) + "</configuration>";
    Unsaved unsaved;
    unsaved.time = 17'000'000'000'000'000 + number;
    unsaved.documents["main.xml"] = text;
    unsaved.before["main.xml"] = HashOf(text);
    const std::string device = "devices/zep-" + std::to_string(number % 7) + ".xml";
    if (number % 3 == 0) {
        unsaved.documents[device] = std::string(static_cast<std::size_t>(number % 100), 'x');
        unsaved.before[device] = std::nullopt;
    } else if (number % 3 == 1) {
        unsaved.documents[device] = std::nullopt;
        unsaved.before[device] = static_cast<std::uint64_t>(number);
    }
    return unsaved;
}

inline bool operator==(const Message& a, const Message& b)
{
    return a.text == b.text && a.arguments == b.arguments;
}

}  // namespace plant
