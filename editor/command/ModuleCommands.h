// The command that lists the driver modules.
#pragma once

#include "Commands.h"

// Prints one line for each module file beside the program, and one for each type of device of the host that has none.
[[nodiscard]] ExitStatus ListModules(const Arguments& arguments);
