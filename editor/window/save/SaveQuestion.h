// What is asked before a save that writes documents of devices.
#pragma once

#include "changes/Review.h"

// Names how much is saved. Returns whether to save.
[[nodiscard]] bool AskToSave(const plant::ReviewCount& count);
