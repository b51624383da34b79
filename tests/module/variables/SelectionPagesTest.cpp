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
            EXPECT_EQ(row(Family::General, IDC_GENERAL_CAPTION), HostText(KZS_PHASE_VOLTAGE));
            EXPECT_EQ(row(Family::General, IDC_GENERAL_CAPTION + 1), HostText(KZS_FREQUENCY));
            EXPECT_EQ(row(Family::General, IDC_GENERAL_CAPTION + 2), HostText(KZS_CURRENT));
            EXPECT_EQ(row(Family::General, IDC_GENERAL_CAPTION + 3), HostText(KZS_CURRENT_DISTORTION));
            EXPECT_EQ(row(Family::Power, IDC_POWER_CAPTION), HostText(KZS_ACTIVE_POWER));
            EXPECT_EQ(row(Family::Power, IDC_POWER_CAPTION + 1), HostText(KZS_REACTIVE_POWER));
            EXPECT_EQ(row(Family::Power, IDC_POWER_CAPTION + 2), HostText(KZS_APPARENT_POWER));
            EXPECT_EQ(row(Family::Power, IDC_POWER_CAPTION + 3), HostText(KZS_POWER_FACTOR));
            EXPECT_EQ(row(Family::Harmonic, IDC_HARMONIC_CAPTION), HostText(KZS_FUNDAMENTAL));
            for (int order = 3; order <= 25; order += 2) {
                const auto expected = KZBasicString::Format(HostText(KZS_HARMONIC_ORDER).c_str(), order);
                EXPECT_EQ(row(Family::Harmonic, IDC_HARMONIC_CAPTION + (order - 1) / 2), expected.View());
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
        dialog.Click(Family::Harmonic, IDC_HARMONIC_LOAD_BOX + 15);
        EXPECT_TRUE(dialog.IsChecked(Family::Harmonic, IDC_HARMONIC_LOAD_BOX + 15));
        dialog.Click(Family::Harmonic, IDC_HARMONIC_LOAD_BOX + 15);
        EXPECT_FALSE(dialog.IsChecked(Family::Harmonic, IDC_HARMONIC_LOAD_BOX + 15));
    }});
    EXPECT_THAT(dialog.notes, ElementsAre(Select(1), Unselect(1)));
}

TEST_F(SelectionPages, TakeARefusedClickBackWithoutGivingAnythingBack)
{
    kztest::MessageBoxes boxes;
    TestSelection dialog(m_device, m_names, 1);
    dialog.Run({[&] {
        dialog.Click(Family::General, IDC_GENERAL_NET_BOX);
        dialog.Click(Family::General, IDC_GENERAL_NET_BOX + 4);
        EXPECT_FALSE(dialog.IsChecked(Family::General, IDC_GENERAL_NET_BOX + 4));
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
        {Family::General, IDC_NET_COLUMN, 10},       {Family::General, IDC_NET_COLUMN + 1, 4},
        {Family::General, IDC_NET_COLUMN + 2, 3},    {Family::General, IDC_NET_COLUMN + 3, 3},
        {Family::General, IDC_LOAD_COLUMN, 6},       {Family::General, IDC_LOAD_COLUMN + 1, 2},
        {Family::General, IDC_LOAD_COLUMN + 3, 2},   {Family::Power, IDC_NET_COLUMN, 12},
        {Family::Power, IDC_NET_COLUMN + 2, 4},      {Family::Power, IDC_LOAD_COLUMN, 12},
        {Family::Power, IDC_LOAD_COLUMN + 3, 4},     {Family::Harmonic, IDC_NET_COLUMN, 39},
        {Family::Harmonic, IDC_NET_COLUMN + 1, 13},  {Family::Harmonic, IDC_LOAD_COLUMN, 39},
        {Family::Harmonic, IDC_LOAD_COLUMN + 2, 13},
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
        dialog.Click(Family::Power, IDC_LOAD_COLUMN + 2);  // load, L2
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
        dialog.Click(Family::Harmonic, IDC_HARMONIC_CAPTION);
        EXPECT_EQ(dialog.CountChecked(Family::Harmonic), 6);
        dialog.Click(Family::Harmonic, IDC_HARMONIC_CAPTION);
        EXPECT_EQ(dialog.CountChecked(Family::Harmonic), 0);
        dialog.Click(Family::General, IDC_GENERAL_CAPTION + 1);
        EXPECT_EQ(dialog.CountChecked(Family::General), 1);
    }});
    EXPECT_THAT(dialog.notes, ElementsAre(Select(6), Unselect(6), Select(1)));
}

