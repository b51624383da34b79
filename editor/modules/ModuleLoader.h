// The driver modules beside the editor.
#pragma once

#include <vector>

#include "Module.h"

class ModuleLoader {
public:
    // Loads every KZUsr*.dll of the folder, in the order of their names. A module that fails does not stop the others.
    explicit ModuleLoader(const std::filesystem::path& folder);

    [[nodiscard]] const std::vector<Module>& Modules() const noexcept { return m_modules; }

    // The state of the module that serves the devices of a type; Missing when there is no file for it.
    [[nodiscard]] ModuleStatus StatusOf(const KZBasicString& typeName) const;

    // What the module of a type registered; null unless that module is ready and registered the type's device class.
    [[nodiscard]] const KZDriverCallbacks* CallbacksOf(const KZBasicString& typeName) const;

private:
    [[nodiscard]] const Module* ModuleOf(const KZBasicString& typeName) const;

    std::filesystem::path m_folder;
    std::vector<Module> m_modules;
};

// The file of the running program, or of one of its libraries.
[[nodiscard]] std::filesystem::path ProgramFile(HMODULE library = nullptr);
// The folder of the running program.
[[nodiscard]] std::filesystem::path ProgramFolder();
