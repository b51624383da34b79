// What the size codes and the kinds of control come to, in dialog units.
#include "KZLayout.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "ParameterNames.h"
#include "TestDialog.h"

using namespace controls;

namespace {

struct NamedGap {
    const char* name;
    int code;
    int horizontalUnits;
    int verticalUnits;
};

class LayoutGap : public testing::TestWithParam<NamedGap> {};

TEST_P(LayoutGap, HasItsSizeInDialogUnits)
{
    const NamedGap& gap = GetParam();
    for (const int points : {8, 14}) {
        TestDialog dialog({}, points);
        KZHoritzontalLayout row(dialog.Window());
        row.AddGap(gap.code);
        EXPECT_EQ(row.FixedSize().cx, dialog.X(gap.horizontalUnits));
        KZVerticalLayout column(dialog.Window());
        column.AddGap(gap.code);
        EXPECT_EQ(column.FixedSize().cy, dialog.Y(gap.verticalUnits));
    }
}

INSTANTIATE_TEST_SUITE_P(Codes, LayoutGap,
                         testing::Values(NamedGap{"Natural", 0, 0, 0},
                                         NamedGap{"Standard", static_cast<int>(0xFF000000U), 5, 4},
                                         NamedGap{"TextLine", static_cast<int>(0xFEFFFFFFU), 3, 2},
                                         NamedGap{"CentringGap", static_cast<int>(0xFEFFFFFCU), 70, 8},
                                         NamedGap{"CheckLine", static_cast<int>(0xFEFFFFFBU), 12, 10},
                                         NamedGap{"EditLine", static_cast<int>(0xFEFFFFFAU), 3, 2}),
                         kztest::ByName);

int HeightOf(TestDialog& dialog, int id, int code)
{
    KZVerticalLayout column(dialog.Window());
    column.AddControl(id, code);
    const int needed = column.FixedSize().cy;
    column.Layout(CRect(0, 0, 150, 300));
    return needed;
}

class LayoutFont : public testing::TestWithParam<int> {};

TEST_P(LayoutFont, DecidesTheNaturalHeightOfEveryKindOfControl)
{
    TestDialog dialog({Text(1, L"Text"), Check(2, L"Check"), Edit(3), Push(4), DropList(5)}, GetParam());
    EXPECT_EQ(HeightOf(dialog, 1, KZSizeNatural), dialog.Y(8));
    EXPECT_EQ(HeightOf(dialog, 2, KZSizeNatural), dialog.Y(10));
    EXPECT_EQ(HeightOf(dialog, 3, KZSizeNatural), dialog.Y(13));
    EXPECT_EQ(HeightOf(dialog, 4, KZSizeNatural), dialog.Y(14));
    EXPECT_EQ(HeightOf(dialog, 5, KZSizeNatural), dialog.Place(5).Height());
    EXPECT_EQ(HeightOf(dialog, 4, KZSizeStandard), dialog.Y(14));
}

TEST_P(LayoutFont, DecidesTheHeightOfNamedLines)
{
    TestDialog dialog({Text(1, L"Text")}, GetParam());
    EXPECT_EQ(HeightOf(dialog, 1, KZSizeTextLine), dialog.Y(8));
    EXPECT_EQ(HeightOf(dialog, 1, KZSizeCheckLine), dialog.Y(10));
    EXPECT_EQ(HeightOf(dialog, 1, KZSizeEditLine), dialog.Y(13));
}

INSTANTIATE_TEST_SUITE_P(Points, LayoutFont, testing::Values(8, 10, 16),
                         [](const auto& points) { return std::to_string(points.param) + "Points"; });

TEST(LayoutSizes, AreScaledAsTheDialogsFontIs)
{
    TestDialog small({}, 8, L"Tahoma");
    TestDialog large({}, 16, L"Tahoma");
    EXPECT_GT(large.Y(8), small.Y(8) * 3 / 2);
}

TEST(LayoutSizes, MakeALineHighEnoughForWhatItHolds)
{
    TestDialog dialog{DropList(1), Text(2, L"A")};
    KZHoritzontalLayout row;
    row.AddControl(2, 1);
    row.AddControl(1, 1);
    KZVerticalLayout column(dialog.Window());
    column.AddLayout(row, KZSizeTextLine);
    EXPECT_EQ(column.FixedSize().cy, dialog.Place(1).Height());
}

TEST(LayoutSizes, GiveTextItsOwnWidth)
{
    TestDialog dialog{Text(1, L"WWWW"), Text(2, L"WWWWWWWW"), Text(3, L""), Text(4, L"&WWWW")};
    const auto width = [&dialog](int id) {
        KZHoritzontalLayout row(dialog.Window());
        row.AddControl(id, KZSizeNatural);
        return row.FixedSize().cx;
    };
    EXPECT_GT(width(1), 0);
    EXPECT_EQ(width(2), 2 * width(1));
    EXPECT_EQ(width(3), 0);
    EXPECT_EQ(width(4), width(1)) << "an underlined letter's \"&\" takes no space";
}

TEST(LayoutSizes, LeaveRoomForACheckBoxBesideItsText)
{
    TestDialog dialog{Text(1, L"Harmonic 11"), Check(2, L"Harmonic 11")};
    KZHoritzontalLayout text(dialog.Window());
    text.AddControl(1, KZSizeNatural);
    KZHoritzontalLayout check(dialog.Window());
    check.AddControl(2, KZSizeNatural);
    EXPECT_EQ(check.FixedSize().cx, text.FixedSize().cx + dialog.X(12));
}

TEST(LayoutSizes, MakeButtonsFiftyUnitsWideOrWiderForTheirText)
{
    TestDialog dialog{Push(1, L"OK"), Push(2, L"A button with a really long text on it")};
    KZHoritzontalLayout row(dialog.Window());
    row.AddControl(1, KZSizeNatural);
    row.AddControl(2, KZSizeNatural);
    row.Layout(CRect(0, 0, 600, 20));
    EXPECT_EQ(dialog.Place(1).Width(), dialog.X(50));
    EXPECT_GT(dialog.Place(2).Width(), dialog.X(100));
}

TEST(LayoutSizes, LeaveADropListItsClosedHeightAndItsList)
{
    TestDialog dialog{DropList(1)};
    RECT before{};
    ::SendMessageW(dialog.Item(1), CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&before));
    const int closed = dialog.Place(1).Height();
    KZVerticalLayout column(dialog.Window());
    column.AddControl(1, KZLayout::Pixels2Size(60).cy);
    column.Layout(CRect(0, 0, 120, 60));
    RECT after{};
    ::SendMessageW(dialog.Item(1), CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&after));
    EXPECT_EQ(dialog.Place(1), CRect(0, 0, 120, closed));
    EXPECT_EQ(after.bottom - after.top, before.bottom - before.top);
}

