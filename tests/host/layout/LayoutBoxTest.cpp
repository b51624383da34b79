// Layouts inside group boxes.
#include "KZLayout.h"

#include <gtest/gtest.h>

#include "TestDialog.h"

using namespace controls;

namespace {

constexpr int Box = 9;

TEST(LayoutBox, IsMovedAroundItsContent)
{
    TestDialog dialog{Group(Box), Push(1)};
    KZVerticalLayout column(dialog.Window());
    column.SetBoxControl(Box, KZSizeStandard, true);
    column.AddControl(1, 1);
    column.Layout(CRect(10, 20, 210, 220));
    EXPECT_EQ(dialog.Place(Box), CRect(10, 20, 210, 220));
    const CRect content = dialog.Place(1);
    EXPECT_EQ(content.left, 10 + dialog.X(2) + dialog.X(5));
    EXPECT_EQ(content.right, 210 - dialog.X(2) - dialog.X(5));
    EXPECT_EQ(content.top, 20 + dialog.Y(9) + dialog.Y(4)) << "below the caption";
    EXPECT_EQ(content.bottom, 220 - dialog.Y(1) - dialog.Y(4));
}

TEST(LayoutBox, TakesItsBorderInPixelsToo)
{
    TestDialog dialog{Group(Box), Push(1)};
    KZVerticalLayout column(dialog.Window());
    column.SetBoxControl(Box, KZLayout::Pixels2Size(3).cx, true);
    column.AddControl(1, 1);
    column.Layout(CRect(0, 0, 100, 100));
    EXPECT_EQ(dialog.Place(1).left, dialog.X(2) + 3);
    EXPECT_EQ(dialog.Place(1).top, dialog.Y(9) + 3);
}

TEST(LayoutBox, HasItsBordersInsideTheFrame)
{
    TestDialog dialog{Group(Box), Push(1)};
    KZVerticalLayout column(dialog.Window());
    column.SetBoxControl(Box, 0, true);
    column.SetBorders(KZLayout::Pixels2Size(4).cx, KZLayout::Pixels2Size(7).cy);
    column.AddControl(1, 1);
    column.Layout(CRect(0, 0, 100, 100));
    EXPECT_EQ(dialog.Place(Box), CRect(0, 0, 100, 100));
    EXPECT_EQ(dialog.Place(1), CRect(dialog.X(2) + 4, dialog.Y(9) + 7, 96 - dialog.X(2), 93 - dialog.Y(1)));
}

TEST(LayoutBox, IsPartOfTheSizeThatTheLayoutNeeds)
{
    TestDialog dialog{Group(Box), Push(1)};
    KZVerticalLayout column(dialog.Window());
    column.AddControl(1, KZSizeNatural);
    const CSize bare = column.FixedSize();
    column.SetBoxControl(Box, KZSizeStandard, true);
    EXPECT_EQ(column.FixedSize().cy, bare.cy + dialog.Y(9) + dialog.Y(1) + 2 * dialog.Y(4));
    EXPECT_EQ(column.FixedSize().cx, bare.cx + 2 * dialog.X(2) + 2 * dialog.X(5));
}

TEST(LayoutBox, IsWideEnoughForItsCaption)
{
    TestDialog dialog{Group(Box, L"A caption much longer than the content of the box"), Push(1)};
    KZVerticalLayout column(dialog.Window());
    column.SetBoxControl(Box, KZSizeStandard, true);
    column.AddControl(1, KZSizeNatural);
    EXPECT_GT(column.FixedSize().cx, 3 * dialog.X(50));
}

class BoxedRow {
public:
    explicit BoxedRow(bool alignTop) : m_row(m_dialog.Window())
    {
        m_row.SetBoxControl(Box, KZSizeStandard, alignTop);
        m_row.AddControl(1, 1);
        m_needed = m_row.FixedSize().cy;
        m_row.Layout(CRect(0, 0, 200, m_needed + 40));
    }
    [[nodiscard]] int SpaceAbove() const { return m_dialog.Place(1).top - m_dialog.Y(9) - m_dialog.Y(4); }
    [[nodiscard]] int Height() const { return m_dialog.Place(1).Height(); }
    [[nodiscard]] int Natural() const { return m_dialog.Y(14); }

private:
    TestDialog m_dialog{Group(Box), Push(1)};
    KZHoritzontalLayout m_row;
    int m_needed = 0;
};

TEST(LayoutBox, KeepsItsContentAtTheTop)
{
    const BoxedRow boxed(true);
    EXPECT_EQ(boxed.SpaceAbove(), 0);
    EXPECT_EQ(boxed.Height(), boxed.Natural());
}

TEST(LayoutBox, CentresItsContent)
{
    const BoxedRow boxed(false);
    EXPECT_EQ(boxed.SpaceAbove(), 20);
    EXPECT_EQ(boxed.Height(), boxed.Natural());
}

TEST(LayoutBox, GivesSharesInsideItAllItsHeight)
{
    TestDialog dialog{Group(Box), Edit(1)};
    KZHoritzontalLayout row;
    row.AddControl(1, 1);
    KZVerticalLayout column(dialog.Window());
    column.SetBoxControl(Box, KZSizeStandard, true);
    column.AddGap(50);
    column.AddLayout(row, KZSizeEditLine);
    column.AddGap(50);
    const int needed = column.FixedSize().cy;
    column.Layout(CRect(0, 0, 100, needed + 40));
    EXPECT_EQ(dialog.Place(1).top, dialog.Y(9) + dialog.Y(4) + 20);
    EXPECT_EQ(dialog.Place(1).Height(), dialog.Y(13));
}

TEST(LayoutBox, StaysBehindItsContent)
{
    TestDialog dialog{Push(1), Group(Box)};
    KZVerticalLayout column(dialog.Window());
    column.SetBoxControl(Box, KZSizeStandard, true);
    column.AddControl(1, 1);
    column.Layout(CRect(0, 0, 100, 100));
    EXPECT_EQ(::GetWindow(dialog.Item(1), GW_HWNDNEXT), dialog.Item(Box));
}

TEST(LayoutBox, MayBeMissing)
{
    TestDialog dialog{Push(1)};
    KZVerticalLayout column(dialog.Window());
    column.SetBoxControl(Box, KZSizeStandard, true);
    column.AddControl(1, 1);
    column.Layout(CRect(0, 0, 100, 100));
    EXPECT_EQ(dialog.Place(1).left, dialog.X(2) + dialog.X(5));
}

}  // namespace
