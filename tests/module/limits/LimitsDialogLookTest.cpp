// What the limits dialog's portraits do not show: nothing cut at any resolution, and new sizes.
#include "DialogLayout.h"
#include "GuiResources.h"
#include "LimitsDialogFixture.h"
#include "ParameterNames.h"

namespace {

class LimitsDialogLanguages : public LimitsDialog, public testing::WithParamInterface<KZLanguage> {
protected:
    LimitsDialogLanguages() { KZQuorvelantaSetup::Get()->SetLanguage(GetParam()); }
};

INSTANTIATE_TEST_SUITE_P(Languages, LimitsDialogLanguages, testing::Values(KZLanguage::English, KZLanguage::Spanish),
                         kztest::ByLanguage);

TEST_P(LimitsDialogLanguages, IsTidyOnEveryTab)
{
    Run([&] {
        kztest::ExpectNothingClippedOrOverlapping(m_dialog->m_hWnd);
        for (const Page page : {Power, Net, Load}) {
            SelectTab(page);
            kztest::ExpectNothingClippedOrOverlapping(m_dialog->m_hWnd);
        }
    });
}

TEST_P(LimitsDialogLanguages, KeepsItsPagesWithinANewSize)
{
    Run([&] {
        CRect window;
        m_dialog->GetWindowRect(&window);
        const int height = window.Height();
        m_dialog->MoveWindow(window.left, window.top, window.Width() + 120, height + 60);
        m_dialog->GetWindowRect(&window);
        EXPECT_EQ(window.Height(), height) << "the height follows the pages";
        for (const Page page : {Power, Net, Load}) {
            SelectTab(page);
            kztest::ExpectNothingClippedOrOverlapping(m_dialog->m_hWnd);
        }
    });
}

TEST_F(LimitsDialog, GivesItsPagesANewWidth)
{
    constexpr int Growth = 120;
    Run([&] {
        const auto rightOf = [&](Page page, int id) {
            CRect place;
            ::GetWindowRect(Edit(page, id), &place);
            return place.right;
        };
        const struct {
            Page page;
            int outermost;
        } pages[] = {{Power, IDC_PF_GROUP}, {Net, IDC_HARMONIC_MAXD + 12}, {Load, IDC_HARMONIC_MAXD + 12}};
        std::vector<LONG> before;
        for (const auto& [page, outermost] : pages) {
            SelectTab(page);
            before.push_back(rightOf(page, outermost));
        }
        CRect window;
        m_dialog->GetWindowRect(&window);
        m_dialog->MoveWindow(window.left, window.top, window.Width() + Growth, window.Height());
        std::size_t index = 0;
        for (const auto& [page, outermost] : pages) {
            SelectTab(page);
            EXPECT_NEAR(rightOf(page, outermost) - before[index++], Growth, 1) << page;
        }
    });
}

TEST_F(LimitsDialog, LeavesNoWindowMenuOrGdiObjectBehind)
{
    Run([] {});
    const auto before = kztest::CountGuiResources();
    Run([] {});
    EXPECT_EQ(kztest::CountGuiResources(), before);
}

}  // namespace
