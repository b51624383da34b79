// The commands that take a plant to a spreadsheet and back.
#pragma once

#include "Commands.h"

// Both throw plant::Refusal when the command cannot be carried out, and have printed and written nothing then.
[[nodiscard]] ExitStatus ExportDevices(const Arguments& arguments);
[[nodiscard]] ExitStatus ImportDevices(const Arguments& arguments);
