#include "layout/ShareOut.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

std::vector<int> Lengths(std::vector<LayoutPart> parts, int space, SharePolicy policy = SharePolicy::Proportional)
{
    ShareOut(parts, space, policy);
    std::vector<int> lengths;
    for (const LayoutPart& part : parts)
        lengths.push_back(part.length);
    return lengths;
}

LayoutPart Fixed(int length)
{
    return {.length = length};
}

LayoutPart Share(int share, int smallest = 0)
{
    return {.share = share, .smallest = smallest};
}

using L = std::vector<int>;

TEST(ShareOut, GivesEachShareItsProportionOfWhatTheFixedPartsLeave)
{
    EXPECT_EQ(Lengths({Fixed(10), Share(1), Share(3)}, 90), (L{10, 20, 60}));
}

TEST(ShareOut, FillsTheSpaceToThePixel)
{
    EXPECT_EQ(Lengths({Share(1), Share(1), Share(1)}, 100), (L{33, 33, 34}));
    EXPECT_EQ(Lengths({Share(33), Share(34), Share(33)}, 101), (L{33, 34, 34}));
}

TEST(ShareOut, NeverGivesLessThanNothing)
{
    EXPECT_EQ(Lengths({Fixed(80), Share(1), Share(1)}, 50), (L{80, 0, 0}));
    EXPECT_EQ(Lengths({Share(1, 30)}, -5, SharePolicy::KeepSmallest), (L{0}));
}

TEST(ShareOut, LetsAProportionCutAShareThatNeedsMore)
{
    EXPECT_EQ(Lengths({Share(1, 40), Share(1)}, 60), (L{30, 30}));
}

TEST(ShareOut, KeepsTheSmallestLengthOfEveryShareWhenAskedTo)
{
    EXPECT_EQ(Lengths({Share(1, 40), Share(1), Share(1)}, 60, SharePolicy::KeepSmallest), (L{40, 10, 10}));
    EXPECT_EQ(Lengths({Share(1, 13), Share(100)}, 100, SharePolicy::KeepSmallest), (L{13, 87}));
}

TEST(ShareOut, FixesSharesThatOnlyOthersNeedsMakeTooSmall)
{
    // 100 in proportion 1:1:2 is 25, 25, 50; the first needs 60, which leaves the second 13 of the 20 it needs.
    EXPECT_EQ(Lengths({Share(1, 60), Share(1, 20), Share(2)}, 100, SharePolicy::KeepSmallest), (L{60, 20, 20}));
}

TEST(ShareOut, FallsBackToTheProportionWhenTheSmallestLengthsDoNotFit)
{
    EXPECT_EQ(Lengths({Share(1, 40), Share(1, 40)}, 60, SharePolicy::KeepSmallest), (L{30, 30}));
}

TEST(SmallestSpace, AddsTheSmallestLengthsUpWhenTheyAreKept)
{
    const std::vector<LayoutPart> parts = {Fixed(5), Share(1, 40), Share(100), Share(1, 7)};
    EXPECT_EQ(SmallestSpace(parts, SharePolicy::KeepSmallest), 52);
}

TEST(SmallestSpace, IsWideEnoughForTheNeediestShareInProportion)
{
    const std::vector<LayoutPart> parts = {Fixed(5), Share(25, 10), Share(50, 41), Share(25)};
    EXPECT_EQ(SmallestSpace(parts, SharePolicy::Proportional), 5 + 82);
    EXPECT_GE(Lengths(parts, 5 + 82)[2], 41);
    EXPECT_LT(Lengths(parts, 5 + 81)[2], 41);
}

TEST(SmallestSpace, IsTheFixedLengthWhereNothingIsShared)
{
    const std::vector<LayoutPart> parts = {Fixed(5), Fixed(8)};
    EXPECT_EQ(SmallestSpace(parts, SharePolicy::Proportional), 13);
}

}  // namespace
