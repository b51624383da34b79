// How the arrow keys walk a selection page: its controls as a grid. The row of column buttons comes first; in the other
// rows the caption is column 0, and each side has its row-side button below "all" and its boxes below L1 to L3.
#pragma once

#include <optional>
#include <vector>

#include "SelectionTables.h"

namespace zep {

struct GridPlace {
    int row = 0;
    int column = 0;

    friend bool operator==(const GridPlace&, const GridPlace&) noexcept = default;
};

// Where the control of that id stands; nothing when it is none of the grid.
[[nodiscard]] std::optional<GridPlace> PlaceInGrid(const SelectionTable& table, int id) noexcept;

// The ids of the controls that follow from a place by steps of so many rows and columns (one of them 0, the other 1 or
// -1), round the edges, the control at the place itself last. Throws std::bad_alloc.
[[nodiscard]] std::vector<int> WalkGrid(const SelectionTable& table, GridPlace from, int rowStep, int columnStep);

}  // namespace zep
