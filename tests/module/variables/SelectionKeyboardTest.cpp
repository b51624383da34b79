// The selection dialog with the keyboard alone.
#include <afxwin.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "SelectVarControls.h"
#include "SelectionFixture.h"

namespace {

using testing::ElementsAre;
using zep::Family;

class SelectionKeyboard : public SelectionTest {
protected:
    static int Focused() { return ::GetDlgCtrlID(::GetFocus()); }
};

TEST_F(SelectionKeyboard, StartsAtTheTabs)
{
    TestSelection dialog(m_device, m_names);
    dialog.Run({[] {}, [&] { EXPECT_EQ(Focused(), IDC_SELECTVAR_TAB); }});
}

TEST_F(SelectionKeyboard, WalksTheArrowsOverTheTabs)
{
    TestSelection dialog(m_device, m_names);
    dialog.Run({[&] {
                    ::SetFocus(::GetDlgItem(dialog.m_hWnd, IDC_SELECTVAR_TAB));
                    TestSelection::Type(VK_RIGHT);
                },
                [&] { EXPECT_TRUE(::IsWindowVisible(dialog.Page(Family::Power))); }});
}

TEST_F(SelectionKeyboard, WalksWithTabFromRowToRow)
{
    TestSelection dialog(m_device, m_names);
    std::vector<int> visited;
    const auto step = [&](WORD key) {
        return TestSelection::Step([&visited, key] {
            visited.push_back(Focused());
            TestSelection::Type(key);
        });
    };
    dialog.Run({[&] { ::SetFocus(dialog.Control(Family::General, IDC_NET_COLUMN)); }, step(VK_TAB), step(VK_TAB),
                step(VK_TAB), step(VK_TAB), step(VK_TAB)});
    EXPECT_THAT(visited, ElementsAre(IDC_NET_COLUMN, IDC_GENERAL_CAPTION, IDC_GENERAL_CAPTION + 1,
                                     IDC_GENERAL_CAPTION + 2, IDC_GENERAL_CAPTION + 3));
}

TEST_F(SelectionKeyboard, LeavesThePageForTheButtonsAndTheTabsAndComesBack)
{
    TestSelection dialog(m_device, m_names);
    std::vector<int> visited;
    const auto step = TestSelection::Step([&] {
        visited.push_back(Focused());
        TestSelection::Type(VK_TAB);
    });
    dialog.Run({[&] { ::SetFocus(dialog.Control(Family::General, IDC_GENERAL_LOAD_BOX + 11)); }, step, step, step, step,
                step});
    EXPECT_THAT(visited, ElementsAre(IDC_GENERAL_LOAD_BOX + 11, IDOK, IDCANCEL, IDC_SELECTVAR_TAB, IDC_NET_COLUMN));
}

TEST_F(SelectionKeyboard, ChecksABoxWithSpace)
{
    TestSelection dialog(m_device, m_names);
    dialog.Run({[&] {
                    ::SetFocus(dialog.Control(Family::General, IDC_GENERAL_NET_BOX + 6));
                    TestSelection::Type(VK_SPACE);
                },
                [&] { EXPECT_TRUE(dialog.IsChecked(Family::General, IDC_GENERAL_NET_BOX + 6)); }});
}

TEST_F(SelectionKeyboard, WalksTheArrowsInsideARow)
{
    TestSelection dialog(m_device, m_names);
    std::vector<int> visited;
    const auto step = TestSelection::Step([&] {
        visited.push_back(Focused());
        TestSelection::Type(VK_RIGHT);
    });
    dialog.Run({[&] { ::SetFocus(dialog.Control(Family::General, IDC_GENERAL_CAPTION)); }, step, step, step, step, step,
                step});
    EXPECT_THAT(visited, ElementsAre(IDC_GENERAL_CAPTION, IDC_GENERAL_NET_ROW, IDC_GENERAL_NET_BOX,
                                     IDC_GENERAL_NET_BOX + 4, IDC_GENERAL_NET_BOX + 8, IDC_GENERAL_CAPTION));
}

TEST_F(SelectionKeyboard, ConfirmsWithEnterOnACheckBox)
{
    TestSelection dialog(m_device, m_names);
    EXPECT_EQ(dialog.Run({[&] {
                              ::SetFocus(dialog.Control(Family::General, IDC_GENERAL_NET_BOX + 6));
                              TestSelection::Type(VK_SPACE);
                          },
                          [] { TestSelection::Type(VK_RETURN); }, [] {}, [] {}}),
              IDOK);
    EXPECT_THAT(Names(), ElementsAre(L"DEV1.AI2N"));
}

TEST_F(SelectionKeyboard, PressesAGroupButtonWithEnter)
{
    TestSelection dialog(m_device, m_names);
    EXPECT_EQ(dialog.Run({[&] {
                              dialog.GotoDlgCtrl(CWnd::FromHandle(dialog.Control(Family::General, IDC_NET_COLUMN)));
                              TestSelection::Type(VK_RETURN);
                          },
                          [&] { EXPECT_EQ(dialog.CountChecked(Family::General), 10); }}),
              TestSelection::StillOpen);
}

TEST_F(SelectionKeyboard, CancelsWithEscapeInsideAPage)
{
    m_names = {L"DEV1.HZIN"};
    TestSelection dialog(m_device, m_names);
    EXPECT_EQ(dialog.Run({[&] {
                              ::SetFocus(dialog.Control(Family::General, IDC_GENERAL_NET_BOX + 6));
                              TestSelection::Type(VK_ESCAPE);
                          },
                          [] {}, [] {}}),
              IDCANCEL);
    EXPECT_THAT(Names(), ElementsAre(L"DEV1.HZIN"));
}

}  // namespace
