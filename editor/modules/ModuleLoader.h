// The driver modules beside the editor.
#pragma once

#include <vector>

#include "Module.h"
#include "project/DeviceList.h"

class ModuleLoader {
public:
    // Loads every KZUsr*.dll of the folder, in the order of their names. A module that fails does not stop the others.
    explicit ModuleLoader(const std::filesystem::path& folder);

    [[nodiscard]] const std::vector<Module>& Modules() const noexcept { return m_modules; }

    // The state of the module that serves a device; Missing when there is no file for its type.
    [[nodiscard]] ModuleStatus StatusOf(const Device& device) const;

    // What the module of a device registered; null unless that module is ready and registered the device's class.
    [[nodiscard]] const KZDriverCallbacks* CallbacksOf(const Device& device) const;

private:
    [[nodiscard]] const Module* ModuleOf(const Device& device) const;

    std::filesystem::path m_folder;
    std::vector<Module> m_modules;
};

// The folder of the running program.
[[nodiscard]] std::filesystem::path ProgramFolder();
