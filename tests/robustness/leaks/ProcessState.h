// Everything that a leak would make more of, counted in this process.
#pragma once

#include <ostream>

#include "GuiResources.h"

struct ProcessState {
    kztest::GuiResources gui;
    int icons = 0;          // and cursors
    int kernelHandles = 0;  // files, threads, events…

    friend bool operator==(const ProcessState&, const ProcessState&) = default;
    friend std::ostream& operator<<(std::ostream& out, const ProcessState& state)
    {
        return out << state.gui << ", " << state.icons << " icons, " << state.kernelHandles << " kernel handles";
    }
};

[[nodiscard]] ProcessState CountProcessState();

// The busy blocks of all heaps, as HeapWalk finds them.
[[nodiscard]] long long CountHeapBytes();
