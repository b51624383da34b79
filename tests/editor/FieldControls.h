// The controls of the module's dialogs that show a field: by control id, and what they hold in the words of the
// commands.
#pragma once

#include <windows.h>

#include <map>
#include <string>
#include <vector>

namespace editor_tests {

struct FieldControl {
    enum class Kind { Text, Number, Boxes, Radios, List };

    Kind kind = Kind::Text;
    std::vector<int> ids;                 // one, or one for each name
    std::vector<std::string> names = {};  // of boxes, radio buttons, items
};

using FieldControls = std::map<std::string, FieldControl>;  // by key

enum class LimitsPage { Power, Net, Load };

[[nodiscard]] FieldControls DeviceFieldControls();
[[nodiscard]] FieldControls UnitFieldControls();
[[nodiscard]] FieldControls LimitFieldControls(LimitsPage page);

// What the control shows; empty when it shows nothing. The dialog is that of any process.
[[nodiscard]] std::string ShownIn(HWND dialog, const FieldControl& control);

// Makes the control show another value, as a user would.
void EnterInto(HWND dialog, const FieldControl& control, const std::string& value);

}  // namespace editor_tests
