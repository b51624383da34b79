#include <gtest/gtest.h>

#include <random>
#include <string>

#include "KZStringIds.h"
#include "LimitsRules.h"
#include "LimitsTesting.h"

namespace {

using namespace zep;
using namespace limits_testing;

using Failure = std::optional<LimitFailure>;

// A harmonic page whose boxes hold what passes, then what the test types.
class HarmonicPage {
public:
    explicit HarmonicPage(Side side = Side::Net) : m_store(HarmonicLimitsTable(side)) { Show(m_store); }

    HarmonicPage& Type(std::size_t row, LimitField field, const std::wstring& text)
    {
        m_store.Text({row, field}) = Typed(text);
        return *this;
    }

    [[nodiscard]] Failure Check()
    {
        Pull(m_store);
        return CheckLimits(m_store);
    }

private:
    LimitsStore m_store;
};

LimitMessageLine RowLabel(std::size_t row)
{
    if (row == 0)
        return {KZS_FUNDAMENTAL, {}};
    return {KZS_HARMONIC_ORDER, 2 * static_cast<int>(row) + 1};
}

Failure Refused(std::size_t row, LimitField field, unsigned reason)
{
    return LimitFailure{{{KZS_HARMONIC_CURRENTS, {}}, RowLabel(row), {reason, {}}}, LimitCell{row, field}};
}

const Failure Accepted;

class EveryHarmonicRow : public testing::TestWithParam<std::size_t> {
protected:
    [[nodiscard]] static Failure Check(LimitField field, const std::wstring& text)
    {
        HarmonicPage page;
        if (field == LimitField::MaxW)
            page.Type(GetParam(), LimitField::MaxD, L"100");
        else if (field == LimitField::MaxD)
            page.Type(GetParam(), LimitField::MaxW, L"0.000001");
        return page.Type(GetParam(), field, text).Check();
    }
    [[nodiscard]] static Failure RefusedHere(LimitField field, unsigned reason)
    {
        return Refused(GetParam(), field, reason);
    }
};

INSTANTIATE_TEST_SUITE_P(Harmonics, EveryHarmonicRow, testing::Range<std::size_t>(0, 13),
                         [](const auto& row) { return "Harmonic" + std::to_string(2 * row.param + 1); });

TEST_P(EveryHarmonicRow, RefusesTextThatIsNoNumberInEachField)
{
    for (const auto field : {LimitField::Nominal, LimitField::MaxW, LimitField::MaxD})
        for (const auto* text : {L"", L" ", L"x", L"1x", L"nan", L"inf", L"1 2e"})
            EXPECT_EQ(Check(field, text), RefusedHere(field, KZS_NOT_A_NUMBER)) << text;
}

TEST_P(EveryHarmonicRow, HoldsBothLimitsAbove0AndUpTo100)
{
    for (const auto field : {LimitField::MaxW, LimitField::MaxD}) {
        for (const auto* text : {L"0.000001", L"1", L"99.999999", L"100"})
            EXPECT_EQ(Check(field, text), Accepted) << text;
        // 0.0000004 is above 0 as typed, 0.000000 as stored; 100.0000004 the other way about.
        for (const auto* text : {L"0", L"-0.000001", L"-1", L"100.000001", L"1000000", L"0.0000004", L"100.0000004"})
            EXPECT_EQ(Check(field, text), RefusedHere(field, KZS_LIMIT_RANGE)) << text;
    }
}

TEST_P(EveryHarmonicRow, HoldsTheNominalAtOrAbove0)
{
    const auto reason = GetParam() == 0 ? KZS_CURRENT_BELOW_ZERO : KZS_PERCENTAGE_RANGE;
    for (const auto* text : {L"0", L"0.000001", L"99.9", L"99.999999"})
        EXPECT_EQ(Check(LimitField::Nominal, text), Accepted) << text;
    for (const auto* text : {L"-0.000001", L"-1"})
        EXPECT_EQ(Check(LimitField::Nominal, text), RefusedHere(LimitField::Nominal, reason)) << text;
}

TEST_P(EveryHarmonicRow, HoldsAPercentageNominalBelow100)
{
    for (const auto* text : {L"100", L"100.000001", L"250", L"99.9999999"})
        EXPECT_EQ(Check(LimitField::Nominal, text),
                  GetParam() == 0 ? Accepted : RefusedHere(LimitField::Nominal, KZS_PERCENTAGE_RANGE))
            << text;
}

TEST_P(EveryHarmonicRow, HoldsTheInnerLimitAtOrBelowTheOuter)
{
    const auto check = [](const wchar_t* inner, const wchar_t* outer) {
        return HarmonicPage()
            .Type(GetParam(), LimitField::MaxW, inner)
            .Type(GetParam(), LimitField::MaxD, outer)
            .Check();
    };
    EXPECT_EQ(check(L"100", L"100"), Accepted);
    EXPECT_EQ(check(L"50", L"50.000001"), Accepted);
    EXPECT_EQ(check(L"50.000001", L"50"), RefusedHere(LimitField::MaxW, KZS_LIMITS_ORDER));
}

TEST_P(EveryHarmonicRow, IsCheckedNominalThenOuterThenInner)
{
    const auto check = [](const wchar_t* nominal, const wchar_t* inner, const wchar_t* outer) {
        return HarmonicPage()
            .Type(GetParam(), LimitField::Nominal, nominal)
            .Type(GetParam(), LimitField::MaxW, inner)
            .Type(GetParam(), LimitField::MaxD, outer)
            .Check();
    };
    EXPECT_EQ(check(L"x", L"x", L"x"), RefusedHere(LimitField::Nominal, KZS_NOT_A_NUMBER));
    EXPECT_EQ(check(L"1", L"x", L"x"), RefusedHere(LimitField::MaxD, KZS_NOT_A_NUMBER));
    EXPECT_EQ(check(L"1", L"x", L"0"), RefusedHere(LimitField::MaxD, KZS_LIMIT_RANGE));
    EXPECT_EQ(check(L"1", L"0", L"0"), RefusedHere(LimitField::MaxD, KZS_LIMIT_RANGE));
    EXPECT_EQ(check(L"1", L"x", L"1"), RefusedHere(LimitField::MaxW, KZS_NOT_A_NUMBER));
    EXPECT_EQ(check(L"1", L"101", L"1"), RefusedHere(LimitField::MaxW, KZS_LIMIT_RANGE));
    EXPECT_EQ(check(L"1", L"2", L"1"), RefusedHere(LimitField::MaxW, KZS_LIMITS_ORDER));
}

TEST(HarmonicRules, AcceptAPageAsItStarts)
{
    EXPECT_EQ(HarmonicPage(Side::Net).Check(), Accepted);
    EXPECT_EQ(HarmonicPage(Side::Load).Check(), Accepted);
}

TEST(HarmonicRules, ReportTheFirstRowAtFault)
{
    HarmonicPage page;
    page.Type(7, LimitField::Nominal, L"").Type(3, LimitField::MaxW, L"2").Type(12, LimitField::MaxD, L"0");
    EXPECT_EQ(page.Check(), Refused(3, LimitField::MaxW, KZS_LIMITS_ORDER));
    page.Type(3, LimitField::MaxW, L"1");
    EXPECT_EQ(page.Check(), Refused(7, LimitField::Nominal, KZS_NOT_A_NUMBER));
    page.Type(7, LimitField::Nominal, L"1");
    EXPECT_EQ(page.Check(), Refused(12, LimitField::MaxD, KZS_LIMIT_RANGE));
}

TEST(HarmonicRules, NameTheOrderOfTheRowInTheSecondLine)
{
    const auto failure = HarmonicPage().Type(5, LimitField::MaxD, L"").Check();
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->lines[1], (LimitMessageLine{KZS_HARMONIC_ORDER, 11}));
    EXPECT_EQ(failure->focus, (LimitCell{5, LimitField::MaxD}));
}

