// The documents of a project, as the tests of the editor write them.
#pragma once

#include <string>
#include <string_view>

namespace editor_tests {

// A main configuration with these <device> elements.
[[nodiscard]] std::string MainXml(std::string_view devices);

// One <device> element with the values that a valid one has.
[[nodiscard]] std::string DeviceXml(std::string_view driverId, std::string_view name, std::string_view groups = "0x74",
                                    std::string_view type = "ZEP", std::string_view number = "1");

}  // namespace editor_tests
