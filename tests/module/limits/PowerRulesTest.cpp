#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>

#include "KZStringIds.h"
#include "LimitsRules.h"
#include "LimitsTesting.h"

namespace {

using namespace zep;
using namespace limits_testing;

using Failure = std::optional<LimitFailure>;
using Field = LimitField;

constexpr std::array<unsigned, 4> Titles{KZS_POWER_FACTOR, KZS_ACTIVE_POWER, KZS_REACTIVE_POWER, KZS_APPARENT_POWER};
constexpr std::array<unsigned, 5> FieldTitles{KZS_FIELD_NOMINAL, KZS_FIELD_MAXW, KZS_FIELD_MAXD, KZS_FIELD_MINW,
                                              KZS_FIELD_MIND};

// The power page with boxes that pass, then what the test types.
class PowerPage {
public:
    PowerPage() : m_store(PowerLimitsTable) { Show(m_store); }

    PowerPage& Type(std::size_t variable, Field field, const std::wstring& text)
    {
        m_store.Text({variable, field}) = Typed(text);
        return *this;
    }

    // All of the power factor at once.
    PowerPage& Factor(const wchar_t* minD, const wchar_t* minW, const wchar_t* maxW, const wchar_t* maxD)
    {
        return Type(0, Field::MinD, minD)
            .Type(0, Field::MinW, minW)
            .Type(0, Field::MaxW, maxW)
            .Type(0, Field::MaxD, maxD);
    }

