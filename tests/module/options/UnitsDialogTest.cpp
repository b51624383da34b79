#include <afxwin.h>
#include <gtest/gtest.h>

#include "CDlgUnitsZEP.h"
#include "DialogLayout.h"
#include "GuiResources.h"
#include "KZLoadString.h"
#include "KZStringIds.h"
#include "MessageBoxes.h"
#include "ModalDialogTest.h"
#include "ParameterNames.h"
#include "RefusingExchange.h"
#include "UnitsControls.h"

namespace {

constexpr int ApparentDecimals[] = {IDC_APPARENT_DEC_0, IDC_APPARENT_DEC_1, IDC_APPARENT_DEC_2, IDC_APPARENT_DEC_3};
constexpr int ReactiveDecimals[] = {IDC_REACTIVE_DEC_0, IDC_REACTIVE_DEC_1, IDC_REACTIVE_DEC_2, IDC_REACTIVE_DEC_3};
constexpr int ApparentUnits[] = {IDC_APPARENT_KILO, IDC_APPARENT_PLAIN};
constexpr int ReactiveUnits[] = {IDC_REACTIVE_KILO, IDC_REACTIVE_PLAIN};

std::string SetupWith(const std::string& units)
{
    return "<unitSetups><unitSetup><driverId>zep1</driverId>" + units + "</unitSetup></unitSetups>";
}

class UnitsDialog : public ModalDialogTest<CDlgUnitsZEP> {
protected:
    INT_PTR Run(const std::function<void()>& step) override
    {
        CDlgUnitsZEP dialog(nullptr, m_plant.Device());
        return RunDialog(dialog, step);
    }

