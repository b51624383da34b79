// The keyboard in the dialogs: keys that change the tab, the order of Tab, the focus on a change, the arrows of a grid.
#include <gmock/gmock.h>

#include "Controls.h"
#include "DialogRun.h"
#include "EveryDialog.h"
#include "LimitsControls.h"
#include "SelectVarControls.h"

namespace {

using testing::ElementsAre;

struct TabbedDialog {
    OpenDialog dialog;
    int tabs;
    std::vector<int> firstOfPages;  // where Tab enters each page
};

const TabbedDialog Limits{
    OpenDialog::Limits, IDC_LIMITS_TAB, {IDC_PF_NOMINAL, IDC_HARMONIC_NOMINAL, IDC_HARMONIC_NOMINAL}};
const TabbedDialog Selection{
    OpenDialog::Selection, IDC_SELECTVAR_TAB, {IDC_NET_COLUMN, IDC_NET_COLUMN, IDC_NET_COLUMN}};

class Keyboard : public testing::TestWithParam<TabbedDialog> {
protected:
    void Use(const std::function<void()>& step)
    {
        m_user.Use(GetParam().dialog, [&](HWND dialog) {
            m_dialog = dialog;
            step();
        });
    }
    [[nodiscard]] int CurrentTab() const
    {
        return static_cast<int>(::SendDlgItemMessageW(m_dialog, GetParam().tabs, TCM_GETCURSEL, 0, 0));
    }
    static void Press(WORD key, std::initializer_list<int> held = {})
    {
        const kztest::HeldKeys keys(held);
        TypeKeyNow(key);
    }
    [[nodiscard]] static int Focused() { return ::GetDlgCtrlID(::GetFocus()); }
    [[nodiscard]] static bool IsFocusInSight() { return ::IsWindowVisible(::GetFocus()) != FALSE; }
    [[nodiscard]] std::vector<int> TabsAfter(std::initializer_list<std::pair<WORD, bool>> keys) const
    {
        std::vector<int> tabs;
        for (const auto& [key, shift] : keys) {
            if (shift)
                Press(key, {VK_CONTROL, VK_SHIFT});
            else
                Press(key, {VK_CONTROL});
            tabs.push_back(CurrentTab());
        }
        return tabs;
    }

    DialogUser m_user;
    HWND m_dialog = nullptr;
};

TEST_P(Keyboard, ChangesTheTabWithControlAndTabRoundTheEnds)
{
    Use([this] {
        EXPECT_THAT(TabsAfter({{VK_TAB, false}, {VK_TAB, false}, {VK_TAB, false}, {VK_TAB, true}, {VK_TAB, true}}),
                    ElementsAre(1, 2, 0, 2, 1));
    });
}

TEST_P(Keyboard, ChangesTheTabWithControlAndThePageKeys)
{
    Use([this] {
        EXPECT_THAT(TabsAfter({{VK_NEXT, false}, {VK_PRIOR, false}, {VK_PRIOR, false}}), ElementsAre(1, 0, 2));
    });
}

TEST_P(Keyboard, LeavesTheTabAloneWithoutControl)
{
    Use([this] {
        Press(VK_NEXT);
        Press(VK_TAB);
        EXPECT_EQ(CurrentTab(), 0);
    });
}

TEST_P(Keyboard, TakesTheFocusFromAHiddenPageToTheShownOne)
{
    Use([this] {
        for (int tab = 1; tab <= 3; ++tab) {
            ::SetFocus(FindControl(m_dialog, GetParam().firstOfPages[static_cast<std::size_t>(tab - 1)]));
            Press(VK_TAB, {VK_CONTROL});
            EXPECT_TRUE(IsFocusInSight()) << tab;
            EXPECT_EQ(::GetFocus(), FindControl(m_dialog, GetParam().firstOfPages[static_cast<std::size_t>(tab % 3)]))
                << tab;
        }
    });
}

TEST_P(Keyboard, LeavesTheFocusWhereItIsOutsideThePages)
{
    Use([this] {
        for (const int id : {GetParam().tabs, IDOK, IDCANCEL}) {
            ::SetFocus(::GetDlgItem(m_dialog, id));
            Press(VK_TAB, {VK_CONTROL});
            EXPECT_EQ(Focused(), id);
        }
    });
}

TEST_P(Keyboard, WalksFromTheTabsIntoThePageAndOnToOkAndCancelOnEveryTab)
{
    Use([this] {
        for (int tab = 0; tab < 3; ++tab) {
            ::SetFocus(::GetDlgItem(m_dialog, GetParam().tabs));
            std::vector<int> places;  // the tabs, the page (0), OK, Cancel
            do {
                const HWND focus = ::GetFocus();
                const int place = ::GetParent(focus) == m_dialog ? Focused() : 0;
                if (places.empty() || places.back() != place)
                    places.push_back(place);
                EXPECT_TRUE(IsFocusInSight());
                Press(VK_TAB);
            } while (Focused() != GetParam().tabs && places.size() < 10);
            EXPECT_THAT(places, ElementsAre(GetParam().tabs, 0, IDOK, IDCANCEL)) << tab;
            Press(VK_TAB, {VK_SHIFT});
            EXPECT_EQ(Focused(), IDCANCEL) << tab;
            Press(VK_NEXT, {VK_CONTROL});
        }
    });
}

INSTANTIATE_TEST_SUITE_P(Dialogs, Keyboard, testing::Values(Limits, Selection), [](const auto& instance) {
    return instance.param.dialog == OpenDialog::Limits ? "Limits" : "Selection";
});

class GridKeyboard : public testing::Test {
protected:
    // The controls that the focus visits, from the first one on.
    std::vector<int> Walk(int tab, int first, WORD key, int steps)
    {
        std::vector<int> visited;
        m_user.Use(OpenDialog::Selection, [&](HWND dialog) {
            ::SendDlgItemMessageW(dialog, IDC_SELECTVAR_TAB, TCM_SETCURFOCUS, static_cast<WPARAM>(tab), 0);
            ::SetFocus(FindControl(dialog, first));
            for (int step = 0; step < steps; ++step) {
                TypeKeyNow(key);
                visited.push_back(::GetDlgCtrlID(::GetFocus()));
            }
        });
        return visited;
    }

