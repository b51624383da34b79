// The names that the id headers of module, host and the editor's dialogs give their controls.
#pragma once

#include <string>

namespace kztest {

// "IDC_HARMONIC_ROW + 3" for a control id; "-" for a control without one; the number where no header names it.
[[nodiscard]] std::string NameOfControl(int id);

}  // namespace kztest
