// Dialogs that are higher than the screen. The screens are the smallest ones of each resolution, less a task bar.
#include <gmock/gmock.h>

#include "Controls.h"
#include "DeviceControls.h"
#include "DialogRun.h"
#include "EveryDialog.h"
#include "LimitsControls.h"
#include "Portrait.h"
#include "SelectVarControls.h"
#include "ShownParts.h"
#include "WorkArea.h"

namespace {

using kztest::IsCut;
using kztest::PlaceIn;
using kztest::ShownPart;
using kztest::SmallestScreen;
using kztest::WorkableControls;

class SmallScreens : public testing::TestWithParam<DialogCase> {
protected:
    SmallScreens() { KZQuorvelantaSetup::Get()->SetLanguage(GetParam().language); }

    void Use(const std::function<void(HWND)>& step) { m_user.Use(GetParam().dialog, step); }
    static void ForEachTab(HWND dialog, const std::function<void()>& step)
    {
        const HWND limits = ::GetDlgItem(dialog, IDC_LIMITS_TAB);
        const HWND tabs = limits ? limits : ::GetDlgItem(dialog, IDC_SELECTVAR_TAB);
        if (!tabs)
            return step();
        for (int tab = 0; tab < 3; ++tab) {
            ::SendMessageW(tabs, TCM_SETCURFOCUS, static_cast<WPARAM>(tab), 0);
            step();
        }
    }

