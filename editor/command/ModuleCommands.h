// The commands that tell of the modules and of all that the editor needs.
#pragma once

#include "Commands.h"

// Prints one line for each module file beside the program, and one for each type of device of the host that has none.
[[nodiscard]] ExitStatus ListModules(const Arguments& arguments);

// Prints the diagnosis; false when something is wrong.
[[nodiscard]] ExitStatus DiagnoseInstallation(const Arguments& arguments);
