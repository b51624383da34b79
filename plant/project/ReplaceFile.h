// A file put into the place of another in one step: whoever looks sees the old one or the new one whole.
#pragma once

#include <string_view>

#include "Disk.h"
#include "text/Refusal.h"

namespace plant {

// Others look at files for a moment, virus scanners above all: what fails for that is tried again for half a second.
template <class Operation>
void Insist(Operation operation)
{
    constexpr int tries = 25;
    constexpr int pause = 20;  // milliseconds
    for (int count = 1;; ++count) {
        try {
            return operation();
        } catch (const Refusal& refusal) {
            const unsigned text = refusal.What().text;
            if (count == tries || (text != IDS_PLANT_FILE_IN_USE && text != IDS_PLANT_FILE_DENIED))
                throw;
        }
        KZPause(pause);
    }
}

// Throws Refusal when a file cannot be put there: the one that is there is read-only, in use, or a folder.
void RequireReplaceable(Disk& disk, const Path& file);

// Writes a file, over the one of that name if there is one. Throws Refusal; the old one then stands, and nothing is
// left beside it.
void ReplaceInOneStep(Disk& disk, const Path& file, std::string_view bytes);

}  // namespace plant