TEST(HarmonicRules, SayTheSameOnBothSides)
{
    EXPECT_EQ(HarmonicPage(Side::Net).Type(4, LimitField::MaxW, L"x").Check(),
              HarmonicPage(Side::Load).Type(4, LimitField::MaxW, L"x").Check());
}

// The rules once more, as one condition after the other on what was typed.
struct TypedRow {
    std::array<const char*, 3> texts{"0", "1", "1"};  // nominal, maxW, maxD

    [[nodiscard]] bool Bad(int field) const { return std::string("xX ").find(texts[field][0]) != std::string::npos; }
    [[nodiscard]] double Number(int field) const { return std::strtod(texts[field], nullptr); }
};

Failure Expected(const std::array<TypedRow, 13>& rows)
{
    for (std::size_t r = 0; r < rows.size(); ++r) {
        const auto& row = rows[r];
        const double nominal = row.Number(0);
        const double maxW = row.Number(1);
        const double maxD = row.Number(2);
        const std::array<std::tuple<bool, LimitField, unsigned>, 8> conditions{{
            {row.Bad(0), LimitField::Nominal, KZS_NOT_A_NUMBER},
            {r == 0 && nominal < 0, LimitField::Nominal, KZS_CURRENT_BELOW_ZERO},
            {r != 0 && (nominal < 0 || nominal >= 100), LimitField::Nominal, KZS_PERCENTAGE_RANGE},
            {row.Bad(2), LimitField::MaxD, KZS_NOT_A_NUMBER},
            {maxD <= 0 || maxD > 100, LimitField::MaxD, KZS_LIMIT_RANGE},
            {row.Bad(1), LimitField::MaxW, KZS_NOT_A_NUMBER},
            {maxW <= 0 || maxW > 100, LimitField::MaxW, KZS_LIMIT_RANGE},
            {maxW > maxD, LimitField::MaxW, KZS_LIMITS_ORDER},
        }};
        for (const auto& [broken, field, reason] : conditions)
            if (broken)
                return Refused(r, field, reason);
    }
    return std::nullopt;
}