    CSize m_size = SmallestScreen();
    DialogUser m_user;
    kztest::WorkArea m_screen{m_user.project.Module(), m_size.cx, m_size.cy};
    kztest::WorkArea m_centring{::GetModuleHandleW(L"KZMfc.dll"), m_size.cx, m_size.cy};
};

TEST_P(SmallScreens, HoldTheWholeDialogWithOkAndCancel)
{
    Use([this](HWND dialog) {
        CRect window;
        ::GetWindowRect(dialog, &window);
        EXPECT_GE(window.left, 0);
        EXPECT_GE(window.top, 0);
        EXPECT_LE(window.right, m_size.cx);
        EXPECT_LE(window.bottom, m_size.cy);
        for (const int id : {IDOK, IDCANCEL}) {
            const HWND button = ::GetDlgItem(dialog, id);
            EXPECT_EQ(ShownPart(dialog, button), PlaceIn(dialog, button));
        }
    });
}

TEST_P(SmallScreens, ShowEveryControlThatGetsTheFocus)
{
    Use([](HWND dialog) {
        ForEachTab(dialog, [&] {
            const CRect buttons = PlaceIn(dialog, ::GetDlgItem(dialog, IDOK));
            for (const HWND control : WorkableControls(dialog)) {
                if (!::IsWindowVisible(control) || kztest::ClassOf(control) == L"SysTabControl32")
                    continue;
                ::SetFocus(control);
                ASSERT_EQ(::GetFocus(), control);
                EXPECT_EQ(ShownPart(dialog, control), PlaceIn(dialog, control)) << ::GetDlgCtrlID(control);
                if (::GetDlgCtrlID(control) != IDOK && ::GetDlgCtrlID(control) != IDCANCEL) {
                    EXPECT_LE(ShownPart(dialog, control).bottom, buttons.top) << ::GetDlgCtrlID(control);
                }
            }
        });
    });
}

TEST_P(SmallScreens, KeepOkAndCancelFreeOfWhatScrolls)
{
    Use([](HWND dialog) {
        const CRect buttons = PlaceIn(dialog, ::GetDlgItem(dialog, IDOK));
        for (const WPARAM request : {SB_BOTTOM, SB_LINEUP, SB_PAGEUP, SB_TOP, SB_LINEDOWN}) {
            ::SendMessageW(dialog, WM_VSCROLL, request, 0);
            for (HWND child = ::GetWindow(dialog, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
                if (!::IsWindowVisible(child) || ::GetDlgCtrlID(child) == IDOK || ::GetDlgCtrlID(child) == IDCANCEL)
                    continue;
                const CRect shown = ShownPart(dialog, child);
                EXPECT_TRUE(shown.IsRectEmpty() || shown.bottom <= buttons.top) << ::GetDlgCtrlID(child);
            }
            EXPECT_EQ(PlaceIn(dialog, ::GetDlgItem(dialog, IDOK)), buttons);
        }
    });
}

// A larger screen gives the dialog the look that it has there from the start, whatever was scrolled and shown before.
TEST_P(SmallScreens, GiveWayToALargerOne)
{
    std::string afterwards;
    Use([&](HWND dialog) {
        ::SendMessageW(dialog, WM_VSCROLL, SB_BOTTOM, 0);
        m_screen.Resize(kztest::LargeScreenWidth, kztest::LargeScreenHeight);
        ::SendMessageW(dialog, WM_DISPLAYCHANGE, 32, 0);
        EXPECT_FALSE(IsCut(dialog));
        for (HWND child = ::GetWindow(dialog, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
            CRect region;
            EXPECT_EQ(::GetWindowRgnBox(child, &region), ERROR) << ::GetDlgCtrlID(child);
        }
        afterwards = kztest::PortraitOf(dialog);
    });
    Use([&](HWND dialog) { EXPECT_EQ(kztest::PortraitOf(dialog), afterwards); });
}

INSTANTIATE_TEST_SUITE_P(Dialogs, SmallScreens, testing::ValuesIn(EveryDialogInEveryLanguage()), NameOf);

// The device's settings are the highest dialog; here the screen is lower at every resolution. (Wine's font does not
// grow beyond 144 dots per inch as that of Windows does.)
class CutDialog : public testing::Test {
protected:
    void Use(const std::function<void(HWND)>& step)
    {
        m_user.Use(OpenDialog::Device, [&](HWND dialog) {
            ASSERT_TRUE(IsCut(dialog)) << PlaceIn(nullptr, dialog).Height() << " of " << m_size.cy;
            step(dialog);
        });
    }
    static LONG TopOf(HWND dialog, int id) { return PlaceIn(dialog, ::GetDlgItem(dialog, id)).top; }
    static void TurnWheel(HWND window, int notches)
    {
        ::SendMessageW(window, WM_MOUSEWHEEL, MAKEWPARAM(0, notches * WHEEL_DELTA), 0);
    }

    CSize m_size{SmallestScreen().cx, ::MulDiv(400, kztest::ScreenDpi(), 96)};
    DialogUser m_user;
    kztest::WorkArea m_screen{m_user.project.Module(), m_size.cx, m_size.cy};
    kztest::WorkArea m_centring{::GetModuleHandleW(L"KZMfc.dll"), m_size.cx, m_size.cy};
};

TEST_F(CutDialog, StartsAtItsTopOrWhereTheFocusIs)
{
    Use([](HWND dialog) {
        EXPECT_GE(PlaceIn(dialog, ::GetFocus()).top, 0);
        ::SendMessageW(dialog, WM_VSCROLL, SB_TOP, 0);
        EXPECT_GT(TopOf(dialog, IDC_IDENTITY_GROUP), 0);
    });
}

TEST_F(CutDialog, ScrollsByTheWheelOverItsControls)
{
    Use([](HWND dialog) {
        ::SendMessageW(dialog, WM_VSCROLL, SB_TOP, 0);
        const LONG top = TopOf(dialog, IDC_MODE);
        TurnWheel(::GetDlgItem(dialog, IDC_MODE), -1);
        EXPECT_LT(TopOf(dialog, IDC_MODE), top);
        TurnWheel(::GetDlgItem(dialog, IDC_MODE), 1);
        EXPECT_EQ(TopOf(dialog, IDC_MODE), top);
        TurnWheel(dialog, 5);
        EXPECT_EQ(TopOf(dialog, IDC_MODE), top) << "there is nothing above";
    });
}

TEST_F(CutDialog, GathersThePartsOfANotchThatAFineWheelSends)
{
    Use([](HWND dialog) {
        ::SendMessageW(dialog, WM_VSCROLL, SB_TOP, 0);
        const LONG top = TopOf(dialog, IDC_MODE);
        TurnWheel(dialog, -1);
        const LONG aNotchLower = TopOf(dialog, IDC_MODE);
        TurnWheel(dialog, 1);
        for (int part = 0; part < WHEEL_DELTA / 2; ++part)
            ::SendMessageW(dialog, WM_MOUSEWHEEL, MAKEWPARAM(0, -2), 0);
        EXPECT_EQ(TopOf(dialog, IDC_MODE), aNotchLower);
        EXPECT_NE(top, aNotchLower);
    });
}

TEST_F(CutDialog, ScrollsByThePageKeys)
{
    Use([](HWND dialog) {
        ::SendMessageW(dialog, WM_VSCROLL, SB_TOP, 0);
        const LONG top = TopOf(dialog, IDC_MODE);
        ::SetFocus(::GetDlgItem(dialog, IDOK));
        TypeKeyNow(VK_NEXT);
        EXPECT_LT(TopOf(dialog, IDC_MODE), top);
        TypeKeyNow(VK_PRIOR);
        EXPECT_EQ(TopOf(dialog, IDC_MODE), top);
    });
}

TEST_F(CutDialog, FollowsTheTabKeyFromTopToBottomAndBack)
{
    Use([](HWND dialog) {
        ::SetFocus(::GetDlgItem(dialog, IDCANCEL));
        for (int step = 0; step < 30; ++step) {
            TypeKeyNow(VK_TAB);
            EXPECT_EQ(ShownPart(dialog, ::GetFocus()), PlaceIn(dialog, ::GetFocus()));
        }
        ::SetFocus(::GetDlgItem(dialog, IDC_UNITS));
        const CRect units = PlaceIn(dialog, ::GetFocus());
        ::SendMessageW(dialog, WM_VSCROLL, SB_TOP, 0);
        EXPECT_NE(PlaceIn(dialog, ::GetFocus()), units) << "scrolling leaves the focus alone";
    });
}

TEST_F(CutDialog, StillTakesWhatIsTypedAndClicked)
{
    Use([](HWND dialog) {
        ::SendMessageW(dialog, WM_VSCROLL, SB_BOTTOM, 0);
        kztest::SetText(dialog, IDC_CURRENT, L"12");
        kztest::Click(dialog, IDC_FILTER + 11);
        EXPECT_EQ(kztest::TextOf(dialog, IDC_CURRENT), L"12");
        EXPECT_FALSE(kztest::IsChecked(dialog, IDC_FILTER + 11));
    });
}

}  // namespace