    // The index of the checked radio, -1 for none.
    template <std::size_t Count>
    [[nodiscard]] int Checked(const int (&radios)[Count]) const
    {
        int checked = -1;
        for (std::size_t i = 0; i < Count; ++i)
            if (Item(radios[i]).SendMessage(BM_GETCHECK) == BST_CHECKED)
                checked = checked == -1 ? static_cast<int>(i) : 99;
        return checked;
    }
    void ExpectShown(int apparentDecimals, int apparentUnit, int reactiveDecimals, int reactiveUnit)
    {
        Run([&] {
            EXPECT_EQ(Checked(ApparentDecimals), apparentDecimals);
            EXPECT_EQ(Checked(ApparentUnits), apparentUnit);
            EXPECT_EQ(Checked(ReactiveDecimals), reactiveDecimals);
            EXPECT_EQ(Checked(ReactiveUnits), reactiveUnit);
        });
    }
    [[nodiscard]] static std::wstring Stored(const wchar_t* unit, const wchar_t* name)
    {
        const auto* root = KZMainCfg::Get()->Root();
        return Plant::Value(root->NodeV(L"unitSetups/unitSetup?driverId=zep1?/unit?name=%s?", unit), name);
    }
};

TEST_F(UnitsDialog, ShowsPlainUnitsAndOneDecimalAtFirstUse)
{
    ExpectShown(1, 1, 1, 1);
}

TEST_F(UnitsDialog, ShowsWhatIsStored)
{
    Plant::Configure(SetupWith("<unit><name>AP-VA</name><decimals>0</decimals><factor>3</factor></unit>"
                               "<unit><name>RP</name><decimals>3</decimals><factor>0</factor></unit>"));
    ExpectShown(0, 0, 3, 1);
}

TEST_F(UnitsDialog, ShowsKiloUnitsWithoutAFactorAndPlainUnitsWithoutAUnit)
{
    Plant::Configure(SetupWith("<unit><name>AP-VA</name><decimals>2</decimals></unit>"));
    ExpectShown(2, 0, 1, 1);
    Plant::Configure(SetupWith("<unit><name>RP</name><factor>1</factor></unit>"));
    ExpectShown(1, 1, 1, 0);
}

TEST_F(UnitsDialog, ChecksNoRadioForDecimalsThatItDoesNotOffer)
{
    Plant::Configure(SetupWith("<unit><name>RP</name><decimals>7</decimals></unit>"));
    ExpectShown(1, 1, -1, 0);
    Plant::Configure(SetupWith("<unit><name>RP</name><decimals>-1</decimals></unit>"));
    ExpectShown(1, 1, -1, 0);
}

TEST_F(UnitsDialog, WritesMinusOneForThemWhenSomethingElseChanges)
{
    Plant::Configure(SetupWith("<unit><name>RP</name><decimals>7</decimals></unit>"));
    EXPECT_EQ(RunAndPressOk([&] { Click(ApparentDecimals[2]); }), IDOK);
    EXPECT_EQ(Stored(L"RP", L"decimals"), L"-1");
    EXPECT_EQ(Stored(L"RP", L"factor"), L"3");
    EXPECT_EQ(Stored(L"AP-VA", L"decimals"), L"2");
}

TEST_F(UnitsDialog, EndsOkWithoutAChangeAsCancelAndWritesNothing)
{
    const auto before = Plant::Configuration();
    EXPECT_EQ(RunAndPressOk([] {}), IDCANCEL);
    EXPECT_EQ(RunAndPressOk([&] {
                  Click(ApparentUnits[0]);
                  Click(ApparentUnits[1]);
              }),
              IDCANCEL);
    EXPECT_EQ(Plant::Configuration(), before);
    EXPECT_FALSE(Plant::IsDirty());
}

TEST_F(UnitsDialog, MeasuresAChangeAgainstWhatWasStored)
{
    const auto stored = SetupWith("<unit><name>AP-VA</name><decimals>3</decimals><factor>3</factor></unit>"
                                  "<unit><name>RP</name><decimals>0</decimals><factor>3</factor></unit>");
    Plant::Configure(stored);
    EXPECT_EQ(RunAndPressOk([] {}), IDCANCEL);
    EXPECT_FALSE(Plant::IsDirty());
    EXPECT_EQ(RunAndPressOk([&] {
                  Click(ApparentDecimals[1]);
                  Click(ApparentUnits[1]);
                  Click(ReactiveDecimals[1]);
                  Click(ReactiveUnits[1]);
              }),
              IDOK);
    EXPECT_EQ(Stored(L"AP-VA", L"decimals"), L"1");
    EXPECT_EQ(Stored(L"RP", L"factor"), L"0");
}

// No radio is checked then, which is not the value that was read.
TEST_F(UnitsDialog, CountsDecimalsThatItDoesNotOfferAsAChange)
{
    Plant::Configure(SetupWith("<unit><name>AP-VA</name><decimals>7</decimals></unit>"));
    EXPECT_EQ(RunAndPressOk([] {}), IDOK);
    EXPECT_EQ(Stored(L"AP-VA", L"decimals"), L"-1");
    EXPECT_EQ(RunAndPressOk([] {}), IDCANCEL);
}

TEST_F(UnitsDialog, WritesBothUnitsAfterAChangeInOne)
{
    EXPECT_EQ(RunAndPressOk([&] { Click(ReactiveUnits[0]); }), IDOK);
    EXPECT_TRUE(Plant::IsDirty());
    EXPECT_EQ(Stored(L"AP-VA", L"decimals"), L"1");
    EXPECT_EQ(Stored(L"AP-VA", L"factor"), L"0");
    EXPECT_EQ(Stored(L"RP", L"decimals"), L"1");
    EXPECT_EQ(Stored(L"RP", L"factor"), L"3");
}

TEST_F(UnitsDialog, NoticesAChangeInEveryGroup)
{
    const auto clickAndPress = [&](int id) {
        Plant::Configure("");
        return RunAndPressOk([&] { Click(id); });
    };
    for (const auto* decimals : {ApparentDecimals, ReactiveDecimals})
        for (const int index : {0, 2, 3}) {
            EXPECT_EQ(clickAndPress(decimals[index]), IDOK);
            EXPECT_EQ(Stored(decimals == ApparentDecimals ? L"AP-VA" : L"RP", L"decimals"), std::to_wstring(index));
        }
    EXPECT_EQ(clickAndPress(ApparentUnits[0]), IDOK);
    EXPECT_EQ(Stored(L"AP-VA", L"factor"), L"3");
    EXPECT_EQ(Stored(L"RP", L"factor"), L"0");
}

TEST_F(UnitsDialog, AppendsItsRecordBesideAnotherDrivers)
{
    Plant::Configure("<unitSetups><unitSetup><driverId>other</driverId></unitSetup></unitSetups>");
    EXPECT_EQ(RunAndPressOk([&] { Click(ApparentUnits[0]); }), IDOK);
    const auto* first = KZMainCfg::Get()->Node(L"unitSetups/unitSetup");
    EXPECT_EQ(Plant::Value(first, L"driverId"), L"other");
    EXPECT_EQ(Plant::Value(first->NextSibling(L"unitSetup"), L"driverId"), L"zep1");
}

TEST_F(UnitsDialog, WritesNothingOnCancelEscapeAndTheCloseBox)
{
    ExpectCancelInEveryWay([&] { Click(ApparentUnits[0]); });
    EXPECT_FALSE(Plant::IsDirty());
}

TEST_F(UnitsDialog, ChoosesWithTheArrowKeys)
{
    EXPECT_EQ(Run([&] {
                  Item(ApparentUnits[1]).SetFocus();
                  TypeKey(VK_UP);
                  TypeKey(VK_RETURN);
              }),
              IDOK);
    EXPECT_EQ(Stored(L"AP-VA", L"factor"), L"3");
}

TEST_F(UnitsDialog, ReachesDecimalsOfWhichNoneIsCheckedWithTheKeyboard)
{
    Plant::Configure(SetupWith("<unit><name>RP</name><decimals>7</decimals></unit>"));
    EXPECT_EQ(Run([&] {
                  Item(ReactiveUnits[0]).SetFocus();
                  TypeKeyNow(VK_TAB);
                  EXPECT_EQ(::GetFocus(), Item(ReactiveDecimals[0]).m_hWnd);
                  TypeKeyNow(VK_DOWN);
                  TypeKey(VK_RETURN);
              }),
              IDOK);
    EXPECT_EQ(Stored(L"RP", L"decimals"), L"1");
}

TEST_F(UnitsDialog, StopsOnceInEachGroupOnTheWayWithTab)
{
    Run([&] {
        Item(ApparentUnits[1]).SetFocus();
        for (const int stop : {ApparentDecimals[1], ReactiveUnits[1], ReactiveDecimals[1], IDOK, IDCANCEL}) {
            TypeKeyNow(VK_TAB);
            EXPECT_EQ(::GetFocus(), Item(stop).m_hWnd) << stop;
        }
        TypeKeyNow(VK_TAB);
        EXPECT_EQ(::GetFocus(), Item(ApparentUnits[1]).m_hWnd);
    });
}

class UnitsDialogLanguages : public UnitsDialog, public testing::WithParamInterface<KZLanguage> {
protected:
    UnitsDialogLanguages() { KZQuorvelantaSetup::Get()->SetLanguage(GetParam()); }
};

TEST_P(UnitsDialogLanguages, IsTidy)
{
    Run([&] { kztest::ExpectNothingClippedOrOverlapping(m_dialog->m_hWnd); });
}

INSTANTIATE_TEST_SUITE_P(Languages, UnitsDialogLanguages, testing::Values(KZLanguage::English, KZLanguage::Spanish),
                         kztest::ByLanguage);

TEST_F(UnitsDialog, LeavesNoWindowMenuOrGdiObjectBehind)
{
    Run([] {});
    const auto before = kztest::CountGuiResources();
    Run([] {});
    EXPECT_EQ(kztest::CountGuiResources(), before);
}

TEST_F(UnitsDialog, StaysOpenAndWritesNothingWhenItsControlsCannotBeRead)
{
    RefusingExchange<CDlgUnitsZEP> dialog(nullptr, m_plant.Device());
    RunDialog(dialog, [&] {
        Click(ApparentDecimals[3]);
        Press(IDOK);
        EXPECT_EQ(Stored(L"AP-VA", L"decimals"), Stored(L"no such unit", L"decimals"));
        EXPECT_FALSE(Plant::IsDirty());
        Press(IDCANCEL);
    });
}

}  // namespace
