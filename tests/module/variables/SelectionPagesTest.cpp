// The selection pages with real clicks: which boxes exist, the group buttons, what was chosen before, the messages
// sent.
#include <afxwin.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "KZStringIds.h"
#include "MessageBoxes.h"
#include "SelectVarControls.h"
#include "SelectVarMessages.h"
#include "SelectionFixture.h"
#include "SelectionTables.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zep::Family;
using zep::Side;

constexpr std::array Families{Family::General, Family::Power, Family::Harmonic};

class SelectionPages : public SelectionTest {};

bool IsCheckBox(HWND control)
{
    return (::GetWindowLongPtrW(control, GWL_STYLE) & BS_TYPEMASK) == BS_AUTOCHECKBOX &&
           (::SendMessageW(control, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON) != 0;
}

std::set<int> BoxIds(HWND page)
{
    std::set<int> ids;
    for (HWND child = ::GetWindow(page, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (IsCheckBox(child))
            ids.insert(::GetDlgCtrlID(child));
    }
    return ids;
}

std::set<int> BoxIds(const zep::SelectionTable& table)
{
    std::set<int> ids;
    for (int row = 0; row < table.RowCount(); ++row) {
        for (const Side side : zep::Sides) {
            for (int phase = 0; phase < zep::PhaseCount; ++phase) {
                if (table.HasBox({row, phase, side}))
                    ids.insert(table.BoxId({row, phase, side}));
            }
        }
    }
    return ids;
}

TEST_F(SelectionPages, HoldExactlyTheirBoxes)
{
    TestSelection dialog(m_device, m_names);
    dialog.Run({[&] {
        for (const Family family : Families)
            EXPECT_EQ(BoxIds(dialog.Page(family)), BoxIds(TableOf(family)));
        EXPECT_EQ(BoxIds(dialog.Page(Family::General)).size(), 16U);
        EXPECT_EQ(BoxIds(dialog.Page(Family::Power)).size(), 24U);
        EXPECT_EQ(BoxIds(dialog.Page(Family::Harmonic)).size(), 78U);
    }});
}

TEST_F(SelectionPages, HoldExactlyTheirRowSideButtons)
{
    TestSelection dialog(m_device, m_names);
    dialog.Run({[&] {
        for (const Family family : Families) {
            const auto& table = TableOf(family);
            for (int row = 0; row < table.RowCount(); ++row) {
                for (const Side side : zep::Sides) {
                    const HWND button = dialog.Control(family, table.RowButtonId(row, side));
                    EXPECT_EQ(button != nullptr, table.HasRowButton(row, side)) << row;
                }
            }
        }
    }});
}

TEST_F(SelectionPages, TakeTheirCaptionsFromTheHost)
{
    ForEachLanguage([this] {
        TestSelection dialog(m_device, m_names);
        dialog.Run({[&] {
            for (const Family family : Families) {
                EXPECT_EQ(dialog.Text(family, IDC_NET_GROUP), HostText(KZS_NET_SIDE));
                EXPECT_EQ(dialog.Text(family, IDC_LOAD_GROUP), HostText(KZS_LOAD_SIDE));
                EXPECT_EQ(dialog.Text(family, IDC_NET_COLUMN), HostText(KZS_ALL));
                EXPECT_EQ(dialog.Text(family, IDC_NET_COLUMN + 2), L"L2");
            }
            const auto row = [&](Family family, int id) { return dialog.Text(family, id); };
            EXPECT_EQ(row(Family::General, 6700), HostText(342));
            EXPECT_EQ(row(Family::General, 6701), HostText(135));
            EXPECT_EQ(row(Family::General, 6702), HostText(160));
            EXPECT_EQ(row(Family::General, 6703), HostText(347));
            EXPECT_EQ(row(Family::Power, 6910), HostText(24535));
            EXPECT_EQ(row(Family::Power, 6911), HostText(933));
            EXPECT_EQ(row(Family::Power, 6912), HostText(241));
            EXPECT_EQ(row(Family::Power, 6913), HostText(133));
            EXPECT_EQ(row(Family::Harmonic, 7206), HostText(816));
            for (int order = 3; order <= 25; order += 2) {
                const auto expected = KZBasicString::Format(HostText(564).c_str(), order);
                EXPECT_EQ(row(Family::Harmonic, 7206 + (order - 1) / 2), expected.View());
            }
        }});
    });
}

TEST_F(SelectionPages, KeepTheTemplatesTextOnTheHarmonicLoadsAllButton)
{
    ForEachLanguage([this] {
        TestSelection dialog(m_device, m_names);
        dialog.Run({[&] {
            EXPECT_EQ(dialog.Text(Family::General, IDC_LOAD_COLUMN), HostText(KZS_ALL));
            EXPECT_EQ(dialog.Text(Family::Power, IDC_LOAD_COLUMN), HostText(KZS_ALL));
            EXPECT_EQ(dialog.Text(Family::Harmonic, IDC_LOAD_COLUMN), L"Todos");
        }});
    });
}

TEST_F(SelectionPages, AskForOneVariableAtAClickAndGiveItBackAtTheNext)
{
    TestSelection dialog(m_device, m_names);
    dialog.Run({[&] {
        dialog.Click(Family::Harmonic, 7303);
        EXPECT_TRUE(dialog.IsChecked(Family::Harmonic, 7303));
        dialog.Click(Family::Harmonic, 7303);
        EXPECT_FALSE(dialog.IsChecked(Family::Harmonic, 7303));
    }});
    EXPECT_THAT(dialog.notes, ElementsAre(Select(1), Unselect(1)));
}

TEST_F(SelectionPages, TakeARefusedClickBackWithoutGivingAnythingBack)
{
    kztest::MessageBoxes boxes;
    TestSelection dialog(m_device, m_names, 1);
    dialog.Run({[&] {
        dialog.Click(Family::General, 6718);
        dialog.Click(Family::General, 6722);
        EXPECT_FALSE(dialog.IsChecked(Family::General, 6722));
    }});
    EXPECT_THAT(dialog.notes, ElementsAre(Select(1), Select(1, 0)));
}

struct ColumnCase {
    Family family;
    int button;
    WPARAM count;
};

TEST_F(SelectionPages, CountTheBoxesOfEachColumnButton)
{
    const ColumnCase cases[] = {
        {Family::General, 6713, 10},  {Family::General, 6714, 4},   {Family::General, 6715, 3},
        {Family::General, 6716, 3},   {Family::General, 6767, 6},   {Family::General, 6768, 2},
        {Family::General, 6770, 2},   {Family::Power, 6713, 12},    {Family::Power, 6715, 4},
        {Family::Power, 6767, 12},    {Family::Power, 6770, 4},     {Family::Harmonic, 6713, 39},
        {Family::Harmonic, 6714, 13}, {Family::Harmonic, 6767, 39}, {Family::Harmonic, 6769, 13},
    };
    for (const ColumnCase& each : cases) {
        TestSelection dialog(m_device, m_names);
        dialog.Run({[&] {
            dialog.Click(each.family, each.button);
            EXPECT_EQ(dialog.CountChecked(each.family), static_cast<int>(each.count));
            dialog.Click(each.family, each.button);
            EXPECT_EQ(dialog.CountChecked(each.family), 0);
        }});
        EXPECT_THAT(dialog.notes, ElementsAre(Select(each.count), Unselect(each.count))) << each.button;
    }
}

TEST_F(SelectionPages, CheckTheBoxesOfAColumnOnItsSideAlone)
{
    TestSelection dialog(m_device, m_names);
    dialog.Run({[&] {
        dialog.Click(Family::Power, 6769);  // load, L2
        for (int row = 0; row < zep::QuantityRowCount; ++row) {
            for (const Side side : zep::Sides) {
                for (int phase = 0; phase < zep::PhaseCount; ++phase) {
                    const int id = TableOf(Family::Power).BoxId({row, phase, side});
                    EXPECT_EQ(dialog.IsChecked(Family::Power, id), side == Side::Load && phase == 1) << id;
                }
            }
        }
    }});
}

TEST_F(SelectionPages, ToggleARowOnBothSides)
{
    TestSelection dialog(m_device, m_names);
    dialog.Run({[&] {
        dialog.Click(Family::Harmonic, 7206);
        EXPECT_EQ(dialog.CountChecked(Family::Harmonic), 6);
        dialog.Click(Family::Harmonic, 7206);
        EXPECT_EQ(dialog.CountChecked(Family::Harmonic), 0);
        dialog.Click(Family::General, 6701);
        EXPECT_EQ(dialog.CountChecked(Family::General), 1);
    }});
    EXPECT_THAT(dialog.notes, ElementsAre(Select(6), Unselect(6), Select(1)));
}

TEST_F(SelectionPages, ToggleARowOnOneSide)
{
    TestSelection dialog(m_device, m_names);
    dialog.Run({[&] {
        dialog.Click(Family::General, 6889);
        EXPECT_TRUE(dialog.IsChecked(Family::General, 6775));
        EXPECT_TRUE(dialog.IsChecked(Family::General, 6779));
        EXPECT_TRUE(dialog.IsChecked(Family::General, 6783));
        EXPECT_EQ(dialog.CountChecked(Family::General), 3);
    }});
    EXPECT_THAT(dialog.notes, ElementsAre(Select(3)));
}

TEST_F(SelectionPages, CompleteAPartialGroupByWhatItLacks)
{
    TestSelection dialog(m_device, m_names);
    dialog.Run({[&] {
        dialog.Click(Family::Harmonic, 7236);
        dialog.Click(Family::Harmonic, 7249);
        dialog.Click(Family::Harmonic, 7221);
        EXPECT_EQ(dialog.CountChecked(Family::Harmonic), 3);
    }});
    EXPECT_THAT(dialog.notes, ElementsAre(Select(1), Select(1), Select(1)));
}

TEST_F(SelectionPages, ChangeNothingWhenAGroupIsRefused)
{
    kztest::MessageBoxes boxes;
    TestSelection dialog(m_device, m_names, 5);
    dialog.Run({[&] {
        dialog.Click(Family::Harmonic, 7240);
        dialog.Click(Family::Harmonic, 7210);
        EXPECT_EQ(dialog.CountChecked(Family::Harmonic), 1);
        dialog.Click(Family::Harmonic, 6713);
        EXPECT_EQ(dialog.CountChecked(Family::Harmonic), 1);
        dialog.Click(Family::Harmonic, 7225);  // three on one side fit
        EXPECT_EQ(dialog.CountChecked(Family::Harmonic), 3);
    }});
    EXPECT_THAT(dialog.notes, ElementsAre(Select(1), Select(5, 0), Select(38, 0), Select(2)));
}

HIMAGELIST PictureOf(HWND button)
{
    BUTTON_IMAGELIST picture{};
    ::SendMessageW(button, BCM_GETIMAGELIST, 0, reinterpret_cast<LPARAM>(&picture));
    return picture.himl;
}

TEST_F(SelectionPages, ShowATouchedRowByTheSamePictureWhateverItsState)
{
    TestSelection dialog(m_device, m_names);
    dialog.Run({[&] {
        const HWND first = dialog.Control(Family::Power, 7066);
        const HWND second = dialog.Control(Family::Power, 7067);
        const HIMAGELIST untouched = PictureOf(first);
        ASSERT_TRUE(untouched);
        dialog.Click(Family::Power, 6922);  // one box of the row
        const HIMAGELIST touched = PictureOf(first);
        EXPECT_NE(touched, untouched);
        EXPECT_EQ(PictureOf(second), untouched);
        dialog.Click(Family::Power, 6922);  // cleared again
        EXPECT_EQ(PictureOf(first), touched);
        dialog.Click(Family::Power, 6713);  // the whole side
        EXPECT_EQ(PictureOf(second), touched);
        EXPECT_EQ(PictureOf(dialog.Control(Family::Power, 7078)), untouched);  // the other side
    }});
}

TEST_F(SelectionPages, RefreshBothSidesOfAToggledRow)
{
    TestSelection dialog(m_device, m_names);
    dialog.Run({[&] {
        const HWND load = dialog.Control(Family::Harmonic, 7280);
        const HIMAGELIST untouched = PictureOf(load);
        dialog.Click(Family::Harmonic, 7211);
        EXPECT_NE(PictureOf(load), untouched);
        EXPECT_EQ(PictureOf(load), PictureOf(dialog.Control(Family::Harmonic, 7226)));
    }});
}

TEST_F(SelectionPages, KeepTheirPicturesWhenAGroupIsRefused)
{
    kztest::MessageBoxes boxes;
    TestSelection dialog(m_device, m_names, 1);
    dialog.Run({[&] {
        const HIMAGELIST untouched = PictureOf(dialog.Control(Family::Power, 7066));
        for (const int button : {6713, 6910, 7066})
            dialog.Click(Family::Power, button);
        EXPECT_EQ(PictureOf(dialog.Control(Family::Power, 7066)), untouched);
        EXPECT_EQ(dialog.CountChecked(Family::Power), 0);
    }});
}

TEST_F(SelectionPages, IgnoreCommandsOfControlsThatTheyLack)
{
    TestSelection dialog(m_device, m_names);
    dialog.Run({[&] {
        for (const WPARAM id : {6704U, 6717U, 6723U, 6776U, 6886U, 6887U, 6890U, 7326U, 6699U})
            ::SendMessageW(dialog.Page(Family::General), WM_COMMAND, id, 0);
        EXPECT_EQ(dialog.CountChecked(Family::General), 0);
    }});
    EXPECT_THAT(dialog.notes, IsEmpty());
}

TEST_F(SelectionPages, ForwardOkAndCancelToTheDialog)
{
    for (const WPARAM command : {WPARAM{IDOK}, WPARAM{IDCANCEL}}) {
        TestSelection dialog(m_device, m_names);
        EXPECT_EQ(dialog.Run({[&] { ::SendMessageW(dialog.Page(Family::Power), WM_COMMAND, command, 0); }, [] {}}),
                  static_cast<INT_PTR>(command));
    }
}

}  // namespace
