// The states of all modules in words.
#pragma once

#include <string>
#include <vector>

#include "ModuleLoader.h"

struct ModuleRow {
    std::wstring file;  // without folder
    std::wstring model;
    std::wstring version;  // empty when the file has none
    ModuleStatus status;
    const char* stateWord;  // for programs, the same in every language: "ready", "missing", …
};

// Every module file, and one row for each type of device that has none.
[[nodiscard]] std::vector<ModuleRow> ModuleRows(const ModuleLoader& modules);

// One line for each module, with reason and remedy for those that are not ready; one line when there is no module.
[[nodiscard]] std::wstring ModuleSummary(const ModuleLoader& modules);