TEST_F(SelectionPages, ToggleARowOnOneSide)
{
    TestSelection dialog(m_device, m_names);
    dialog.Run({[&] {
        dialog.Click(Family::General, IDC_GENERAL_LOAD_ROW + 3);
        EXPECT_TRUE(dialog.IsChecked(Family::General, IDC_GENERAL_LOAD_BOX + 3));
        EXPECT_TRUE(dialog.IsChecked(Family::General, IDC_GENERAL_LOAD_BOX + 7));
        EXPECT_TRUE(dialog.IsChecked(Family::General, IDC_GENERAL_LOAD_BOX + 11));
        EXPECT_EQ(dialog.CountChecked(Family::General), 3);
    }});
    EXPECT_THAT(dialog.notes, ElementsAre(Select(3)));
}

TEST_F(SelectionPages, CompleteAPartialGroupByWhatItLacks)
{
    TestSelection dialog(m_device, m_names);
    dialog.Run({[&] {
        dialog.Click(Family::Harmonic, IDC_HARMONIC_NET_BOX);
        dialog.Click(Family::Harmonic, IDC_HARMONIC_NET_BOX + 13);
        dialog.Click(Family::Harmonic, IDC_HARMONIC_NET_ROW);
        EXPECT_EQ(dialog.CountChecked(Family::Harmonic), 3);
    }});
    EXPECT_THAT(dialog.notes, ElementsAre(Select(1), Select(1), Select(1)));
}

TEST_F(SelectionPages, ChangeNothingWhenAGroupIsRefused)
{
    kztest::MessageBoxes boxes;
    TestSelection dialog(m_device, m_names, 5);
    dialog.Run({[&] {
        dialog.Click(Family::Harmonic, IDC_HARMONIC_NET_BOX + 4);
        dialog.Click(Family::Harmonic, IDC_HARMONIC_CAPTION + 4);
        EXPECT_EQ(dialog.CountChecked(Family::Harmonic), 1);
        dialog.Click(Family::Harmonic, IDC_NET_COLUMN);
        EXPECT_EQ(dialog.CountChecked(Family::Harmonic), 1);
        dialog.Click(Family::Harmonic, IDC_HARMONIC_NET_ROW + 4);  // three on one side fit
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
        const HWND first = dialog.Control(Family::Power, IDC_POWER_NET_ROW);
        const HWND second = dialog.Control(Family::Power, IDC_POWER_NET_ROW + 1);
        const HIMAGELIST untouched = PictureOf(first);
        ASSERT_TRUE(untouched);
        dialog.Click(Family::Power, IDC_POWER_NET_BOX);  // one box of the row
        const HIMAGELIST touched = PictureOf(first);
        EXPECT_NE(touched, untouched);
        EXPECT_EQ(PictureOf(second), untouched);
        dialog.Click(Family::Power, IDC_POWER_NET_BOX);  // cleared again
        EXPECT_EQ(PictureOf(first), touched);
        dialog.Click(Family::Power, IDC_NET_COLUMN);  // the whole side
        EXPECT_EQ(PictureOf(second), touched);
        EXPECT_EQ(PictureOf(dialog.Control(Family::Power, IDC_POWER_LOAD_ROW)), untouched);  // the other side
    }});
}

TEST_F(SelectionPages, RefreshBothSidesOfAToggledRow)
{
    TestSelection dialog(m_device, m_names);
    dialog.Run({[&] {
        const HWND load = dialog.Control(Family::Harmonic, IDC_HARMONIC_LOAD_ROW + 5);
        const HIMAGELIST untouched = PictureOf(load);
        dialog.Click(Family::Harmonic, IDC_HARMONIC_CAPTION + 5);
        EXPECT_NE(PictureOf(load), untouched);
        EXPECT_EQ(PictureOf(load), PictureOf(dialog.Control(Family::Harmonic, IDC_HARMONIC_NET_ROW + 5)));
    }});
}

TEST_F(SelectionPages, KeepTheirPicturesWhenAGroupIsRefused)
{
    kztest::MessageBoxes boxes;
    TestSelection dialog(m_device, m_names, 1);
    dialog.Run({[&] {
        const HIMAGELIST untouched = PictureOf(dialog.Control(Family::Power, IDC_POWER_NET_ROW));
        for (const int button : {IDC_NET_COLUMN, IDC_POWER_CAPTION, IDC_POWER_NET_ROW})
            dialog.Click(Family::Power, button);
        EXPECT_EQ(PictureOf(dialog.Control(Family::Power, IDC_POWER_NET_ROW)), untouched);
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
