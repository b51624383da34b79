#include "SelectionTables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "SelectVarControls.h"
#include "SelectionGrid.h"

namespace zep {
namespace {

enum class Kind { Box, Row, RowSide, Column };

Kind KindOf(const SelectionCommand& command)
{
    if (command.IsBox())
        return Kind::Box;
    if (!command.row)
        return Kind::Column;
    return command.side ? Kind::RowSide : Kind::Row;
}

const SelectionTable& General = TableOf(Family::General);
const SelectionTable& Power = TableOf(Family::Power);
const SelectionTable& Harmonic = TableOf(Family::Harmonic);

// Here alone the numbers themselves stand: they are the platform's, so a header that changed one would be wrong.
TEST(SelectionTables, GiveEachBoxItsId)
{
    EXPECT_EQ(Harmonic.BoxId({0, 0, Side::Net}), 7236);
    EXPECT_EQ(Harmonic.BoxId({0, 2, Side::Net}), 7262);
    EXPECT_EQ(Harmonic.BoxId({1, 0, Side::Load}), 7289);
    EXPECT_EQ(Harmonic.BoxId({2, 1, Side::Load}), 7303);
    EXPECT_EQ(Harmonic.BoxId({12, 2, Side::Load}), 7326);
    EXPECT_EQ(General.BoxId({2, 1, Side::Net}), 6724);
    EXPECT_EQ(General.BoxId({3, 2, Side::Load}), 6783);
    EXPECT_EQ(General.BoxId({1, 0, Side::Net}), 6719);
    EXPECT_EQ(Power.BoxId({3, 2, Side::Net}), 6933);
    EXPECT_EQ(Power.BoxId({1, 0, Side::Load}), 6971);
}

TEST(SelectionTables, GeneralPageHasNoLoadVoltageAndOneFrequency)
{
    for (int phase = 0; phase < PhaseCount; ++phase) {
        EXPECT_TRUE(General.HasBox({0, phase, Side::Net}));
        EXPECT_FALSE(General.HasBox({0, phase, Side::Load}));
        EXPECT_EQ(General.HasBox({FrequencyRow, phase, Side::Net}), phase == 0);
        EXPECT_FALSE(General.HasBox({FrequencyRow, phase, Side::Load}));
    }
    EXPECT_TRUE(General.HasRowButton(FrequencyRow, Side::Net));
    EXPECT_FALSE(General.HasRowButton(0, Side::Load));
    EXPECT_FALSE(General.HasRowButton(FrequencyRow, Side::Load));
    EXPECT_TRUE(General.HasRowButton(2, Side::Load));
}

TEST(SelectionTables, OnlyTheHarmonicPageKeepsTheTemplatesTextOnTheLoadsAllButton)
{
    EXPECT_TRUE(General.loadAllFromHost);
    EXPECT_TRUE(Power.loadAllFromHost);
    EXPECT_FALSE(Harmonic.loadAllFromHost);
}

// Every id from below the first to above the last, against the ranges as the templates number them.
struct Range {
    int first;
    int last;
    Kind kind;
    Side side;
};

void ExpectCommandsInExactly(const SelectionTable& table, const std::vector<Range>& ranges,
                             const std::vector<int>& absentBoxes)
{
    for (int id = 6690; id <= 7340; ++id) {
        const Range* expected = nullptr;
        for (const Range& range : ranges) {
            if (id >= range.first && id <= range.last)
                expected = &range;
        }
        if (std::find(absentBoxes.begin(), absentBoxes.end(), id) != absentBoxes.end())
            expected = nullptr;
        const auto command = CommandOf(table, id);
        ASSERT_EQ(command.has_value(), expected != nullptr) << id;
        if (expected) {
            EXPECT_EQ(KindOf(*command), expected->kind) << id;
            if (expected->kind != Kind::Row) {
                EXPECT_EQ(command->side, expected->side) << id;
            }
        }
    }
}

TEST(SelectionCommands, CoverExactlyTheHarmonicPagesControls)
{
    ExpectCommandsInExactly(Harmonic,
                            {{7206, 7218, Kind::Row, Side::Net},
                             {6713, 6716, Kind::Column, Side::Net},
                             {6767, 6770, Kind::Column, Side::Load},
                             {7221, 7233, Kind::RowSide, Side::Net},
                             {7275, 7287, Kind::RowSide, Side::Load},
                             {7236, 7274, Kind::Box, Side::Net},
                             {7288, 7326, Kind::Box, Side::Load}},
                            {});
}

TEST(SelectionCommands, CoverExactlyTheGeneralPagesControls)
{
    ExpectCommandsInExactly(General,
                            {{6700, 6703, Kind::Row, Side::Net},
                             {6713, 6716, Kind::Column, Side::Net},
                             {6767, 6770, Kind::Column, Side::Load},
                             {6874, 6877, Kind::RowSide, Side::Net},
                             {6888, 6889, Kind::RowSide, Side::Load},
                             {6718, 6729, Kind::Box, Side::Net},
                             {6774, 6783, Kind::Box, Side::Load}},
                            {6723, 6727, 6776, 6777, 6780, 6781});
}

TEST(SelectionCommands, CoverExactlyThePowerPagesControls)
{
    ExpectCommandsInExactly(Power,
                            {{6910, 6913, Kind::Row, Side::Net},
                             {6713, 6716, Kind::Column, Side::Net},
                             {6767, 6770, Kind::Column, Side::Load},
                             {7066, 7069, Kind::RowSide, Side::Net},
                             {7078, 7081, Kind::RowSide, Side::Load},
                             {6922, 6933, Kind::Box, Side::Net},
                             {6970, 6981, Kind::Box, Side::Load}},
                            {});
}

TEST(SelectionCommands, AllButtonCoversEveryPhaseAndTheOthersOneEach)
{
    EXPECT_EQ(CommandOf(Power, 6713), (SelectionCommand{std::nullopt, Side::Net, std::nullopt}));
    EXPECT_EQ(CommandOf(Power, 6714), (SelectionCommand{std::nullopt, Side::Net, 0}));
    EXPECT_EQ(CommandOf(Power, 6716), (SelectionCommand{std::nullopt, Side::Net, 2}));
    EXPECT_EQ(CommandOf(Power, 6770), (SelectionCommand{std::nullopt, Side::Load, 2}));
}

TEST(SelectionGrids, HaveNoPlaceForWhatIsNoControlOfTheirs)
{
    for (const SelectionTable* table : {&General, &Power, &Harmonic})
        for (const int id : {0, 1, IDC_SELECTVAR_TAB})
            EXPECT_FALSE(PlaceInGrid(*table, id)) << id;
}

TEST(SelectionCommands, FindTheRowOfEachButtonAndBox)
{
    EXPECT_EQ(CommandOf(Harmonic, 7218)->row, 12);
    EXPECT_EQ(CommandOf(Harmonic, 7233)->row, 12);
    EXPECT_EQ(CommandOf(Harmonic, 7276), (SelectionCommand{1, Side::Load, std::nullopt}));
    EXPECT_EQ(CommandOf(General, 6889)->row, 3);
    EXPECT_EQ(CommandOf(Power, 7079)->row, 1);
}

TEST(SelectionCommands, FindEveryBoxBackFromItsId)
{
    for (const Family family : {Family::General, Family::Power, Family::Harmonic}) {
        const SelectionTable& table = TableOf(family);
        for (int row = 0; row < table.RowCount(); ++row) {
            for (const Side side : Sides) {
                for (int phase = 0; phase < PhaseCount; ++phase) {
                    const VariablePosition position{row, phase, side};
                    if (table.HasBox(position)) {
                        EXPECT_EQ(CommandOf(table, table.BoxId(position)), (SelectionCommand{row, side, phase}));
                    }
                }
            }
        }
    }
}

TEST(SelectionCommands, CoverTheBoxesAtTheirCoordinates)
{
    const VariablePosition position{3, 1, Side::Load};
    EXPECT_TRUE((SelectionCommand{3, std::nullopt, std::nullopt}.Covers(position)));
    EXPECT_TRUE((SelectionCommand{3, Side::Load, std::nullopt}.Covers(position)));
    EXPECT_TRUE((SelectionCommand{std::nullopt, Side::Load, std::nullopt}.Covers(position)));
    EXPECT_TRUE((SelectionCommand{std::nullopt, Side::Load, 1}.Covers(position)));
    EXPECT_FALSE((SelectionCommand{2, std::nullopt, std::nullopt}.Covers(position)));
    EXPECT_FALSE((SelectionCommand{3, Side::Net, std::nullopt}.Covers(position)));
    EXPECT_FALSE((SelectionCommand{std::nullopt, Side::Load, 0}.Covers(position)));
}

}  // namespace
}  // namespace zep
