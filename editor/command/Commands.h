// What the commands of the command line do.
#pragma once

#include "Arguments.h"

enum ExitStatus : int { ExitTrue = 0, ExitFalse = 1, ExitError = 2 };

// Runs a command other than Window and Help; prints its result on standard output.
// Throws EditorError when the command cannot be carried out.
[[nodiscard]] ExitStatus RunCommand(const Arguments& arguments);
