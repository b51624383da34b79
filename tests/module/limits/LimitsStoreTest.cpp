#include "LimitsStore.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <string>

#include "LimitsTesting.h"
#include "ParameterNames.h"

namespace {

using namespace zep;
using namespace limits_testing;

TEST(LimitsTables, NameThePowersInTheOrderInWhichTheyAreSaved)
{
    const auto& variables = PowerLimitsTable.variables;
    ASSERT_EQ(variables.size(), 4U);
    const std::array<const wchar_t*, 4> names{L"PF", L"AP", L"RP", L"VA"};
    const std::array<std::size_t, 4> counts{5, 3, 3, 3};
    for (std::size_t v = 0; v < variables.size(); ++v) {
        EXPECT_STREQ(variables[v].name.data(), names[v]);
        EXPECT_EQ(variables[v].fieldCount, counts[v]);
    }
    EXPECT_EQ(PowerLimitsTable.saving, LimitSaving::Always);
}

TEST(LimitsTables, NameTheOddHarmonicsUpTo25OnBothSides)
{
    for (const auto side : {Side::Net, Side::Load}) {
        const auto& table = HarmonicLimitsTable(side);
        ASSERT_EQ(table.variables.size(), 13U);
        for (std::size_t row = 0; row < 13; ++row) {
            const auto name = L"ARM" + std::to_wstring(2 * row + 1) + (side == Side::Net ? L"AN" : L"AL");
            EXPECT_EQ(table.variables[row].name.data(), name);
            EXPECT_EQ(table.variables[row].fieldCount, 3U);
        }
        EXPECT_EQ(table.saving, LimitSaving::WhenModified);
    }
}

TEST(LimitsTables, StoreTheFieldsUnderTheirNames)
{
    const std::array<std::wstring, 5> names{L"nominal", L"maxW", L"maxD", L"minW", L"minD"};
    for (std::size_t f = 0; f < names.size(); ++f)
        EXPECT_EQ(LimitFieldNames[f], names[f]);
}

using Page = kztest::Named<const LimitsTable*>;

class EveryLimitsTable : public testing::TestWithParam<Page> {
protected:
    [[nodiscard]] static const LimitsTable& Table() { return *GetParam().value; }
    [[nodiscard]] static std::vector<LimitCell> Cells() { return CellsOf(Table()); }
};

INSTANTIATE_TEST_SUITE_P(Pages, EveryLimitsTable,
                         testing::Values(Page{"Powers", &PowerLimitsTable},
                                         Page{"Net", &HarmonicLimitsTable(Side::Net)},
                                         Page{"Load", &HarmonicLimitsTable(Side::Load)}),
                         kztest::ByName);

TEST_P(EveryLimitsTable, StartsWithNominalsOf0AndLimitsOf1)
{
    LimitsStore store(Table());
    for (const auto cell : Cells())
        EXPECT_EQ(store.Value(cell), cell.field == LimitField::Nominal ? 0.0 : 1.0);
    EXPECT_FALSE(store.IsModified());
}

TEST_P(EveryLimitsTable, ShowsItsStartAsShortNumbers)
{
    LimitsStore store(Table());
    Show(store);
    for (const auto cell : Cells())
        EXPECT_EQ(store.Text(cell), cell.field == LimitField::Nominal ? L"0" : L"1");
}

TEST_P(EveryLimitsTable, KeepsItsStartWhenTheDocumentHasNoneOfItsVariables)
{
    LimitsStore store(Table());
    const Configuration configuration("<check><var>DC</var><nominal>7</nominal></check>");
    store.Load(configuration.ViewSetup());
    for (const auto cell : Cells())
        EXPECT_EQ(store.Value(cell), cell.field == LimitField::Nominal ? 0.0 : 1.0);
}

TEST_P(EveryLimitsTable, LoadsEveryCellFromItsNamedValue)
{
    const Configuration configuration(ChecksOf(Table(), [](std::size_t number) { return 0.5 + double(number); }));
    LimitsStore store(Table());
    store.Load(configuration.ViewSetup());
    double expected = 0.5;
    for (const auto cell : Cells())
        EXPECT_EQ(store.Value(cell), expected++);
    EXPECT_FALSE(store.IsModified());
}

TEST_P(EveryLimitsTable, GivesTheDefaultToEachNamedValueThatIsMissing)
{
    for (const auto missing : Cells()) {
        const Configuration configuration(ChecksOf(
            Table(), [](std::size_t) { return 42.0; }, missing));
        LimitsStore store(Table());
        store.Load(configuration.ViewSetup());
        for (const auto cell : Cells())
            ASSERT_EQ(store.Value(cell), cell != missing ? 42.0 : cell.field == LimitField::Nominal ? 0.0 : 1.0);
        EXPECT_FALSE(store.IsModified());
    }
}

TEST_P(EveryLimitsTable, NoticesAChangeInEachCell)
{
    for (const auto cell : Cells()) {
        LimitsStore store(Table());
        Show(store);
        store.Text(cell) = Typed(L"0.999999");
        Pull(store);
        EXPECT_TRUE(store.IsModified());
        store.Text(cell) = Typed(cell.field == LimitField::Nominal ? L"0.000" : L"1.0");
        Pull(store);
        EXPECT_FALSE(store.IsModified());
    }
}

TEST_P(EveryLimitsTable, SavesEveryCellWithSixDecimalsAndReadsItBack)
{
    Configuration configuration("");
    LimitsStore store(Table());
    int number = 0;
    for (const auto cell : Cells())
        store.Text(cell) = Typed(std::to_wstring(++number) + L".5");
    Pull(store);
    EXPECT_TRUE(store.IsModified());
    store.Save(configuration.ViewSetup());
    LimitsStore again(Table());
    again.Load(configuration.ViewSetup());
    number = 0;
    for (const auto cell : Cells()) {
        ++number;
        EXPECT_EQ(configuration.Stored(Table(), cell), std::to_wstring(number) + L".500000");
        EXPECT_EQ(again.Value(cell), number + 0.5);
    }
}

TEST_P(EveryLimitsTable, SavesItsVariablesInOrder)
{
    Configuration configuration("");
    LimitsStore store(Table());
    Show(store);
    store.Text({0, LimitField::MaxD}) = L"2";
    Pull(store);
    EXPECT_TRUE(store.IsModified());
    store.Save(configuration.ViewSetup());
    const auto* check = configuration.ViewSetup().FirstChild(L"check");
    for (const auto& variable : Table().variables) {
        ASSERT_NE(check, nullptr);
        EXPECT_STREQ(check->Value(L"var", L""), variable.name.data());
        check = check->NextSibling(L"check");
    }
    EXPECT_EQ(check, nullptr);
}

TEST_P(EveryLimitsTable, SavingTwiceKeepsOneCheckPerVariable)
{
    Configuration configuration("");
    LimitsStore store(Table());
    Show(store);
    for (const auto* text : {L"2", L"3"}) {
        store.Text({1, LimitField::MaxW}) = text;
        Pull(store);
        EXPECT_TRUE(store.IsModified());
        store.Save(configuration.ViewSetup());
    }
    EXPECT_EQ(configuration.Count("<check>"), Table().variables.size());
    EXPECT_EQ(configuration.Stored(Table(), {1, LimitField::MaxW}), L"3.000000");
}

TEST(LimitsStoreSaving, AHarmonicPageWritesOnlyWhenItWasFoundModified)
{
    Configuration configuration("");
    LimitsStore store(HarmonicLimitsTable(Side::Net));
    store.Save(configuration.ViewSetup());
    EXPECT_EQ(configuration.Count("<check>"), 0U);

    Show(store);
    store.Text({0, LimitField::Nominal}) = L"5";
    Pull(store);
    store.Save(configuration.ViewSetup());
    EXPECT_EQ(configuration.Count("<check>"), 0U) << "nobody has asked yet whether it is modified";

    EXPECT_TRUE(store.IsModified());
    store.Save(configuration.ViewSetup());
    EXPECT_EQ(configuration.Count("<check>"), 13U);
}

TEST(LimitsStoreSaving, AHarmonicPageThatWasChangedBackWritesNothing)
{
    Configuration configuration("");
    LimitsStore store(HarmonicLimitsTable(Side::Load));
    Show(store);
    store.Text({12, LimitField::MaxD}) = L"5";
    Pull(store);
    EXPECT_TRUE(store.IsModified());
    store.Text({12, LimitField::MaxD}) = L"1";
    Pull(store);
    EXPECT_FALSE(store.IsModified());
    store.Save(configuration.ViewSetup());
    EXPECT_EQ(configuration.Count("<check>"), 0U);
}

TEST(LimitsStoreSaving, ThePowerPageAlwaysWritesAllFourVariables)
{
    Configuration configuration("");
    LimitsStore store(PowerLimitsTable);
    EXPECT_FALSE(store.IsModified());
    store.Save(configuration.ViewSetup());
    EXPECT_EQ(configuration.Count("<check>"), 4U);
    EXPECT_EQ(configuration.Stored(PowerLimitsTable, {0, LimitField::Nominal}), L"0.000000");
    EXPECT_EQ(configuration.Stored(PowerLimitsTable, {0, LimitField::MinD}), L"1.000000");
}

TEST(LimitsStoreSaving, GivesLowerLimitsToThePowerFactorAlone)
{
    Configuration configuration("");
    LimitsStore(PowerLimitsTable).Save(configuration.ViewSetup());
    EXPECT_EQ(configuration.Count("<minW>"), 1U);
    EXPECT_EQ(configuration.Count("<minD>"), 1U);
}

TEST(LimitsStoreSaving, LeavesOtherChecksAndOtherNamedValuesAsTheyWere)
{
    const std::string other = "<check a=\"1\"><var>DC</var><nominal> 1,5</nominal><!-- c --></check>";
    Configuration configuration(other +
                                "<check><colour>red</colour><var>AP</var><minW>0.25</minW><maxW>x</maxW></check>");
    const auto before = configuration.Text();
    const auto start = before.find("<check a");
    const auto otherText = before.substr(start, before.find("</check>") - start);
    LimitsStore(PowerLimitsTable).Save(configuration.ViewSetup());
    const auto text = configuration.Text();
    EXPECT_NE(text.find(otherText), std::string::npos) << text;
    EXPECT_NE(text.find("<colour>red</colour>"), std::string::npos) << text;
    EXPECT_NE(text.find("<minW>0.25</minW>"), std::string::npos) << text;
    EXPECT_EQ(configuration.Stored(PowerLimitsTable, {1, LimitField::MaxW}), L"1.000000");
}

TEST(LimitsStoreLoading, TakesTheLeadingNumberOfATextAndZeroWithoutOne)
{
    const auto load = [](const std::string& text) {
        const Configuration configuration("<check><var>AP</var><nominal>" + text + "</nominal></check>");
        LimitsStore store(PowerLimitsTable);
        store.Load(configuration.ViewSetup());
        return store.Value({1, LimitField::Nominal});
    };
    EXPECT_EQ(load("1.5"), 1.5);
    EXPECT_EQ(load("1,5"), 1.0);
    EXPECT_EQ(load(" -2.5e1 V"), -25.0);
    EXPECT_EQ(load("V"), 0.0);
    EXPECT_EQ(load(""), 0.0);
    EXPECT_EQ(load("1e999"), std::numeric_limits<double>::infinity());
    EXPECT_EQ(load("-inf"), -std::numeric_limits<double>::infinity());
    EXPECT_TRUE(std::isnan(load("nan")));
}

TEST(LimitsStoreLoading, TakesTheFirstOfDoubledElements)
{
    const Configuration configuration("<check><var>AP</var><maxW>2</maxW><maxW>3</maxW></check>"
                                      "<check><var>AP</var><maxW>4</maxW></check>");
    LimitsStore store(PowerLimitsTable);
    store.Load(configuration.ViewSetup());
    EXPECT_EQ(store.Value({1, LimitField::MaxW}), 2.0);
}

TEST(LimitsStoreLoading, LoadsEachSideFromItsOwnVariables)
{
    const Configuration configuration("<check><var>ARM7AN</var><maxW>7</maxW></check>"
                                      "<check><var>ARM7AL</var><maxW>8</maxW></check>");
    LimitsStore net(HarmonicLimitsTable(Side::Net));
    LimitsStore load(HarmonicLimitsTable(Side::Load));
    net.Load(configuration.ViewSetup());
    load.Load(configuration.ViewSetup());
    EXPECT_EQ(net.Value({3, LimitField::MaxW}), 7.0);
    EXPECT_EQ(load.Value({3, LimitField::MaxW}), 8.0);
}

TEST(LimitsStoreComparing, CountsANaNAsADifference)
{
    const Configuration configuration("<check><var>VA</var><maxD>nan</maxD></check>");
    LimitsStore store(PowerLimitsTable);
    store.Load(configuration.ViewSetup());
    EXPECT_TRUE(store.IsModified());
}

TEST(LimitsStoreComparing, IsExact)
{
    LimitsStore store(PowerLimitsTable);
    Show(store);
    store.Text({1, LimitField::MaxW}) = Typed(L"1.0000000000000002");
    Pull(store);
    EXPECT_TRUE(store.IsModified());
    store.Text({1, LimitField::MaxW}) = Typed(L"1.00000000000000001");
    Pull(store);
    EXPECT_FALSE(store.IsModified()) << "no double lies between 1 and that text";
}

TEST(LimitsStoreExchange, AStoredNumberSurvivesBeingShown)
{
    std::mt19937 random(4711);
    std::uniform_real_distribution<double> pick(-1000.0, 1000.0);
    const auto& table = HarmonicLimitsTable(Side::Net);
    for (int round = 0; round < 250; ++round) {
        const Configuration configuration(ChecksOf(table, [&](std::size_t) { return pick(random); }));
        LimitsStore store(table);
        store.Load(configuration.ViewSetup());
        Show(store);
        Pull(store);
        ASSERT_FALSE(store.IsModified()) << configuration.Text();
    }
}

TEST(LimitsStoreExchange, ANumberOfAnotherToolSurvivesBeingShown)
{
    const Configuration configuration("<check><var>AP</var><nominal>0.1234567</nominal><maxW>1e-9</maxW>"
                                      "<maxD>33.333333333333336</maxD></check>");
    LimitsStore store(PowerLimitsTable);
    store.Load(configuration.ViewSetup());
    Show(store);
    Pull(store);
    EXPECT_FALSE(store.IsModified());
}

TEST(LimitsStoreExchange, ReadsATextOfAnyLength)
{
    LimitsStore store(PowerLimitsTable);
    store.Text({1, LimitField::Nominal}) = std::wstring(600, L'0') + L"7";
    Pull(store);
    EXPECT_EQ(store.Value({1, LimitField::Nominal}), 7.0);
}

TEST(LimitsStoreExchange, TextThatIsNoNumberCountsForItsLeadingPart)
{
    LimitsStore store(PowerLimitsTable);
    for (const auto& [text, value] : {std::pair{L"", 0.0}, {L"x", 0.0}, {L"3x", 3.0}, {L"-2.5 A", -2.5}}) {
        store.Text({1, LimitField::Nominal}) = Typed(text);
        Pull(store);
        EXPECT_EQ(store.Value({1, LimitField::Nominal}), value);
    }
}

TEST(ViewSetups, AreCreatedWithTheirSectionForADriver)
{
    XmlDocument document(L"configuration");
    const auto& viewSetup = AppendSetup(document, ViewSetups, L"a?b/\"c\"");
    EXPECT_STREQ(viewSetup.Value(L"driverId", L""), L"a?b/\"c\"");
    EXPECT_NE(document.Root()->NodeV(L"viewSetups/viewSetup?driverId=%s?", L"a?b/\"c\""), nullptr);
}

TEST(ViewSetups, AreAlwaysAppendedToTheExistingSection)
{
    XmlDocument document(L"configuration");
    ASSERT_TRUE(document.Parse("<configuration><viewSetups><viewSetup><driverId>zep2</driverId><keep/></viewSetup>"
                               "</viewSetups></configuration>"));
    static_cast<void>(AppendSetup(document, ViewSetups, L"zep1"));
    static_cast<void>(AppendSetup(document, ViewSetups, L"zep1"));
    const auto* setup = document.Node(L"viewSetups/viewSetup");
    const std::array<const wchar_t*, 3> expected{L"zep2", L"zep1", L"zep1"};
    for (const auto* id : expected) {
        ASSERT_NE(setup, nullptr);
        EXPECT_STREQ(setup->Value(L"driverId", L""), id);
        setup = setup->NextSibling(L"viewSetup");
    }
    EXPECT_EQ(setup, nullptr);
    EXPECT_EQ(document.Node(L"viewSetups")->NextSibling(L"viewSetups"), nullptr);
}

}  // namespace
