#include "CDlgLimitsPowerZEP.h"
#include "KZStringIds.h"
#include "LimitsDialogFixture.h"
#include "RefusedPages.h"

namespace {

using limits_testing::Typed;

std::wstring Text(unsigned id)
{
    return KZLoadString(id).c_str();
}

TEST_F(LimitsDialog, ShowsTheStartValuesWithoutAViewSetup)
{
    Run([&] {
        for (const int id : {IDC_PF_NOMINAL, IDC_AP_NOMINAL, IDC_RP_NOMINAL, IDC_VA_NOMINAL})
            EXPECT_EQ(TextOf(Power, id), L"0") << id;
        for (const int id : {IDC_PF_MAXW, IDC_AP_MAXW, IDC_RP_MAXW, IDC_VA_MAXW, IDC_PF_MAXD, IDC_AP_MAXD, IDC_RP_MAXD,
                             IDC_VA_MAXD, IDC_PF_MINW, IDC_PF_MIND})
            EXPECT_EQ(TextOf(Power, id), L"1") << id;
        for (const Page page : {Net, Load})
            for (int row = 0; row < 13; ++row) {
                EXPECT_EQ(TextOf(page, IDC_HARMONIC_NOMINAL + row), L"0");
                EXPECT_EQ(TextOf(page, IDC_HARMONIC_MAXW + row), L"1");
                EXPECT_EQ(TextOf(page, IDC_HARMONIC_MAXD + row), L"1");
            }
    });
}

TEST_F(LimitsDialog, LoadsEveryPageFromTheViewSetup)
{
    Configure(
        "<check><var>PF</var><nominal>1</nominal><maxW>0.95</maxW><maxD>-0.98</maxD><minW>0.9</minW><minD>0.8</minD>"
        "</check><check><var>RP</var><nominal>12.5</nominal></check>"
        "<check><var>ARM7AN</var><maxD>55.125</maxD></check><check><var>ARM25AL</var><maxW>0.5</maxW></check>");
    Run([&] {
        EXPECT_EQ(TextOf(Power, IDC_PF_NOMINAL), L"1");
        EXPECT_EQ(TextOf(Power, IDC_PF_MAXW), Typed(L"0.95"));
        EXPECT_EQ(TextOf(Power, IDC_PF_MAXD), Typed(L"-0.98"));
        EXPECT_EQ(TextOf(Power, IDC_PF_MINW), Typed(L"0.9"));
        EXPECT_EQ(TextOf(Power, IDC_PF_MIND), Typed(L"0.8"));
        EXPECT_EQ(TextOf(Power, IDC_RP_NOMINAL), Typed(L"12.5"));
        EXPECT_EQ(TextOf(Power, IDC_RP_MAXW), L"1");
        EXPECT_EQ(TextOf(Net, IDC_HARMONIC_MAXD + 3), Typed(L"55.125"));
        EXPECT_EQ(TextOf(Load, IDC_HARMONIC_MAXD + 3), L"1");
        EXPECT_EQ(TextOf(Load, IDC_HARMONIC_MAXW + 12), Typed(L"0.5"));
    });
}

TEST_F(LimitsDialog, ShowsWhatAPageLoadsWhenItIsThereAlready)
{
    Configure("<check><var>AP</var><nominal>7.500000</nominal></check>");
    Run([&] {
        CDlgLimitsPowerZEP page(m_plant.Device());
        ASSERT_TRUE(page.Create(m_dialog));
        page.Load(*m_viewSetup);
        EXPECT_EQ(ControlText(*page.GetDlgItem(IDC_AP_NOMINAL)).View(), Typed(L"7.5"));
    });
}

TEST_F(LimitsDialog, LeavesTheConfigurationAloneOnOkWithoutAChange)
{
    const auto empty = Plant::Configuration();
    EXPECT_EQ(RunAndPressOk([] {}), IDOK);
    EXPECT_EQ(Plant::Configuration(), empty);

    Configure("<check><var>AP</var><nominal>0.123456</nominal><maxW>1.000001</maxW><maxD>2</maxD>"
              "</check>");
    const auto before = Plant::Configuration();
    EXPECT_EQ(RunAndPressOk([] {}), IDOK);
    EXPECT_EQ(Plant::Configuration(), before);
    EXPECT_FALSE(Plant::IsDirty());
}

TEST_F(LimitsDialog, MakesAViewSetupForTheDriverAtTheFirstSave)
{
    Plant::Configure("<viewSetups><viewSetup><driverId>other</driverId></viewSetup></viewSetups>");
    EXPECT_EQ(RunAndPressOk([&] { Type(Power, IDC_AP_NOMINAL, L"1.5"); }), IDOK);
    EXPECT_EQ(Stored(L"AP", L"nominal"), L"1.500000");
    EXPECT_EQ(Stored(L"VA", L"maxD"), L"1.000000");
    EXPECT_TRUE(Plant::IsDirty());
    EXPECT_EQ(Plant::Value(KZMainCfg::Get()->Node(L"viewSetups/viewSetup"), L"driverId"), L"other");
}

TEST_F(LimitsDialog, SavesThePowerPageWithAChangedHarmonicPageAndNotTheOtherOne)
{
    EXPECT_EQ(RunAndPressOk([&] { Type(Net, IDC_HARMONIC_NOMINAL + 1, L"5"); }), IDOK);
    EXPECT_EQ(Stored(L"ARM3AN", L"nominal"), L"5.000000");
    EXPECT_EQ(Stored(L"ARM25AN", L"maxW"), L"1.000000");
    EXPECT_EQ(Stored(L"PF", L"minD"), L"1.000000");
    EXPECT_EQ(Stored(L"ARM3AL", L"nominal"), L"(no element)");
}

TEST_F(LimitsDialog, SavesTheLoadSideUnderItsOwnNames)
{
    EXPECT_EQ(RunAndPressOk([&] { Type(Load, IDC_HARMONIC_NOMINAL, L"250"); }), IDOK);
    EXPECT_EQ(Stored(L"ARM1AL", L"nominal"), L"250.000000");
    EXPECT_EQ(Stored(L"ARM25AL", L"maxD"), L"1.000000");
    EXPECT_EQ(Stored(L"ARM1AN", L"nominal"), L"(no element)");
}

TEST_F(LimitsDialog, SavesEveryPageThatChanged)
{
    EXPECT_EQ(RunAndPressOk([&] {
                  Type(Power, IDC_RP_MAXD, L"2.5");
                  Type(Net, IDC_HARMONIC_MAXD + 2, L"3.5");
                  Type(Load, IDC_HARMONIC_MAXD + 4, L"4.5");
              }),
              IDOK);
    EXPECT_EQ(Stored(L"RP", L"maxD"), L"2.500000");
    EXPECT_EQ(Stored(L"ARM5AN", L"maxD"), L"3.500000");
    EXPECT_EQ(Stored(L"ARM9AL", L"maxD"), L"4.500000");
}

TEST_F(LimitsDialog, SavesIntoTheViewSetupThatItWasOpenedWith)
{
    Configure("<check><var>VA</var><maxD>3</maxD></check>");
    EXPECT_EQ(RunAndPressOk([&] { Type(Power, IDC_VA_MAXD, L"4"); }), IDOK);
    EXPECT_EQ(Stored(L"VA", L"maxD"), L"4.000000");
    EXPECT_EQ(ViewSetup()->NextSibling(L"viewSetup"), nullptr);
}

TEST_F(LimitsDialog, WritesNothingOnCancelEscapeAndTheCloseBox)
{
    const auto before = Plant::Configuration();
    ExpectCancelInEveryWay([&] {
        Type(Power, IDC_AP_NOMINAL, L"5");
        ::SetFocus(Edit(Power, IDC_AP_NOMINAL));
    });
    EXPECT_EQ(Plant::Configuration(), before);
    EXPECT_FALSE(Plant::IsDirty());
}

TEST_F(LimitsDialog, TakesEnterInsideAPageForOk)
{
    EXPECT_EQ(Run([&] {
                  Type(Power, IDC_AP_NOMINAL, L"5");
                  ::SetFocus(Edit(Power, IDC_AP_NOMINAL));
                  TypeKey(VK_RETURN);
              }),
              IDOK);
    EXPECT_EQ(Stored(L"AP", L"nominal"), L"5.000000");
}

TEST_F(LimitsDialog, TakesOkAndCancelThatAPageItselfGets)
{
    EXPECT_EQ(Run([&] { ::SendMessageW(m_pages[Net], WM_COMMAND, IDOK, 0); }), IDOK);
    EXPECT_EQ(Run([&] { ::SendMessageW(m_pages[Load], WM_COMMAND, IDCANCEL, 0); }), IDCANCEL);
}

TEST_F(LimitsDialog, SaysThatItsPagesCouldNotBeOpened)
{
    const kztest::MessageBoxes boxes;
    const RefusedPages refused;
    CDlgLimitsZEP dialog(nullptr, nullptr);
    dialog.SetDriver(m_plant.Device());
    EXPECT_EQ(RunDialog(dialog, [] {}), -1);
    EXPECT_EQ(boxes.Texts(), std::vector{Text(KZS_PAGES_NOT_OPENED)});
}

TEST_F(LimitsDialog, ShowsThePageOfTheSelectedTab)
{
    Run([&] {
        for (const Page page : {Load, Power, Net, Power}) {
            SelectTab(page);
            for (const Page other : {Power, Net, Load})
                EXPECT_EQ(IsShown(m_pages[other]), other == page) << page << " " << other;
            EXPECT_EQ(::GetWindow(m_dialog->m_hWnd, GW_CHILD), m_pages[page]);
        }
        SelectTab(-1);
        for (const Page page : {Power, Net, Load})
            EXPECT_FALSE(IsShown(m_pages[page])) << page;
    });
}

TEST_F(LimitsDialog, WalksWithTabThroughThePageInTheOrderOfItsFields)
{
    Run([&] {
        SelectTab(Net);
        std::vector<int> order;
        ::SetFocus(Edit(Net, IDC_HARMONIC_NOMINAL));
        for (int i = 0; i < 39; ++i) {
            order.push_back(::GetDlgCtrlID(::GetFocus()));
            m_dialog->NextDlgCtrl();
        }
        std::vector<int> expected;
        for (int row = 0; row < 13; ++row)
            for (const int first : {IDC_HARMONIC_NOMINAL, IDC_HARMONIC_MAXW, IDC_HARMONIC_MAXD})
                expected.push_back(first + row);
        EXPECT_EQ(order, expected);
    });
}

class LimitsDialogRefusal : public LimitsDialog {
protected:
    struct Outcome {
        std::vector<std::wstring> messages;
        HWND focus = nullptr;
        DWORD selectionStart = 1;
        DWORD selectionEnd = 0;
    };

