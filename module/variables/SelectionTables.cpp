#include "SelectionTables.h"

#include "KZStringIds.h"
#include "SelectVarControls.h"

namespace zep {
namespace {

constexpr std::uint8_t None = 0b000;
constexpr std::uint8_t OnlyL1 = 0b001;
constexpr std::uint8_t All = 0b111;

// There is no load voltage and no load frequency, and one frequency only.
constexpr std::array<SelectionRow, QuantityRowCount> GeneralRows{{
    {{KZS_PHASE_VOLTAGE, 0}, {All, None}},
    {{KZS_FREQUENCY, 0}, {OnlyL1, None}},
    {{KZS_CURRENT, 0}, {All, All}},
    {{KZS_CURRENT_DISTORTION, 0}, {All, All}},
}};

constexpr std::array<SelectionRow, QuantityRowCount> PowerRows{{
    {{KZS_ACTIVE_POWER, 0}, {All, All}},
    {{KZS_REACTIVE_POWER, 0}, {All, All}},
    {{KZS_APPARENT_POWER, 0}, {All, All}},
    {{KZS_POWER_FACTOR, 0}, {All, All}},
}};

constexpr auto HarmonicRows = [] {
    std::array<SelectionRow, HarmonicRowCount> rows{};
    rows[0] = {{KZS_FUNDAMENTAL, 0}, {All, All}};
    for (int row = 1; row < HarmonicRowCount; ++row)
        rows[static_cast<std::size_t>(row)] = {{KZS_HARMONIC_ORDER, HarmonicOrder(row)}, {All, All}};
    return rows;
}();

constexpr std::array<SelectionTable, FamilyCount> Tables{{
    {Family::General,
     IDD_SELECTVAR_GENERAL,
     IDC_GENERAL_CAPTION,
     {{{IDC_NET_GROUP, IDC_NET_COLUMN, IDC_GENERAL_NET_ROW, IDC_GENERAL_NET_BOX},
       {IDC_LOAD_GROUP, IDC_LOAD_COLUMN, IDC_GENERAL_LOAD_ROW, IDC_GENERAL_LOAD_BOX}}},
     GeneralRows,
     true},
    {Family::Power,
     IDD_SELECTVAR_POWER,
     IDC_POWER_CAPTION,
     {{{IDC_NET_GROUP, IDC_NET_COLUMN, IDC_POWER_NET_ROW, IDC_POWER_NET_BOX},
       {IDC_LOAD_GROUP, IDC_LOAD_COLUMN, IDC_POWER_LOAD_ROW, IDC_POWER_LOAD_BOX}}},
     PowerRows,
     true},
    {Family::Harmonic,
     IDD_SELECTVAR_HARMONIC,
     IDC_HARMONIC_CAPTION,
     {{{IDC_NET_GROUP, IDC_NET_COLUMN, IDC_HARMONIC_NET_ROW, IDC_HARMONIC_NET_BOX},
       {IDC_LOAD_GROUP, IDC_LOAD_COLUMN, IDC_HARMONIC_LOAD_ROW, IDC_HARMONIC_LOAD_BOX}}},
     HarmonicRows,
     false},
}};

constexpr int BoxCount(const SelectionTable& table) noexcept
{
    int count = 0;
    for (int row = 0; row < table.RowCount(); ++row) {
        for (const Side side : Sides) {
            for (int phase = 0; phase < PhaseCount; ++phase)
                count += table.HasBox({row, phase, side}) ? 1 : 0;
        }
    }
    return count;
}
static_assert(BoxCount(Tables[0]) == 16 && BoxCount(Tables[1]) == 24 && BoxCount(Tables[2]) == 78);

// The offset of an id in a run of ids, or nothing outside it.
constexpr std::optional<int> OffsetIn(int id, int first, int count) noexcept
{
    if (id < first || id >= first + count)
        return std::nullopt;
    return id - first;
}

std::optional<SelectionCommand> SideCommand(const SelectionTable& table, Side side, int id) noexcept
{
    const auto& ids = table.Ids(side);
    const int rows = table.RowCount();
    if (const auto column = OffsetIn(id, ids.column, 1 + PhaseCount))
        return SelectionCommand{std::nullopt, side, *column == 0 ? std::nullopt : std::optional(*column - 1)};
    if (const auto row = OffsetIn(id, ids.row, rows); row && table.HasRowButton(*row, side))
        return SelectionCommand{row, side, std::nullopt};
    if (const auto box = OffsetIn(id, ids.box, rows * PhaseCount)) {
        const VariablePosition position{*box % rows, *box / rows, side};
        if (table.HasBox(position))
            return SelectionCommand{position.row, side, position.phase};
    }
    return std::nullopt;
}

}  // namespace

const SelectionTable& TableOf(Family family) noexcept
{
    return Tables[static_cast<std::size_t>(family)];
}

std::optional<SelectionCommand> CommandOf(const SelectionTable& table, int id) noexcept
{
    if (const auto row = OffsetIn(id, table.caption, table.RowCount()))
        return SelectionCommand{row, std::nullopt, std::nullopt};
    for (const Side side : Sides) {
        if (const auto command = SideCommand(table, side, id))
            return command;
    }
    return std::nullopt;
}

}  // namespace zep
