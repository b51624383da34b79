// The three selection pages as tables: which boxes exist, under which ids, with which captions and names.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>

#include "VariableName.h"

namespace zep {

// A row's caption: a host text, or one formatted with the harmonic order.
struct RowCaption {
    unsigned textId = 0;
    int harmonicOrder = 0;  // 0: the text as it stands
};

struct SelectionRow {
    RowCaption caption;
    std::array<std::uint8_t, 2> phases{};  // by side: bit p is set when the template holds the box of phase p
};

// The first ids of one side's controls.
struct SelectionSideIds {
    int groupBox = 0;
    int column = 0;  // the "all" button; L1 to L3 follow
    int row = 0;     // row-side button of row 0
    int box = 0;     // check box of row 0, phase L1
};

struct SelectionTable {
    Family family = Family::General;
    unsigned templateId = 0;
    int caption = 0;  // caption button of row 0
    std::array<SelectionSideIds, 2> sides;
    std::span<const SelectionRow> rows;
    // Whether the load's "all" button takes its text from the host as the net's does. The harmonic page's keeps the
    // template's text.
    bool loadAllFromHost = true;

    [[nodiscard]] constexpr int RowCount() const noexcept { return static_cast<int>(rows.size()); }
    [[nodiscard]] constexpr const SelectionSideIds& Ids(Side side) const noexcept
    {
        return sides[static_cast<std::size_t>(side)];
    }
    [[nodiscard]] constexpr bool HasBox(const VariablePosition& position) const noexcept
    {
        const auto& row = rows[static_cast<std::size_t>(position.row)];
        return (row.phases[static_cast<std::size_t>(position.side)] >> position.phase & 1U) != 0;
    }
    // A row-side button exists where its side has at least one box.
    [[nodiscard]] constexpr bool HasRowButton(int row, Side side) const noexcept
    {
        return rows[static_cast<std::size_t>(row)].phases[static_cast<std::size_t>(side)] != 0;
    }
    [[nodiscard]] constexpr int BoxId(const VariablePosition& position) const noexcept
    {
        return Ids(position.side).box + position.row + RowCount() * position.phase;
    }
    [[nodiscard]] constexpr int RowButtonId(int row, Side side) const noexcept { return Ids(side).row + row; }
};

[[nodiscard]] const SelectionTable& TableOf(Family family) noexcept;

// What the control with some id acts on: the boxes at the coordinates that it gives. A box gives all three and so
// stands for itself; a caption gives its row, a row-side button its row and side, a column button its side and, unless
// it is the "all" button, its phase.
struct SelectionCommand {
    std::optional<int> row;
    std::optional<Side> side;
    std::optional<int> phase;

    [[nodiscard]] constexpr bool IsBox() const noexcept { return row && side && phase; }
    [[nodiscard]] constexpr bool CoversRow(int otherRow, Side otherSide) const noexcept
    {
        return row.value_or(otherRow) == otherRow && side.value_or(otherSide) == otherSide;
    }
    [[nodiscard]] constexpr bool Covers(const VariablePosition& position) const noexcept
    {
        return CoversRow(position.row, position.side) && phase.value_or(position.phase) == position.phase;
    }

    friend bool operator==(const SelectionCommand&, const SelectionCommand&) noexcept = default;
};

// Nothing for ids that are no control of the page or stand for a box or button that its template lacks.
[[nodiscard]] std::optional<SelectionCommand> CommandOf(const SelectionTable& table, int id) noexcept;

}  // namespace zep
