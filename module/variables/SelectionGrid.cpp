#include "SelectionGrid.h"

namespace zep {
namespace {

constexpr int SideColumns = 1 + PhaseCount;  // "all" and row-side buttons, then the phases
constexpr int Columns = 1 + 2 * SideColumns;

constexpr int RowsOf(const SelectionTable& table) noexcept
{
    return 1 + table.RowCount();
}

// The id of the control there, 0 where the page has none.
int IdAt(const SelectionTable& table, GridPlace place) noexcept
{
    const int row = place.row - 1;
    if (place.column == 0)
        return row < 0 ? 0 : table.caption + row;
    const auto side = static_cast<Side>((place.column - 1) / SideColumns);
    const int column = (place.column - 1) % SideColumns;
    if (row < 0)
        return table.Ids(side).column + column;
    if (column == 0)
        return table.HasRowButton(row, side) ? table.RowButtonId(row, side) : 0;
    const VariablePosition position{row, column - 1, side};
    return table.HasBox(position) ? table.BoxId(position) : 0;
}

}  // namespace

std::optional<GridPlace> PlaceInGrid(const SelectionTable& table, int id) noexcept
{
    for (int row = 0; row < RowsOf(table); ++row) {
        for (int column = 0; column < Columns; ++column) {
            if (const GridPlace place{row, column}; id != 0 && IdAt(table, place) == id)
                return place;
        }
    }
    return std::nullopt;
}

std::vector<int> WalkGrid(const SelectionTable& table, GridPlace from, int rowStep, int columnStep)
{
    const int rows = RowsOf(table);
    std::vector<int> ids;
    GridPlace place = from;
    do {
        place.row = (place.row + rowStep + rows) % rows;
        place.column = (place.column + columnStep + Columns) % Columns;
        if (const int id = IdAt(table, place))
            ids.push_back(id);
    } while (place != from);
    return ids;
}

}  // namespace zep
