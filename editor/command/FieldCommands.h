// The commands on the fields of many devices at once.
#pragma once

#include "Commands.h"
#include "changes/FieldEdit.h"

// All of them throw plant::Refusal when the command cannot be carried out, and have printed and written nothing then.
[[nodiscard]] ExitStatus ListFields(const Arguments& arguments);
[[nodiscard]] ExitStatus PrintValues(const Arguments& arguments);
[[nodiscard]] ExitStatus SetValues(const Arguments& arguments);
[[nodiscard]] ExitStatus CopyValues(const Arguments& arguments);
[[nodiscard]] ExitStatus CompareProjects(const Arguments& arguments);

// One line on standard error for each, which names device and place where it concerns a device.
void PrintFindings(const std::vector<plant::Finding>& findings);

// How a command that changes fields ends: says why it is refused, one line for each finding, or saves the changes,
// unless it is a dry run, and prints one line for each.
[[nodiscard]] ExitStatus Conclude(const Arguments& arguments, const plant::Project& project, plant::FieldEdit& edit,
                                  const char* command);