TEST(LayoutSizes, StandTextFieldsAndListsOnTheMiddleOfAHigherRow)
{
    TestDialog dialog{Text(1, L"Unit"), Edit(2), DropList(3), Check(4), Push(5)};
    KZHoritzontalLayout row(dialog.Window());
    for (const int id : {1, 2, 3, 4, 5})
        row.AddControl(id, 1);
    row.Layout(CRect(0, 0, 300, 61));
    for (const int id : {1, 2, 3, 4}) {
        const CRect place = dialog.Place(id);
        EXPECT_LE(std::abs(place.top - (61 - place.bottom)), 1) << "control " << id;
        EXPECT_LT(place.Height(), 61) << "control " << id;
    }
    EXPECT_EQ(dialog.Place(5).Height(), 61) << "a button fills its row";
}

TEST(LayoutSizes, LetATabControlTakeWhatItIsGiven)
{
    TestDialog dialog{Tab(1)};
    KZVerticalLayout column(dialog.Window());
    column.AddControl(1, 100);
    EXPECT_EQ(column.FixedSize().cy, 0);
    column.Layout(CRect(0, 0, 90, 200));
    EXPECT_EQ(dialog.Place(1), CRect(0, 0, 90, 200));
}

TEST(LayoutSizes, KeepLinesWholeInAColumnThatIsShared)
{
    TestDialog dialog{Push(1), Push(2)};
    KZVerticalLayout column(dialog.Window());
    column.AddControl(1, 1);
    column.AddGap(100);
    column.AddControl(2, 1);
    EXPECT_EQ(column.FixedSize().cy, 2 * dialog.Y(14));
    column.Layout(CRect(0, 0, 50, 2 * dialog.Y(14) + 10));
    EXPECT_EQ(dialog.Place(1).Height(), dialog.Y(14));
    EXPECT_EQ(dialog.Place(2).Height(), dialog.Y(14));
    EXPECT_EQ(dialog.Place(2).top, dialog.Place(1).bottom + 10);
}

TEST(LayoutSizes, NeedAWidthAtWhichNoSharedTextIsCut)
{
    TestDialog dialog{Text(1, L"WWWWWWWW"), Text(2, L"W")};
    KZHoritzontalLayout row(dialog.Window());
    row.AddControl(1, 25);
    row.AddControl(2, 75);
    const int needed = row.FixedSize().cx;
    KZHoritzontalLayout single(dialog.Window());
    single.AddControl(1, KZSizeNatural);
    row.Layout(CRect(0, 0, needed, 20));
    EXPECT_EQ(needed, 4 * single.FixedSize().cx);
    EXPECT_EQ(dialog.Place(1).Width(), single.FixedSize().cx);
}

}  // namespace
