// What must be true of a project's documents whatever a user did in the options: they are well-formed, and every record
// that a dialog wrote holds what the dialog's own rules allow.
#pragma once

#include <string>

// The first rule that the main configuration breaks; empty when there is none. A message can uncheck the radio buttons
// of a unit's decimals, which no user can: the unit then has -1.
[[nodiscard]] std::string BrokenRuleOfConfiguration(const std::string& text, int fewestDecimals = 0);
// The same of a device's document.
[[nodiscard]] std::string BrokenRuleOfDevice(const std::string& text);
