// The states of all modules in words.
#pragma once

#include <string>

#include "ModuleLoader.h"

// One line for each module, with reason and remedy for those that are not ready; one line when there is no module.
[[nodiscard]] std::wstring ModuleSummary(const ModuleLoader& modules);
