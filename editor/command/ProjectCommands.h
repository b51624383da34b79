// The commands that work on the project as a whole, without a module.
#pragma once

#include <memory>

#include "Commands.h"
#include "project/Project.h"

// Opens the project of a command. When editors that are gone have left unsaved changes in it, a line on standard error
// says so. Throws plant::Refusal.
[[nodiscard]] std::unique_ptr<plant::Project> OpenProject(const Arguments& arguments,
                                                          plant::Project::MainIs main = plant::Project::MainIs::Needed);

// All of them throw plant::Refusal when the command cannot be carried out.
[[nodiscard]] ExitStatus ListDevices(const Arguments& arguments);
[[nodiscard]] ExitStatus ListHistory(const Arguments& arguments);
[[nodiscard]] ExitStatus RestoreSave(const Arguments& arguments);
[[nodiscard]] ExitStatus CheckForFaults(const Arguments& arguments);
[[nodiscard]] ExitStatus RecoverUnsaved(const Arguments& arguments);
