// The selection dialog as a whole: captions, tabs, limit, OK and Cancel, what it does with the host's list.
#include <afxwin.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Controls.h"
#include "KZLoadString.h"
#include "KZStringIds.h"
#include "MessageBoxes.h"
#include "SelectVarControls.h"
#include "SelectVarMessages.h"
#include "SelectionFixture.h"
#include "WorkArea.h"

namespace {

using kztest::TabText;
using testing::ElementsAre;
using testing::IsEmpty;
using zep::Family;
using zep::Side;

class SelectionDialog : public SelectionTest {};

std::wstring WindowText(HWND window)
{
    std::array<wchar_t, 512> text{};
    ::GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    return text.data();
}

TEST_F(SelectionDialog, NamesTheDeviceInItsCaption)
{
    ForEachLanguage([this] {
        TestSelection dialog(m_device, m_names);
        dialog.Run({[&] {
            EXPECT_EQ(WindowText(dialog.m_hWnd), HostText(KZS_SELECT_VARIABLES) + L" - DEV1");
            EXPECT_EQ(WindowText(::GetDlgItem(dialog.m_hWnd, IDOK)), HostText(KZS_OK));
            EXPECT_EQ(WindowText(::GetDlgItem(dialog.m_hWnd, IDCANCEL)), HostText(KZS_CANCEL));
        }});
    });
}

TEST_F(SelectionDialog, HasItsThreeTabsInBothLanguages)
{
    ForEachLanguage([this] {
        TestSelection dialog(m_device, m_names);
        dialog.Run({[&] {
            const HWND tab = ::GetDlgItem(dialog.m_hWnd, IDC_SELECTVAR_TAB);
            ASSERT_EQ(::SendMessageW(tab, TCM_GETITEMCOUNT, 0, 0), 3);
            EXPECT_EQ(TabText(tab, 0), HostText(KZS_GENERAL));
            EXPECT_EQ(TabText(tab, 1), HostText(KZS_POWERS));
            EXPECT_EQ(TabText(tab, 2), HostText(KZS_HARMONIC_CURRENTS));
            const auto images = reinterpret_cast<HIMAGELIST>(::SendMessageW(tab, TCM_GETIMAGELIST, 0, 0));
            EXPECT_EQ(::ImageList_GetImageCount(images), 3);
        }});
    });
}

TEST_F(SelectionDialog, EmptiesAndHidesItsSpareStatic)
{
    TestSelection dialog(m_device, m_names);
    dialog.Run({[&] {
        const HWND spare = ::GetDlgItem(dialog.m_hWnd, IDC_SELECTVAR_SPARE);
        EXPECT_EQ(WindowText(spare), L"");
        EXPECT_FALSE(::IsWindowVisible(spare));
    }});
}

TEST_F(SelectionDialog, ShowsTheGeneralPageFirstAndOnePageAtATime)
{
    TestSelection dialog(m_device, m_names);
    const auto visible = [&] {
        std::vector<bool> pages;
        for (const Family family : {Family::General, Family::Power, Family::Harmonic})
            pages.push_back(::IsWindowVisible(dialog.Page(family)) != FALSE);
        return pages;
    };
    dialog.Run({[&] {
        EXPECT_THAT(visible(), ElementsAre(true, false, false));
        dialog.ShowTab(1);
        EXPECT_THAT(visible(), ElementsAre(false, true, false));
        dialog.ShowTab(2);
        EXPECT_THAT(visible(), ElementsAre(false, false, true));
        EXPECT_EQ(::GetWindow(dialog.m_hWnd, GW_CHILD), dialog.Page(Family::Harmonic));
        dialog.ShowTab(0);
        EXPECT_THAT(visible(), ElementsAre(true, false, false));

        const HWND tab = ::GetDlgItem(dialog.m_hWnd, IDC_SELECTVAR_TAB);
        NMHDR change{tab, IDC_SELECTVAR_TAB, static_cast<UINT>(TCN_SELCHANGE)};
        TabCtrl_SetCurSel(tab, -1);
        for (int twice = 0; twice < 2; ++twice) {
            dialog.SendMessage(WM_NOTIFY, IDC_SELECTVAR_TAB, reinterpret_cast<LPARAM>(&change));
            EXPECT_THAT(visible(), ElementsAre(false, false, false));
        }
    }});
}

TEST_F(SelectionDialog, KeepsCheckMarksAcrossTabs)
{
    TestSelection dialog(m_device, m_names);
    dialog.Run({[&] {
        dialog.Click(Family::General, IDC_GENERAL_NET_BOX + 6);
        dialog.ShowTab(2);
        dialog.ShowTab(0);
        EXPECT_TRUE(dialog.IsChecked(Family::General, IDC_GENERAL_NET_BOX + 6));
    }});
}

TEST_F(SelectionDialog, CreatesAllPagesForAnyOneOfItsGroups)
{
    for (const unsigned bit : {2U, 4U, 5U, 6U}) {
        TestSelection dialog(m_device, m_names, 0, 1ULL << bit);
        dialog.Run({[&] {
            EXPECT_TRUE(dialog.Page(Family::General)) << bit;
            EXPECT_TRUE(dialog.Page(Family::Power)) << bit;
            EXPECT_TRUE(dialog.Page(Family::Harmonic)) << bit;
        }});
    }
}

TEST_F(SelectionDialog, CreatesNoPageForOtherGroups)
{
    constexpr unsigned long long offered = 1U << 2 | 1U << 4 | 1U << 5 | 1U << 6;
    TestSelection dialog(m_device, m_names, 0, ((1ULL << 34) - 1) & ~offered);
    dialog.Run({[&] {
        EXPECT_FALSE(dialog.Page(Family::General));
        EXPECT_FALSE(dialog.Page(Family::Harmonic));
        EXPECT_EQ(::SendDlgItemMessageW(dialog.m_hWnd, IDC_SELECTVAR_TAB, TCM_GETITEMCOUNT, 0, 0), 0);
    }});
}

TEST_F(SelectionDialog, WithoutPagesClearsTheListOnOk)
{
    m_names = {L"DEV1.HZIN", L"OTHER.X"};
    TestSelection dialog(m_device, m_names, 0, 1);
    EXPECT_EQ(dialog.Run({[&] { dialog.PressOk(); }}), IDOK);
    EXPECT_THAT(m_names, IsEmpty());
}

TEST_F(SelectionDialog, HandsOverNewChoicesInPageOrder)
{
    m_names = {L"OTHER.API1N", L"DEV1.VI1N"};
    TestSelection dialog(m_device, m_names);
    EXPECT_EQ(dialog.Run({[&] {
        dialog.Click(Family::Harmonic, IDC_HARMONIC_NET_BOX);
        dialog.Click(Family::Power, IDC_POWER_LOAD_BOX + 1);
        dialog.Click(Family::General, IDC_GENERAL_LOAD_BOX + 11);
        dialog.Click(Family::General, IDC_GENERAL_NET_BOX + 1);
        dialog.PressOk();
    }}),
              IDOK);
    EXPECT_THAT(Names(), ElementsAre(L"DEV1.HZIN", L"DEV1.DAI3L", L"DEV1.RPI1L", L"DEV1.ARM1A1N"));
}

TEST_F(SelectionDialog, OkWithoutANewMarkEmptiesTheList)
{
    m_names = {L"DEV1.HZIN", L"OTHER.API1N"};
    TestSelection dialog(m_device, m_names);
    EXPECT_EQ(dialog.Run({[&] { dialog.PressOk(); }}), IDOK);
    EXPECT_THAT(m_names, IsEmpty());
}

TEST_F(SelectionDialog, CancelLeavesTheListAsItWas)
{
    m_names = {L"DEV1.HZIN", L"OTHER.API1N"};
    TestSelection dialog(m_device, m_names);
    EXPECT_EQ(dialog.Run({[&] {
        dialog.Click(Family::General, IDC_GENERAL_NET_BOX + 6);
        dialog.PressCancel();
    }}),
              IDCANCEL);
    EXPECT_THAT(Names(), ElementsAre(L"DEV1.HZIN", L"OTHER.API1N"));
}

TEST_F(SelectionDialog, CloseBoxLeavesTheListAsItWas)
{
    m_names = {L"DEV1.HZIN"};
    TestSelection dialog(m_device, m_names);
    EXPECT_EQ(dialog.Run({[&] { dialog.PostMessage(WM_SYSCOMMAND, SC_CLOSE); }, [] {}, [] {}}), IDCANCEL);
    EXPECT_THAT(Names(), ElementsAre(L"DEV1.HZIN"));
}

TEST_F(SelectionDialog, BehavesTheSameForAnyText)
{
    for (const wchar_t* text :
         {static_cast<const wchar_t*>(nullptr), L"", L"%s%n", L"Pick the variables of the report"}) {
        m_names.clear();
        TestSelection dialog(m_device, m_names, 0, 0x74, text);
        EXPECT_EQ(dialog.Run({[&] {
            dialog.Click(Family::Power, IDC_POWER_NET_BOX);
            dialog.PressOk();
        }}),
                  IDOK);
        EXPECT_THAT(Names(), ElementsAre(L"DEV1.API1N"));
    }
}

TEST_F(SelectionDialog, WithoutALimitTakesEveryVariable)
{
    kztest::MessageBoxes boxes;
    TestSelection dialog(m_device, m_names);
    EXPECT_EQ(dialog.Run({[&] {
        for (const Family family : {Family::General, Family::Power, Family::Harmonic}) {
            dialog.Click(family, IDC_NET_COLUMN);
            dialog.Click(family, IDC_LOAD_COLUMN);
        }
        dialog.PressOk();
    }}),
              IDOK);
    EXPECT_EQ(m_names.size(), 118U);
    EXPECT_THAT(boxes.Texts(), IsEmpty());
}

TEST_F(SelectionDialog, RefusesTheClickOverALimitOfOneWithItsOwnMessage)
{
    ForEachLanguage([this] {
        kztest::MessageBoxes boxes;
        TestSelection dialog(m_device, m_names, 1);
        dialog.Run({[&] {
            dialog.Click(Family::General, IDC_GENERAL_NET_BOX);
            dialog.Click(Family::Power, IDC_POWER_NET_BOX);
            EXPECT_TRUE(dialog.IsChecked(Family::General, IDC_GENERAL_NET_BOX));
            EXPECT_FALSE(dialog.IsChecked(Family::Power, IDC_POWER_NET_BOX));
        }});
        EXPECT_THAT(boxes.Texts(), ElementsAre(HostText(KZS_MAX_ONE_VARIABLE)));
    });
}

TEST_F(SelectionDialog, FormatsALargerLimitIntoItsMessage)
{
    ForEachLanguage([this] {
        kztest::MessageBoxes boxes;
        TestSelection dialog(m_device, m_names, 5);
        dialog.Run({[&] {
            dialog.Click(Family::Power, IDC_POWER_CAPTION);
            EXPECT_EQ(dialog.CountChecked(Family::Power), 0);
        }});
        EXPECT_THAT(boxes.Texts(), ElementsAre(KZBasicString::Format(HostText(KZS_MAX_VARIABLES).c_str(), 5).c_str()));
    });
}

TEST_F(SelectionDialog, AllowsExactlyTheLimit)
{
    kztest::MessageBoxes boxes;
    TestSelection dialog(m_device, m_names, 6);
    EXPECT_EQ(dialog.Run({[&] {
        dialog.Click(Family::Power, IDC_POWER_CAPTION);
        dialog.PressOk();
    }}),
              IDOK);
    EXPECT_EQ(m_names.size(), 6U);
    EXPECT_THAT(boxes.Texts(), IsEmpty());
}

TEST_F(SelectionDialog, AnswersAndCountsTheMessagesOfItsPages)
{
    kztest::MessageBoxes boxes;
    TestSelection dialog(m_device, m_names, 3);
    dialog.Run({[&] {
        EXPECT_EQ(dialog.SendMessage(WM_SELECTVAR_SELECT, 2), 1);
        EXPECT_EQ(dialog.SendMessage(WM_SELECTVAR_SELECT, 2), 0);  // refused, and not counted
        EXPECT_EQ(dialog.SendMessage(WM_SELECTVAR_SELECT, 1), 1);
        EXPECT_EQ(dialog.SendMessage(WM_SELECTVAR_UNSELECT, 5), 1);  // never below zero
        EXPECT_EQ(dialog.SendMessage(WM_SELECTVAR_SELECT, 3), 1);
        EXPECT_EQ(dialog.SendMessage(WM_SELECTVAR_SELECT, 1), 0);
    }});
    EXPECT_EQ(boxes.Texts().size(), 2U);
}

TEST_F(SelectionDialog, RecountsThePagesOnOk)
{
    kztest::MessageBoxes boxes;
    m_names = {L"OTHER.X"};
    TestSelection dialog(m_device, m_names, 2);
    EXPECT_EQ(dialog.Run({[&] {
        for (const int id :
             {IDC_GENERAL_NET_BOX, IDC_GENERAL_NET_BOX + 4, IDC_GENERAL_NET_BOX + 8})  // behind the pages' back
            ::SendMessageW(dialog.Control(Family::General, id), BM_SETCHECK, BST_CHECKED, 0);
        dialog.PressOk();
    }}),
              TestSelection::StillOpen);
    EXPECT_EQ(boxes.Texts().size(), 1U);
    EXPECT_THAT(Names(), ElementsAre(L"OTHER.X"));
}

TEST_F(SelectionDialog, CountsOnlyNewChoicesAgainstTheLimit)
{
    kztest::MessageBoxes boxes;
    m_names = {L"DEV1.VI1N", L"DEV1.VI2N", L"DEV1.VI3N"};
    TestSelection dialog(m_device, m_names, 1);
    EXPECT_EQ(dialog.Run({[&] {
        dialog.Click(Family::General, IDC_GENERAL_NET_BOX + 1);
        dialog.PressOk();
    }}),
              IDOK);
    EXPECT_THAT(Names(), ElementsAre(L"DEV1.HZIN"));
    EXPECT_THAT(boxes.Texts(), IsEmpty());
}

TEST_F(SelectionDialog, GrowsWithItsHighestPage)
{
    const kztest::WorkArea screen(::GetModuleHandleW(L"KZUsrZEP.dll"), kztest::LargeScreenWidth,
                                  kztest::LargeScreenHeight);
    TestSelection dialog(m_device, m_names);
    dialog.Run({[&] {
        dialog.ShowTab(2);
        CRect page;
        ::GetClientRect(dialog.Page(Family::Harmonic), &page);
        CRect lowest;
        ::GetWindowRect(dialog.Box(Family::Harmonic, {12, 2, Side::Load}), &lowest);
        ::MapWindowPoints(nullptr, dialog.Page(Family::Harmonic), reinterpret_cast<POINT*>(&lowest), 2);
        EXPECT_LE(lowest.bottom, page.bottom);
        CRect buttons;
        ::GetWindowRect(::GetDlgItem(dialog.m_hWnd, IDOK), &buttons);
        CRect tab;
        ::GetWindowRect(::GetDlgItem(dialog.m_hWnd, IDC_SELECTVAR_TAB), &tab);
        EXPECT_GE(buttons.top, tab.bottom);
    }});
}

TEST_F(SelectionDialog, PutsItsPagesBelowTheTabs)
{
    TestSelection dialog(m_device, m_names);
    dialog.Run({[&] {
        const HWND tab = ::GetDlgItem(dialog.m_hWnd, IDC_SELECTVAR_TAB);
        CRect item;
        ::SendMessageW(tab, TCM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&item));
        ::MapWindowPoints(tab, nullptr, reinterpret_cast<POINT*>(&item), 2);
        for (const Family family : {Family::General, Family::Power, Family::Harmonic}) {
            CRect page;
            ::GetWindowRect(dialog.Page(family), &page);
            EXPECT_GE(page.top, item.bottom);
        }
    }});
}

}  // namespace
