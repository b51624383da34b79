// What is asked before a save that writes documents of devices.
#pragma once

#include <optional>

#include "changes/Review.h"

// How much a save changes that writes documents of devices; nothing when none of them waits in the project, or when it
// cannot be told.
[[nodiscard]] std::optional<plant::ReviewCount> CountToSave(plant::Project& project);

// Names how much is saved. Returns whether to save.
[[nodiscard]] bool AskToSave(const plant::ReviewCount& count);

// Asks that when there is something to count; otherwise the answer is yes.
[[nodiscard]] bool MaySave(plant::Project& project);
