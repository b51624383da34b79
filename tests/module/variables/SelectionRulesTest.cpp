#include "SelectionRules.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace zep {
namespace {

GroupToggle ToggleOfCounts(std::size_t checked, std::size_t clear)
{
    return ToggleOf({checked, clear});
}

TEST(GroupToggle, CompletesAPartialGroupByItsClearBoxes)
{
    const GroupToggle toggle = ToggleOfCounts(2, 1);
    EXPECT_TRUE(toggle.select);
    EXPECT_EQ(toggle.count, 1U);
}

TEST(GroupToggle, FillsAnEmptySelection)
{
    const GroupToggle toggle = ToggleOfCounts(0, 39);
    EXPECT_TRUE(toggle.select);
    EXPECT_EQ(toggle.count, 39U);
}

TEST(GroupToggle, ClearsAFullGroupByItsCheckedBoxes)
{
    const GroupToggle toggle = ToggleOfCounts(6, 0);
    EXPECT_FALSE(toggle.select);
    EXPECT_EQ(toggle.count, 6U);
}

TEST(GroupToggle, CountsAGroupWithoutSelectableBoxesAsFull)
{
    const GroupToggle toggle = ToggleOfCounts(0, 0);
    EXPECT_FALSE(toggle.select);
    EXPECT_EQ(toggle.count, 0U);
}

TEST(GroupState, CountsCheckedAndClearApart)
{
    GroupState state;
    state.Add(true);
    state.Add(false);
    state.Add(true);
    EXPECT_EQ(state.checked, 2U);
    EXPECT_EQ(state.clear, 1U);
}

TEST(Maximum, OfZeroIsNoLimit)
{
    EXPECT_TRUE(FitsMaximum(1000000, 1000000, 0));
    EXPECT_TRUE(FitsMaximum(std::numeric_limits<std::size_t>::max(), 1, 0));
}

TEST(Maximum, MayBeReachedExactly)
{
    EXPECT_TRUE(FitsMaximum(3, 2, 5));
    EXPECT_FALSE(FitsMaximum(3, 3, 5));
    EXPECT_TRUE(FitsMaximum(0, 5, 5));
    EXPECT_FALSE(FitsMaximum(5, 1, 5));
    EXPECT_TRUE(FitsMaximum(5, 0, 5));
}

TEST(Maximum, IsNotFooledByACountThatWouldWrap)
{
    EXPECT_FALSE(FitsMaximum(4, std::numeric_limits<std::size_t>::max(), 5));
    EXPECT_FALSE(FitsMaximum(6, 0, 5));
}

TEST(Maximum, BelowZeroAdmitsNothing)
{
    EXPECT_FALSE(FitsMaximum(0, 1, -1));
    EXPECT_TRUE(FitsMaximum(0, 0, -1));
}

TEST(RunningCount, NeverFallsBelowZero)
{
    EXPECT_EQ(Without(5, 2), 3U);
    EXPECT_EQ(Without(3, 3), 0U);
    EXPECT_EQ(Without(2, 3), 0U);
    EXPECT_EQ(Without(2, std::numeric_limits<std::size_t>::max()), 0U);
}

}  // namespace
}  // namespace zep