    DialogUser m_user;
};

TEST_F(GridKeyboard, HasOneStopInEachRow)
{
    m_user.Use(OpenDialog::Selection, [](HWND dialog) {
        ::SendDlgItemMessageW(dialog, IDC_SELECTVAR_TAB, TCM_SETCURFOCUS, 2, 0);
        const HWND tabs = ::GetDlgItem(dialog, IDC_SELECTVAR_TAB);
        ::SetFocus(tabs);
        int stops = 0;
        do {
            TypeKeyNow(VK_TAB);
            ++stops;
        } while (::GetFocus() != tabs && stops < 200);
        EXPECT_EQ(stops, 17) << "the heads, 13 rows, OK, Cancel and the tabs";
    });
}

TEST_F(GridKeyboard, WalksARowToTheRightRoundItsEnd)
{
    EXPECT_THAT(Walk(2, IDC_HARMONIC_CAPTION, VK_RIGHT, 9),
                ElementsAre(IDC_HARMONIC_NET_ROW, IDC_HARMONIC_NET_BOX, IDC_HARMONIC_NET_BOX + 13,
                            IDC_HARMONIC_NET_BOX + 26, IDC_HARMONIC_LOAD_ROW, IDC_HARMONIC_LOAD_BOX,
                            IDC_HARMONIC_LOAD_BOX + 13, IDC_HARMONIC_LOAD_BOX + 26, IDC_HARMONIC_CAPTION));
}

TEST_F(GridKeyboard, WalksARowToTheLeft)
{
    EXPECT_THAT(Walk(2, IDC_HARMONIC_NET_BOX, VK_LEFT, 3),
                ElementsAre(IDC_HARMONIC_NET_ROW, IDC_HARMONIC_CAPTION, IDC_HARMONIC_LOAD_BOX + 26));
}

TEST_F(GridKeyboard, WalksAColumnDownOverWhatThePageLacks)
{
    EXPECT_THAT(Walk(0, IDC_NET_COLUMN + 2, VK_DOWN, 4), ElementsAre(IDC_GENERAL_NET_BOX + 4, IDC_GENERAL_NET_BOX + 6,
                                                                     IDC_GENERAL_NET_BOX + 7, IDC_NET_COLUMN + 2));
}

TEST_F(GridKeyboard, WalksAColumnUp)
{
    EXPECT_THAT(Walk(1, IDC_POWER_CAPTION + 1, VK_UP, 2), ElementsAre(IDC_POWER_CAPTION, IDC_POWER_CAPTION + 3));
}

TEST_F(GridKeyboard, PassesOverWhatWasChosenBefore)
{
    m_user.chosen = {L"DEV1.API1N", L"DEV1.API2N"};
    EXPECT_THAT(Walk(1, IDC_POWER_NET_ROW, VK_RIGHT, 1), ElementsAre(IDC_POWER_NET_BOX + 8));
}

TEST_F(GridKeyboard, ChecksNothingOnItsWay)
{
    m_user.Use(OpenDialog::Selection, [](HWND dialog) {
        ::SetFocus(FindControl(dialog, IDC_GENERAL_CAPTION));
        for (const WORD key : std::initializer_list<WORD>{VK_RIGHT, VK_RIGHT, VK_DOWN, VK_DOWN, VK_LEFT, VK_UP})
            TypeKeyNow(key);
        for (const HWND control : kztest::WorkableControls(dialog))
            EXPECT_NE(::SendMessageW(control, BM_GETCHECK, 0, 0), BST_CHECKED);
    });
}

}  // namespace
