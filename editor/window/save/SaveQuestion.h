// What is asked before a save that writes documents of devices.
#pragma once

#include "changes/Review.h"

// Names how much is saved. Returns whether to save.
[[nodiscard]] bool AskToSave(const plant::ReviewCount& count);

// Asks that when documents of devices wait in the project; otherwise, or when it cannot be told how much, the answer is
// yes.
[[nodiscard]] bool MaySave(plant::Project& project);