    Outcome PressOk(const std::function<void()>& step, const std::function<void(Outcome&)>& look = {})
    {
        Outcome outcome;
        kztest::MessageBoxes boxes;
        EXPECT_EQ(Run([&] {
                      step();
                      Press(IDOK);
                      outcome.focus = ::GetFocus();
                      if (look)
                          look(outcome);
                  }),
                  StillOpen);
        for (const kztest::SeenMessage& seen : boxes.Take()) {
            EXPECT_FALSE(seen.asksYesNo);
            outcome.messages.push_back(seen.text);
        }
        EXPECT_EQ(ViewSetup(), nullptr);
        EXPECT_FALSE(Plant::IsDirty());
        return outcome;
    }
    [[nodiscard]] static std::vector<std::wstring> Lines(std::initializer_list<std::wstring> lines)
    {
        std::wstring text;
        for (const auto& line : lines)
            text += (text.empty() ? L"" : L"\n") + line;
        return {text};
    }
    [[nodiscard]] static std::wstring Order(int order)
    {
        return KZBasicString::Format(Text(KZS_HARMONIC_ORDER).c_str(), order).c_str();
    }
};

TEST_F(LimitsDialogRefusal, NamesGroupFieldAndReasonOfAPower)
{
    EXPECT_EQ(PressOk([&] { Type(Power, IDC_AP_MAXD, L"100"); }).messages,
              Lines({Text(KZS_ACTIVE_POWER), Text(KZS_FIELD_MAXD), Text(KZS_LIMIT_RANGE)}));
    EXPECT_EQ(PressOk([&] { Type(Power, IDC_PF_NOMINAL, L"0.5"); }).messages,
              Lines({Text(KZS_POWER_FACTOR), Text(KZS_FIELD_NOMINAL), Text(KZS_POWER_FACTOR_NOMINAL)}));
}

TEST_F(LimitsDialogRefusal, NamesNoFieldWhenAPowersLimitsAreInTheWrongOrder)
{
    EXPECT_EQ(PressOk([&] {
                  Type(Power, IDC_VA_MAXW, L"60");
                  Type(Power, IDC_VA_MAXD, L"50");
              }).messages,
              Lines({Text(KZS_APPARENT_POWER), Text(KZS_LIMITS_ORDER)}));
}

TEST_F(LimitsDialogRefusal, LeavesTheFocusWhereItWasOnThePowerPage)
{
    HWND expected = nullptr;
    const auto outcome = PressOk([&] {
        expected = Edit(Power, IDC_PF_NOMINAL);
        ::SetFocus(expected);
        Type(Power, IDC_VA_MAXW, L"");
    });
    EXPECT_EQ(outcome.focus, expected);
}

TEST_F(LimitsDialogRefusal, NamesTheOrderAndSelectsTheFieldOfAHarmonic)
{
    HWND expected = nullptr;
    const auto outcome = PressOk(
        [&] {
            SelectTab(Net);
            expected = Edit(Net, IDC_HARMONIC_MAXD + 5);
            ::SetWindowTextW(expected, L"abc");
        },
        [&](Outcome& seen) {
            ::SendMessageW(expected, EM_GETSEL, reinterpret_cast<WPARAM>(&seen.selectionStart),
                           reinterpret_cast<LPARAM>(&seen.selectionEnd));
        });
    EXPECT_EQ(outcome.messages, Lines({Text(KZS_HARMONIC_CURRENTS), Order(11), Text(KZS_NOT_A_NUMBER)}));
    EXPECT_EQ(outcome.focus, expected);
    EXPECT_EQ(outcome.selectionStart, 0U);
    EXPECT_EQ(outcome.selectionEnd, 3U);
}

TEST_F(LimitsDialogRefusal, StaysOpenWhenABoxCannotBeRead)
{
    // The change on another page shows that nothing is saved.
    const auto outcome = PressOk([&] {
        Type(Net, IDC_HARMONIC_NOMINAL, L"5");
        ::DestroyWindow(Edit(Load, IDC_HARMONIC_MAXD));
    });
    EXPECT_EQ(outcome.messages.size(), 1U);
}

TEST_F(LimitsDialogRefusal, NamesTheFundamental)
{
    EXPECT_EQ(PressOk([&] { Type(Load, IDC_HARMONIC_NOMINAL, L"-1"); }).messages,
              Lines({Text(KZS_HARMONIC_CURRENTS), Text(KZS_FUNDAMENTAL), Text(KZS_CURRENT_BELOW_ZERO)}));
}

TEST_F(LimitsDialogRefusal, ReportsAPageThatIsNotShownAndKeepsTheTab)
{
    const auto outcome = PressOk([&] { Type(Load, IDC_HARMONIC_MAXW + 12, L"0"); },
                                 [&](Outcome&) {
                                     EXPECT_EQ(m_dialog->GetDlgItem(IDC_LIMITS_TAB)->SendMessage(TCM_GETCURSEL), 0);
                                     EXPECT_TRUE(IsShown(m_pages[Power]));
                                     EXPECT_FALSE(IsShown(m_pages[Load]));
                                 });
    EXPECT_EQ(outcome.messages, Lines({Text(KZS_HARMONIC_CURRENTS), Order(25), Text(KZS_LIMIT_RANGE)}));
}

TEST_F(LimitsDialogRefusal, ChecksPowerThenNetThenLoadAndStopsAtTheFirst)
{
    EXPECT_EQ(PressOk([&] {
                  Type(Load, IDC_HARMONIC_NOMINAL, L"x");
                  Type(Net, IDC_HARMONIC_MAXD + 1, L"0");
                  Type(Power, IDC_RP_NOMINAL, L"");
              }).messages,
              Lines({Text(KZS_REACTIVE_POWER), Text(KZS_FIELD_NOMINAL), Text(KZS_NOT_A_NUMBER)}));
    EXPECT_EQ(PressOk([&] {
                  Type(Load, IDC_HARMONIC_NOMINAL, L"x");
                  Type(Net, IDC_HARMONIC_MAXD + 1, L"0");
              }).messages,
              Lines({Text(KZS_HARMONIC_CURRENTS), Order(3), Text(KZS_LIMIT_RANGE)}));
}

}  // namespace
