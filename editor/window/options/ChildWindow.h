// A window around the options dialog of one device.
#pragma once

#include "KZDriverServices.h"

// Shows the window until the user closes it. Returns whether the factory made a dialog.
[[nodiscard]] bool ShowChildWindow(KZDriver* driver, KZChildOptionsFactory factory);