    [[nodiscard]] Failure Check()
    {
        Pull(m_store);
        return CheckLimits(m_store);
    }

private:
    LimitsStore m_store;
};

Failure Refused(std::size_t variable, std::optional<Field> field, unsigned reason)
{
    LimitFailure failure{{{Titles[variable], {}}}, std::nullopt};
    if (field)
        failure.lines.push_back({FieldTitles[static_cast<std::size_t>(*field)], {}});
    failure.lines.push_back({reason, {}});
    return failure;
}

Failure FactorRefused(Field field, unsigned reason)
{
    return Refused(0, field, reason);
}

const Failure Accepted;

TEST(PowerRules, AcceptThePageAsItStarts)
{
    EXPECT_EQ(PowerPage().Check(), Accepted);
}

TEST(PowerRules, RefuseTextThatIsNoNumberInEveryField)
{
    for (const auto cell : CellsOf(PowerLimitsTable))
        for (const auto* text : {L"", L" ", L"x", L"1x", L"nan", L"inf"})
            EXPECT_EQ(PowerPage().Type(cell.variable, cell.field, text).Check(),
                      Refused(cell.variable, cell.field, KZS_NOT_A_NUMBER))
                << cell.variable << " " << text;
}

TEST(PowerRules, TakeTheTextsOfAVariableInTheOrderOfItsFieldsBeforeAnyRange)
{
    PowerPage page;
    page.Type(0, Field::Nominal, L"7");
    for (const auto field : {Field::MinD, Field::MinW, Field::MaxD, Field::MaxW})
        EXPECT_EQ(page.Type(0, field, L"x").Check(), FactorRefused(field, KZS_NOT_A_NUMBER));

    PowerPage active;
    active.Type(1, Field::MaxW, L"0");
    EXPECT_EQ(active.Type(1, Field::MaxD, L"x").Check(), Refused(1, Field::MaxD, KZS_NOT_A_NUMBER));
    EXPECT_EQ(active.Type(1, Field::Nominal, L"x").Check(), Refused(1, Field::Nominal, KZS_NOT_A_NUMBER));
}

TEST(PowerRules, CheckPowerFactorThenActiveThenReactiveThenApparent)
{
    PowerPage page;
    for (std::size_t variable = 4; variable-- > 0;)
        EXPECT_EQ(page.Type(variable, Field::MaxW, L"x").Check(), Refused(variable, Field::MaxW, KZS_NOT_A_NUMBER));
}

TEST(PowerRules, NeverFocusAField)
{
    EXPECT_FALSE(PowerPage().Type(0, Field::Nominal, L"x").Check()->focus);
    EXPECT_FALSE(PowerPage().Type(2, Field::MaxD, L"0").Check()->focus);
}

TEST(PowerFactorRules, HoldTheNominalTo0Or1)
{
    for (const auto* text : {L"0", L"1", L"-0", L"1.000000"})
        EXPECT_EQ(PowerPage().Type(0, Field::Nominal, text).Check(), Accepted) << text;
    for (const auto* text : {L"0.5", L"0.000001", L"0.999999", L"1.000001", L"-1", L"2", L"0.0000001", L"0.9999999"})
        EXPECT_EQ(PowerPage().Type(0, Field::Nominal, text).Check(),
                  FactorRefused(Field::Nominal, KZS_POWER_FACTOR_NOMINAL))
            << text;
}

TEST(PowerFactorRules, HoldTheOuterUpperLimitBetweenMinus1And1)
{
    const auto check = [](const wchar_t* maxD) { return PowerPage().Factor(L"0.1", L"0.2", L"0.3", maxD).Check(); };
    for (const auto* text : {L"-1", L"-0.999999", L"0.3", L"1"})
        EXPECT_EQ(check(text), Accepted) << text;
    for (const auto* text : {L"-1.000001", L"1.000001", L"95"})
        EXPECT_EQ(check(text), FactorRefused(Field::MaxD, KZS_POWER_FACTOR_RANGE)) << text;
}

TEST(PowerFactorRules, HoldTheInnerLowerLimitBetweenMinus1And1)
{
    const auto check = [](const wchar_t* minW) {
        return PowerPage().Factor(L"0", minW, L"-0.000001", L"-0.000001").Check();
    };
    for (const auto* text : {L"-1", L"-0.999999", L"0", L"1"})
        EXPECT_EQ(check(text), Accepted) << text;
    for (const auto* text : {L"-1.000001", L"1.000001", L"95"})
        EXPECT_EQ(check(text), FactorRefused(Field::MinW, KZS_POWER_FACTOR_RANGE)) << text;
}

// -0.0000004 lies just below 2 on the power factor's scale, and at 0 once it is stored.
TEST(PowerFactorRules, HoldTheOrderOfTheLimitsAsTheyAreStored)
{
    EXPECT_EQ(PowerPage().Factor(L"0.5", L"-0.0000004", L"-0.0000004", L"-0.0000004").Check(),
              FactorRefused(Field::MinW, KZS_LIMITS_ORDER));
    EXPECT_EQ(PowerPage().Factor(L"0.5", L"-0.0000006", L"-0.0000006", L"-0.0000006").Check(), Accepted);
}

TEST(PowerFactorRules, HoldTheOtherTwoLimitsToNoRange)
{
    EXPECT_EQ(PowerPage().Factor(L"0.8", L"0.9", L"1.5", L"-0.4").Check(), Accepted);
    EXPECT_EQ(PowerPage().Factor(L"-5", L"0.9", L"0.95", L"1").Check(), Accepted);
    EXPECT_EQ(PowerPage().Factor(L"-1.5", L"0.9", L"0.95", L"1").Check(), Accepted);
}

TEST(PowerFactorRules, OrderNegativeFactorsAbovePositiveOnes)
{
    EXPECT_EQ(PowerPage().Factor(L"0.8", L"0.9", L"0.95", L"-0.98").Check(), Accepted);
    EXPECT_EQ(PowerPage().Factor(L"0.8", L"0.9", L"-0.95", L"0.98").Check(),
              FactorRefused(Field::MaxW, KZS_LIMITS_ORDER));
    EXPECT_EQ(PowerPage().Factor(L"0.8", L"0.9", L"-0.95", L"-0.9").Check(), Accepted);
    EXPECT_EQ(PowerPage().Factor(L"0.8", L"0.9", L"-0.9", L"-0.95").Check(),
              FactorRefused(Field::MaxW, KZS_LIMITS_ORDER));
}

TEST(PowerFactorRules, LetLimitsBeEqual)
{
    EXPECT_EQ(PowerPage().Factor(L"0.9", L"0.9", L"0.9", L"0.9").Check(), Accepted);
    EXPECT_EQ(PowerPage().Factor(L"-1", L"1", L"-1", L"1").Check(), Accepted) << "-1 folds onto 1";
}

TEST(PowerFactorRules, HoldTheOuterLowerLimitAtOrBelowTheInner)
{
    EXPECT_EQ(PowerPage().Factor(L"0.900001", L"0.9", L"0.95", L"1").Check(),
              FactorRefused(Field::MinW, KZS_LIMITS_ORDER));
    EXPECT_EQ(PowerPage().Factor(L"-0.8", L"0.9", L"0.95", L"1").Check(), FactorRefused(Field::MinW, KZS_LIMITS_ORDER));
}

TEST(PowerFactorRules, HoldTheLowerBandBelowTheUpper)
{
    EXPECT_EQ(PowerPage().Factor(L"0.8", L"0.9", L"0.95", L"1.0").Check(), Accepted);
    EXPECT_EQ(PowerPage().Factor(L"0.8", L"0.97", L"0.95", L"1.0").Check(),
              FactorRefused(Field::MinW, KZS_POWER_FACTOR_BANDS));
    EXPECT_EQ(PowerPage().Type(0, Field::MaxW, L"0.95").Check(), FactorRefused(Field::MinW, KZS_POWER_FACTOR_BANDS))
        << "the defaults of the lower limits are 1";
}

TEST(PowerFactorRules, CheckNominalThenRangesThenOrder)
{
    PowerPage page;
    page.Factor(L"1.9", L"1.5", L"1.4", L"1.3").Type(0, Field::Nominal, L"3");
    EXPECT_EQ(page.Check(), FactorRefused(Field::Nominal, KZS_POWER_FACTOR_NOMINAL));
    EXPECT_EQ(page.Type(0, Field::Nominal, L"1").Check(), FactorRefused(Field::MaxD, KZS_POWER_FACTOR_RANGE));
    EXPECT_EQ(page.Type(0, Field::MaxD, L"1").Check(), FactorRefused(Field::MinW, KZS_POWER_FACTOR_RANGE));
    EXPECT_EQ(page.Type(0, Field::MinW, L"1").Check(), FactorRefused(Field::MaxW, KZS_LIMITS_ORDER));
    EXPECT_EQ(page.Type(0, Field::MaxW, L"0.9").Check(), FactorRefused(Field::MinW, KZS_LIMITS_ORDER));
    EXPECT_EQ(page.Type(0, Field::MinD, L"1").Check(), FactorRefused(Field::MinW, KZS_POWER_FACTOR_BANDS));
    EXPECT_EQ(page.Type(0, Field::MaxW, L"1").Check(), Accepted);
}

TEST(PowerFactorRules, FoldAtZero)
{
    EXPECT_EQ(FoldedPowerFactor(0.0), 0.0);
    EXPECT_EQ(FoldedPowerFactor(-0.0), 0.0);
    EXPECT_EQ(FoldedPowerFactor(1.0), 1.0);
    EXPECT_EQ(FoldedPowerFactor(-1.0), 1.0);
    EXPECT_DOUBLE_EQ(FoldedPowerFactor(-0.9), 1.1);
}

class EveryPower : public testing::TestWithParam<std::size_t> {
protected:
    [[nodiscard]] static Failure Check(const wchar_t* nominal, const wchar_t* maxW, const wchar_t* maxD)
    {
        return PowerPage()
            .Type(GetParam(), Field::Nominal, nominal)
            .Type(GetParam(), Field::MaxW, maxW)
            .Type(GetParam(), Field::MaxD, maxD)
            .Check();
    }
};

INSTANTIATE_TEST_SUITE_P(Powers, EveryPower, testing::Values(1, 2, 3), [](const auto& row) {
    return limits_testing::Narrow(PowerLimitsTable.variables[row.param].name.data());
});

TEST_P(EveryPower, HoldsTheNominalToNoRange)
{
    for (const auto* text : {L"-1000000", L"0", L"100", L"1000000"})
        EXPECT_EQ(Check(text, L"1", L"1"), Accepted) << text;
}

TEST_P(EveryPower, HoldsBothLimitsStrictlyBetween0And100)
{
    for (const auto* text : {L"0.000001", L"50", L"99.999999"}) {
        EXPECT_EQ(Check(L"0", text, L"99.999999"), Accepted) << text;
        EXPECT_EQ(Check(L"0", L"0.000001", text), Accepted) << text;
    }
    for (const auto* text : {L"-1", L"0", L"100", L"100.000001", L"0.0000004", L"99.9999999"}) {
        EXPECT_EQ(Check(L"0", text, L"1"), Refused(GetParam(), Field::MaxW, KZS_LIMIT_RANGE)) << text;
        EXPECT_EQ(Check(L"0", L"1", text), Refused(GetParam(), Field::MaxD, KZS_LIMIT_RANGE)) << text;
    }
}

TEST_P(EveryPower, ChecksTheInnerLimitFirst)
{
    EXPECT_EQ(Check(L"0", L"0", L"0"), Refused(GetParam(), Field::MaxW, KZS_LIMIT_RANGE));
}

TEST_P(EveryPower, NamesNoFieldWhenTheInnerLimitIsAboveTheOuter)
{
    EXPECT_EQ(Check(L"0", L"50", L"50"), Accepted);
    EXPECT_EQ(Check(L"0", L"60", L"50"), Refused(GetParam(), std::nullopt, KZS_LIMITS_ORDER));
    EXPECT_EQ(Check(L"0", L"60", L"50")->lines.size(), 2U);
}

// The rules once more, as one condition after the other on what was typed.
struct TypedGroup {
    std::array<const char*, 5> texts{"0", "1", "1", "1", "1"};