TEST(HarmonicRules, AgreeWithTheConditionsAfterRandomEdits)
{
    static constexpr std::array texts{"0",     "1",   "1",     "1",  "2",         "50",   "50.5",
                                      "99",    "100", "99.99", "-1", "-0.000001", "1000", "100.01",
                                      "0.001", "1",   "1.5",   "1",  "0.000001",  "x",    " "};
    std::mt19937 random(31);
    const auto pick = [&](std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
    };
    std::array<int, 2> outcomes{};
    for (int round = 0; round < 2500; ++round) {
        HarmonicPage page(round % 2 == 0 ? Side::Net : Side::Load);
        std::array<TypedRow, 13> rows;
        for (int edit = 0; edit < 4; ++edit) {
            const auto row = pick(rows.size());
            const auto field = pick(3);
            rows[row].texts[field] = texts[pick(texts.size())];
            const std::string text = rows[row].texts[field];
            page.Type(row, static_cast<LimitField>(field), {text.begin(), text.end()});
        }
        const auto found = page.Check();
        ASSERT_EQ(found, Expected(rows)) << round;
        ++outcomes[found ? 1 : 0];
    }
    EXPECT_GT(outcomes[0], 100);
    EXPECT_GT(outcomes[1], 100);
}

TEST(LimitFailures, DifferInTheirLinesAndTheirFocus)
{
    const LimitMessageLine line{KZS_HARMONIC_ORDER, 11};
    EXPECT_EQ(line, (LimitMessageLine{KZS_HARMONIC_ORDER, 11}));
    EXPECT_NE(line, (LimitMessageLine{KZS_FUNDAMENTAL, 11}));
    EXPECT_NE(line, (LimitMessageLine{KZS_HARMONIC_ORDER, 13}));
    const LimitFailure failure{{line}, LimitCell{5, LimitField::MaxD}};
    EXPECT_EQ(failure, (LimitFailure{{line}, LimitCell{5, LimitField::MaxD}}));
    EXPECT_NE(failure, (LimitFailure{{line, line}, LimitCell{5, LimitField::MaxD}}));
    EXPECT_NE(failure, (LimitFailure{{line}, LimitCell{4, LimitField::MaxD}}));
    EXPECT_NE(failure, (LimitFailure{{line}, LimitCell{5, LimitField::MaxW}}));
}

}  // namespace
