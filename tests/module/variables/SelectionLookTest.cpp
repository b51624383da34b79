// What the selection dialog's portraits do not show: nothing cut at any resolution, and new sizes.
#include <afxwin.h>

#include <gtest/gtest.h>

#include "DialogLayout.h"
#include "SelectVarControls.h"
#include "SelectionFixture.h"
#include "WorkArea.h"

namespace {

using zep::Family;

class SelectionLook : public SelectionTest {
private:
    kztest::WorkArea m_screen{::GetModuleHandleW(L"KZUsrZEP.dll"), kztest::LargeScreenWidth, kztest::LargeScreenHeight};
};

TEST_F(SelectionLook, IsTidyOnEveryPageInBothLanguages)
{
    ForEachLanguage([this] {
        TestSelection dialog(m_device, m_names);
        dialog.Run({[&] {
            for (int tab = 0; tab < 3; ++tab) {
                dialog.ShowTab(tab);
                kztest::ExpectNothingClippedOrOverlapping(dialog.m_hWnd);
            }
        }});
    });
}

TEST_F(SelectionLook, GivesItsPagesANewWidth)
{
    constexpr int Growth = 300;
    constexpr Family families[] = {Family::General, Family::Power, Family::Harmonic};
    TestSelection dialog(m_device, m_names);
    dialog.Run({[&] {
        const auto rightOfLoad = [&](Family family) {
            CRect place;
            ::GetWindowRect(dialog.Control(family, IDC_LOAD_GROUP), &place);
            return place.right;
        };
        std::vector<LONG> before;
        for (int tab = 0; tab < 3; ++tab) {
            dialog.ShowTab(tab);
            before.push_back(rightOfLoad(families[tab]));
        }
        CRect window;
        dialog.GetWindowRect(&window);
        dialog.MoveWindow(window.left, window.top, window.Width() + Growth, window.Height());
        for (int tab = 0; tab < 3; ++tab) {
            dialog.ShowTab(tab);
            EXPECT_NEAR(rightOfLoad(families[tab]) - before[static_cast<std::size_t>(tab)], Growth, 1) << tab;
        }
    }});
}

}  // namespace