    [[nodiscard]] bool Bad(std::size_t field) const { return texts[field][0] == 'x' || texts[field][0] == ' '; }
    [[nodiscard]] double operator[](Field field) const
    {
        return std::strtod(texts[static_cast<std::size_t>(field)], nullptr);
    }
    [[nodiscard]] double Folded(Field field) const
    {
        return (*this)[field] + (std::signbit((*this)[field]) ? 2.0 : 0.0);
    }
};

struct Condition {
    bool broken;
    std::optional<Field> field;
    unsigned reason;
};

std::vector<Condition> ConditionsOf(const TypedGroup& group, bool factor)
{
    std::vector<Condition> conditions;
    for (std::size_t f = 0; f < (factor ? 5U : 3U); ++f)
        conditions.push_back({group.Bad(f), static_cast<Field>(f), KZS_NOT_A_NUMBER});
    const auto outside = [&](Field field) { return std::abs(group[field]) > 1.0; };
    const auto percentage = [&](Field field) { return group[field] > 0 && group[field] < 100; };
    const auto above = [&](Field a, Field b) { return group.Folded(a) > group.Folded(b); };
    if (factor)
        conditions.insert(conditions.end(), {{group[Field::Nominal] != 0 && group[Field::Nominal] != 1, Field::Nominal,
                                              KZS_POWER_FACTOR_NOMINAL},
                                             {outside(Field::MaxD), Field::MaxD, KZS_POWER_FACTOR_RANGE},
                                             {outside(Field::MinW), Field::MinW, KZS_POWER_FACTOR_RANGE},
                                             {above(Field::MaxW, Field::MaxD), Field::MaxW, KZS_LIMITS_ORDER},
                                             {above(Field::MinD, Field::MinW), Field::MinW, KZS_LIMITS_ORDER},
                                             {above(Field::MinW, Field::MaxW), Field::MinW, KZS_POWER_FACTOR_BANDS}});
    else
        conditions.insert(conditions.end(),
                          {{!percentage(Field::MaxW), Field::MaxW, KZS_LIMIT_RANGE},
                           {!percentage(Field::MaxD), Field::MaxD, KZS_LIMIT_RANGE},
                           {group[Field::MaxW] > group[Field::MaxD], std::nullopt, KZS_LIMITS_ORDER}});
    return conditions;
}

Failure Expected(const std::array<TypedGroup, 4>& groups)
{
    for (std::size_t g = 0; g < groups.size(); ++g)
        for (const auto& condition : ConditionsOf(groups[g], g == 0))
            if (condition.broken)
                return Refused(g, condition.field, condition.reason);
    return std::nullopt;
}

TEST(PowerRules, AgreeWithTheConditionsAfterRandomEdits)
{
    static constexpr std::array factors{"0",    "1",   "1",  "1",    "0.9", "0.95", "0.8",     "-0.9", "-0.95",
                                        "-0.8", "1.5", "-1", "-1.5", "x",   " ",    "1.00001", "0.5",  "1"};
    static constexpr std::array powers{"0",     "1", "1", "2",  "50", "50.5", "99.99", "100",
                                       "100.1", "x", " ", "-1", "1",  "1.5",  "0.001", "1"};
    std::mt19937 random(32);
    const auto pick = [&](std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
    };
    std::array<int, 2> outcomes{};
    for (int round = 0; round < 2500; ++round) {
        PowerPage page;
        std::array<TypedGroup, 4> groups;
        for (int edit = 0; edit < 4; ++edit) {
            const auto group = pick(2) == 0 ? 0 : pick(4);
            const auto field = pick(group == 0 ? 5 : 3);
            groups[group].texts[field] = group == 0 ? factors[pick(factors.size())] : powers[pick(powers.size())];
            const std::string text = groups[group].texts[field];
            page.Type(group, static_cast<Field>(field), {text.begin(), text.end()});
        }
        const auto found = page.Check();
        ASSERT_EQ(found, Expected(groups)) << round;
        ++outcomes[found ? 1 : 0];
    }
    EXPECT_GT(outcomes[0], 100);
    EXPECT_GT(outcomes[1], 100);
}

}  // namespace
