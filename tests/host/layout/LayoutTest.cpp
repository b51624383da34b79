#include "KZLayout.h"

#include <gtest/gtest.h>

#include "TestDialog.h"

using namespace controls;

namespace {

void LayOutRow(KZLayout& row, int width, int height = 40)
{
    row.Layout(CRect(0, 0, width, height));
}

TEST(Layout, SharesTheWidthOfARowInProportion)
{
    TestDialog dialog{Push(1), Push(2), Push(3)};
    KZHoritzontalLayout row(dialog.Window());
    row.AddControl(1, 25);
    row.AddControl(2, 50);
    row.AddControl(3, 25);
    LayOutRow(row, 400);
    EXPECT_EQ(dialog.Place(1), CRect(0, 0, 100, 40));
    EXPECT_EQ(dialog.Place(2), CRect(100, 0, 300, 40));
    EXPECT_EQ(dialog.Place(3), CRect(300, 0, 400, 40));
}

TEST(Layout, MakesRoomForATextThatWasSetAfterItMeasured)
{
    TestDialog dialog{Text(1, L"A")};
    KZHoritzontalLayout row(dialog.Window());
    row.AddControl(1, KZSizeNatural);
    const CSize before = row.FixedSize();
    dialog.Window()->SetDlgItemText(1, L"A much longer text");
    EXPECT_GT(row.FixedSize().cx, before.cx);
}

TEST(Layout, StacksAColumnFromTopToBottomOverItsWholeWidth)
{
    TestDialog dialog{Push(1), Push(2)};
    KZVerticalLayout column(dialog.Window());
    column.AddControl(1, KZLayout::Pixels2Size(30).cy);
    column.AddGap(KZLayout::Pixels2Size(5).cy);
    column.AddControl(2, 1);
    column.Layout(CRect(10, 20, 110, 120));
    EXPECT_EQ(dialog.Place(1), CRect(10, 20, 110, 50));
    EXPECT_EQ(dialog.Place(2), CRect(10, 55, 110, 120));
}

TEST(Layout, LinesColumnsOfEqualSharesUpWhateverTheirRowsHold)
{
    TestDialog dialog{Text(1, L"A"), Check(2, L"a much longer text"), Text(3, L"Bbbb"), Push(4)};
    KZHoritzontalLayout upper(dialog.Window());
    KZHoritzontalLayout lower(dialog.Window());
    upper.AddControl(1, 33);
    upper.AddGap(KZSizeTextLine);
    upper.AddControl(2, 34);
    lower.AddControl(3, 33);
    lower.AddGap(KZSizeTextLine);
    lower.AddControl(4, 34);
    LayOutRow(upper, 123);
    LayOutRow(lower, 123);
    EXPECT_EQ(dialog.Place(1).left, dialog.Place(3).left);
    EXPECT_EQ(dialog.Place(1).right, dialog.Place(3).right);
    EXPECT_EQ(dialog.Place(2).left, dialog.Place(4).left);
    EXPECT_EQ(dialog.Place(2).right, 123);
    EXPECT_EQ(dialog.Place(4).right, 123);
}

TEST(Layout, LeavesOutAControlThatTheDialogLacks)
{
    TestDialog dialog{Push(1), Push(2)};
    KZHoritzontalLayout row(dialog.Window());
    row.AddControl(1, 1);
    row.AddControl(99, 5);
    row.AddControl(2, 1);
    LayOutRow(row, 100);
    EXPECT_EQ(dialog.Place(2), CRect(50, 0, 100, 40));
}

TEST(Layout, KeepsThePlaceOfAHiddenControl)
{
    TestDialog dialog{Push(1), Push(2)};
    ::ShowWindow(dialog.Item(1), SW_HIDE);
    KZHoritzontalLayout row(dialog.Window());
    row.AddControl(1, 1);
    row.AddControl(2, 1);
    LayOutRow(row, 100);
    EXPECT_EQ(dialog.Place(2).left, 50);
    EXPECT_FALSE(::GetWindowLongW(dialog.Item(1), GWL_STYLE) & WS_VISIBLE);
}

TEST(Layout, NestsRowsInColumns)
{
    TestDialog dialog{Push(1), Push(2), Push(3)};
    KZHoritzontalLayout row;
    row.AddControl(1, 1);
    row.AddControl(2, 1);
    KZVerticalLayout column(dialog.Window());
    column.AddLayout(row, KZLayout::Pixels2Size(20).cy);
    column.AddControl(3, 1);
    column.Layout(CRect(0, 0, 100, 60));
    EXPECT_EQ(dialog.Place(1), CRect(0, 0, 50, 20));
    EXPECT_EQ(dialog.Place(2), CRect(50, 0, 100, 20));
    EXPECT_EQ(dialog.Place(3), CRect(0, 20, 100, 60));
}

TEST(Layout, LooksForANestedLayoutsControlsInItsOwnDialog)
{
    TestDialog outer{Push(1)};
    TestDialog inner{Push(1)};
    KZHoritzontalLayout nested(inner.Window());
    nested.AddControl(1, 1);
    KZVerticalLayout column(outer.Window());
    column.AddControl(1, KZLayout::Pixels2Size(10).cy);
    column.AddLayout(nested, KZLayout::Pixels2Size(15).cy);
    column.Layout(CRect(0, 0, 50, 25));
    EXPECT_EQ(outer.Place(1), CRect(0, 0, 50, 10));
    EXPECT_EQ(inner.Place(1), CRect(0, 10, 50, 25));
}

TEST(Layout, TakesItsDialogAfterConstruction)
{
    TestDialog dialog{Push(1)};
    KZVerticalLayout column;
    column.SetParent(dialog.Window());
    column.AddControl(1, 1);
    column.Layout(CRect(0, 0, 70, 30));
    EXPECT_EQ(dialog.Place(1), CRect(0, 0, 70, 30));
}

TEST(Layout, KeepsItsBordersFree)
{
    TestDialog dialog{Push(1)};
    KZVerticalLayout column(dialog.Window());
    column.SetBorders(KZLayout::Pixels2Size(6).cx, KZSizeStandard);
    column.AddControl(1, 1);
    column.Layout(CRect(0, 0, 100, 60));
    EXPECT_EQ(dialog.Place(1), CRect(6, dialog.Y(4), 94, 60 - dialog.Y(4)));
}

TEST(Layout, PutsALabelAboveItsControls)
{
    TestDialog dialog{Text(1, L"Decimals"), Check(2, L"0"), Check(3, L"1")};
    const int ids[] = {2, 3};
    KZVerticalLayout column(dialog.Window());
    column.AddControlsAndLabel(1, 1, ids, 2);
    column.AddGap(100);
    column.Layout(CRect(0, 0, 80, 200));
    EXPECT_EQ(dialog.Place(1), CRect(0, 0, 80, dialog.Y(8)));
    EXPECT_EQ(dialog.Place(2).top, dialog.Y(8) + dialog.Y(2));
    EXPECT_EQ(dialog.Place(2).Height(), dialog.Y(10));
    EXPECT_EQ(dialog.Place(3).top, dialog.Place(2).bottom + dialog.Y(2));
    EXPECT_EQ(column.FixedSize().cy, dialog.Place(3).bottom);
}

TEST(Layout, LeavesTheOrderOfControlsAlone)
{
    TestDialog dialog{Push(1), Push(2)};
    KZHoritzontalLayout row(dialog.Window());
    row.AddControl(2, 1);
    row.AddControl(1, 1);
    LayOutRow(row, 100);
    EXPECT_EQ(::GetWindow(dialog.Item(1), GW_HWNDNEXT), dialog.Item(2));
}

TEST(Layout, NeverMakesASizeNegative)
{
    TestDialog dialog{Push(1), Push(2), Group(3)};
    KZHoritzontalLayout row(dialog.Window());
    row.SetBoxControl(3, KZSizeStandard, true);
    row.SetBorders(KZSizeStandard, KZSizeStandard);
    row.AddControl(1, 1);
    row.AddGap(KZSizeCentringGap);
    row.AddControl(2, 1);
    row.Layout(CRect(0, 0, 10, 3));
    EXPECT_EQ(dialog.Place(1).Width(), 0);
    EXPECT_EQ(dialog.Place(1).Height(), 0);
    EXPECT_EQ(dialog.Place(2).Width(), 0);
    EXPECT_EQ(dialog.Place(3), CRect(0, 0, 10, 3));
}

TEST(Layout, HasEverythingDrawnAnewAfterMovingInAVisibleDialog)
{
    TestDialog dialog{Push(1), Push(2), Push(3)};
    ::ShowWindow(dialog.Window()->m_hWnd, SW_SHOW);
    ::RedrawWindow(dialog.Window()->m_hWnd, nullptr, nullptr, RDW_VALIDATE | RDW_ALLCHILDREN);
    KZHoritzontalLayout row(dialog.Window());
    for (const int id : {1, 2, 3})
        row.AddControl(id, 1);
    LayOutRow(row, 300);
    for (const int id : {1, 2, 3}) {
        CRect update;
        ::GetUpdateRect(dialog.Item(id), &update, FALSE);
        EXPECT_EQ(update, CRect(0, 0, 100, 40)) << "control " << id;
    }
}

TEST(Layout, CodesPixelsAsNegativeSizes)
{
    EXPECT_EQ(KZLayout::Pixels2Size(12), CSize(-12, -12));
    EXPECT_EQ(KZLayout::Pixels2Size(0), CSize(0, 0));
    EXPECT_EQ(KZLayout::Pixels2Size(-3), CSize(0, 0));
    EXPECT_EQ(KZLayout::Pixels2Size(0x7FFFFFFF), CSize(-0xFFFFFF, -0xFFFFFF));
    EXPECT_GT(KZLayout::Pixels2Size(0x7FFFFFFF).cx, static_cast<LONG>(KZSizeStandard));
}

}  // namespace
