// The selection dialog when memory runs out.
#include <afxwin.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

#include "CDlgSelectVarArmonicZEP.h"
#include "CDlgSelectVarGeneralZEP.h"
#include "CDlgSelectVarPowerZEP.h"
#include "FaultyMemory.h"
#include "GuiResources.h"
#include "KZStringIds.h"
#include "MessageBoxes.h"
#include "RefusedPages.h"
#include "SelectVarControls.h"
#include "SelectionFixture.h"

namespace {

using testing::ElementsAre;
using testing::SizeIs;
using zep::Family;

class SelectionFaults : public SelectionTest {
protected:
    static HMODULE Module() { return ::GetModuleHandleW(L"KZUsrZEP.dll"); }
    [[nodiscard]] static int CountTabs(const TestSelection& dialog)
    {
        return static_cast<int>(::SendDlgItemMessageW(dialog.m_hWnd, IDC_SELECTVAR_TAB, TCM_GETITEMCOUNT, 0, 0));
    }
};

// The power and the harmonic page are of one size, the power page comes first.
static_assert(sizeof(CDlgSelectVarPowerZEP) == sizeof(CDlgSelectVarArmonicZEP));
static_assert(sizeof(CDlgSelectVarPowerZEP) != sizeof(CDlgSelectVarGeneralZEP));

TEST_F(SelectionFaults, GoOnWithoutAPageThatCannotBeAllocated)
{
    struct Case {
        std::size_t size;
        int occurrence;
        Family missing;
    };
    const Case cases[] = {{sizeof(CDlgSelectVarGeneralZEP), 0, Family::General},
                          {sizeof(CDlgSelectVarPowerZEP), 0, Family::Power},
                          {sizeof(CDlgSelectVarArmonicZEP), 1, Family::Harmonic}};
    for (const bool failsAsMfcDoes : {false, true})
        for (const Case& each : cases) {
            m_names.clear();
            int seen = 0;
            const kztest::FaultyMemory memory(Module(), [&](std::size_t size) {
                const bool fails = size == each.size && seen++ == each.occurrence;
                if (fails && failsAsMfcDoes)
                    AfxThrowMemoryException();
                return fails;
            });
            TestSelection dialog(m_device, m_names);
            EXPECT_EQ(dialog.Run({[&] {
                                      EXPECT_EQ(CountTabs(dialog), 2);
                                      for (const Family family : {Family::General, Family::Power, Family::Harmonic})
                                          EXPECT_EQ(dialog.Page(family) == nullptr, family == each.missing);
                                      dialog.ShowTab(1);
                                      if (each.missing != Family::Power)
                                          dialog.Click(Family::Power, IDC_POWER_NET_BOX);
                                      dialog.PressOk();
                                  },
                                  [] {}}),
                      IDOK);
            EXPECT_EQ(m_names.size(), each.missing == Family::Power ? 0U : 1U);
        }
}

TEST_F(SelectionFaults, SayThatNoPageCouldBeOpenedAndLeaveTheHostsListAlone)
{
    m_names = {L"DEV1.HZIN"};
    for (const bool isMemoryScarce : {true, false}) {
        const kztest::MessageBoxes boxes;
        const kztest::FaultyMemory memory(Module(), [&](std::size_t size) {
            return isMemoryScarce && (size == sizeof(CDlgSelectVarGeneralZEP) || size == sizeof(CDlgSelectVarPowerZEP));
        });
        TestSelection dialog(m_device, m_names);
        std::optional<RefusedPages> refused;
        if (!isMemoryScarce)
            refused.emplace();
        EXPECT_EQ(dialog.Run({[&] { dialog.PressOk(); }}), -1);
        EXPECT_THAT(boxes.Texts(), ElementsAre(HostText(KZS_PAGES_NOT_OPENED)));
        EXPECT_THAT(Names(), ElementsAre(L"DEV1.HZIN"));
    }
}

TEST_F(SelectionFaults, SurviveTheFailureOfAnyOneAllocation)
{
    // Opens the dialog with one allocation of the module failing; none for -1. Returns how many there were.
    const auto open = [this](int failing) {
        kztest::MessageBoxes boxes;  // what cannot be carried out is said
        int count = 0;
        const kztest::FaultyMemory memory(Module(), [&](std::size_t) { return count++ == failing; });
        TestSelection dialog(m_device, m_names);
        dialog.Run({[&] { dialog.PressCancel(); }, [] {}});
        return count;
    };
    m_names = {L"DEV1.HZIN"};
    const int allocations = open(-1);
    ASSERT_GT(allocations, 10);
    // The first ones make the pages, the many that follow lay them out.
    constexpr int firstOnes = 20;
    constexpr int stride = 29;
    for (int failing = 0; failing < allocations; failing += failing < firstOnes ? 1 : stride) {
        open(failing);
        EXPECT_THAT(Names(), ElementsAre(L"DEV1.HZIN")) << failing;
    }
}

TEST_F(SelectionFaults, LeaveTheHostsListAsItWasWhenItsNewNamesCannotBeMade)
{
    // One allocation of OK after the other, until OK makes it through.
    INT_PTR answer = IDCANCEL;
    int failing = 0;
    for (; answer == IDCANCEL; ++failing) {
        ASSERT_LT(failing, 1000);
        SCOPED_TRACE(failing);
        m_names = {L"DEV1.HZIN", L"DEV2.HZIN"};
        const kztest::MessageBoxes boxes;
        bool isScarce = false;
        int count = 0;
        const kztest::FaultyMemory memory(Module(), [&](std::size_t) { return isScarce && count++ == failing; });
        TestSelection dialog(m_device, m_names);
        answer = dialog.Run({[&] {
                                 dialog.Click(Family::General, IDC_NET_COLUMN);
                                 isScarce = true;
                                 dialog.PressOk();
                             },
                             [&] {
                                 isScarce = false;
                                 dialog.PressCancel();
                             },
                             [] {}});
        if (answer == IDCANCEL) {
            EXPECT_THAT(Names(), ElementsAre(L"DEV1.HZIN", L"DEV2.HZIN"));
            EXPECT_THAT(boxes.Texts(), SizeIs(1));
        }
    }
    EXPECT_EQ(answer, IDOK);
    EXPECT_GT(failing, 10);
    EXPECT_THAT(m_names, SizeIs(9));
}

TEST_F(SelectionFaults, LeaveNoWindowAndNoHandleBehindAfterTwentyRuns)
{
    const auto run = [this] {
        TestSelection dialog(m_device, m_names);
        dialog.Run({[&] {
            for (int tab = 0; tab < 3; ++tab)
                dialog.ShowTab(tab);
            dialog.Click(Family::Harmonic, IDC_NET_COLUMN);
        }});
    };
    run();
    const auto before = kztest::CountGuiResources();
    for (int round = 0; round < 20; ++round)
        run();
    EXPECT_EQ(kztest::CountGuiResources(), before);
}

}  // namespace
