#include "NumberText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <limits>
#include <random>

#include "OtherLocale.h"
#include "ParameterNames.h"

namespace {

const NumberConventions English{L".", L",", L"30"};
const NumberConventions Spanish{L",", L".", L"30"};
const NumberConventions French{L",", L"\u202F", L"30"};
const NumberConventions Indian{L".", L",", L"320"};
const NumberConventions Swiss{L".", L"\u2019", L"30"};
const NumberConventions OneGroup{L".", L",", L"3"};
const NumberConventions SpanishWithPoint{L".", L".", L"30"};
const NumberConventions NoGroups{L",", L"", L""};

std::wstring Shown(double value, int decimals, bool exact, const NumberConventions& user = English)
{
    std::wstring text = L"left over";
    WriteNumber(text, value, decimals, exact, user);
    return text;
}

std::string Stored(double value)
{
    std::string text(512, '\0');
    text.resize(static_cast<std::size_t>(std::snprintf(text.data(), text.size(), "%f", value)));
    return text;
}

TEST(WriteNumber, WritesExactlyTheDecimalsAskedFor)
{
    EXPECT_EQ(Shown(1.5, 2, false), L"1.50");
    EXPECT_EQ(Shown(1.25, 1, false), L"1.2");
    EXPECT_EQ(Shown(1.75, 0, false), L"2");
    EXPECT_EQ(Shown(-1234567.0, 0, false), L"-1234567");
}

TEST(WriteNumber, DropsTrailingZerosForNegativeDecimals)
{
    EXPECT_EQ(Shown(1.5, -3, false), L"1.5");
    EXPECT_EQ(Shown(100.0, -3, false), L"100");
    EXPECT_EQ(Shown(0.0, -3, false), L"0");
    EXPECT_EQ(Shown(0.1234, -3, false), L"0.123");
    EXPECT_EQ(Shown(0.0004, -3, false), L"0");
}

TEST(WriteNumber, AddsTheDecimalsThatBringTheValueBack)
{
    EXPECT_EQ(Shown(0.1234, -3, true), L"0.1234");
    EXPECT_EQ(Shown(0.123456, -3, true), L"0.123456");
    EXPECT_EQ(Shown(0.000001, -3, true), L"0.000001");
    EXPECT_EQ(Shown(0.1234567, -3, true), L"0.1234567");
    EXPECT_EQ(Shown(0.1 + 0.2, -3, true), L"0.30000000000000004");
    EXPECT_EQ(Shown(1e-7, -3, true), L"0.0000001");
    EXPECT_EQ(Shown(1.5, 2, true), L"1.50");
    EXPECT_EQ(Shown(1.53125, 2, true), L"1.53125");
    EXPECT_EQ(Shown(5.0, -3, true), L"5");
    EXPECT_EQ(Shown(100.0, 2, true, Spanish), L"100,00");
    EXPECT_EQ(Shown(0.125, 2, true, Spanish), L"0,125");
}

TEST(WriteNumber, WritesTheUsersDecimalSeparator)
{
    EXPECT_EQ(Shown(1.5, -3, true, Spanish), L"1,5");
    EXPECT_EQ(Shown(1234567.5, -3, true, Spanish), L"1234567,5");
    EXPECT_EQ(Shown(1.5, -3, true, {L"::", L"", L""}), L"1::5");
}

TEST(WriteNumber, GivesZeroNoSignUnlessTheVeryValueHasOne)
{
    EXPECT_EQ(Shown(-0.0001, -3, false), L"0");
    EXPECT_EQ(Shown(-0.001, 2, false), L"0.00");
    EXPECT_EQ(Shown(-0.0, -3, true), L"-0");
    EXPECT_EQ(Shown(-0.01, 2, false), L"-0.01");
}

TEST(WriteNumber, GivesTheEmptyTextForWhatIsNoNumber)
{
    EXPECT_EQ(Shown(std::numeric_limits<double>::infinity(), -3, true), L"");
    EXPECT_EQ(Shown(-std::numeric_limits<double>::infinity(), 2, false), L"");
    EXPECT_EQ(Shown(std::numeric_limits<double>::quiet_NaN(), -3, true), L"");
}

TEST(WriteNumber, HoldsTheLargestNumbersAndTheMostDecimals)
{
    EXPECT_EQ(Shown(-std::numeric_limits<double>::max(), 99, false).size(), 1u + 309u + 1u + 99u);
    EXPECT_EQ(Shown(1.0, std::numeric_limits<int>::max(), false).size(), 2u + 99u);
    EXPECT_EQ(Shown(1.0, std::numeric_limits<int>::min(), false), L"1");
}

// Shown and read again, the number is the same and its text is the shortest that does it.
void ExpectBroughtBack(double value)
{
    const std::wstring shown = Shown(value, -3, true, Spanish);
    ASSERT_TRUE(IsNumber(shown, -1, Spanish)) << value;
    const std::wstring wide = PlainNumber(shown, Spanish, L'.');
    // Not wcstod: that of msvcrt may be off by the last bit.
    const std::string plain(wide.begin(), wide.end());
    ASSERT_EQ(std::strtod(plain.c_str(), nullptr), value) << plain;
    const std::size_t decimals = plain.size() - std::min(plain.find('.'), plain.size() - 1) - 1;
    if (decimals > 3) {
        std::array<char, 512> shorter;
        std::snprintf(shorter.data(), shorter.size(), "%.*f", static_cast<int>(decimals) - 1, value);
        ASSERT_NE(std::strtod(shorter.data(), nullptr), value) << shorter.data();
    }
}

TEST(WriteNumber, BringsEveryStoredValueBack)
{
    std::mt19937_64 random(20240229);
    std::uniform_real_distribution<double> mantissa(-1.0, 1.0);
    std::uniform_int_distribution<int> exponent(-7, 14);
    for (int run = 0; run < 20000; ++run)
        ExpectBroughtBack(std::strtod(Stored(mantissa(random) * std::pow(10.0, exponent(random))).c_str(), nullptr));
}

TEST(WriteNumber, BringsEveryNumberBack)
{
    for (const double value : {std::numeric_limits<double>::max(), std::numeric_limits<double>::min(),
                               std::numeric_limits<double>::denorm_min(), std::numeric_limits<double>::epsilon()}) {
        ExpectBroughtBack(value);
        ExpectBroughtBack(-value);
    }
    std::mt19937_64 random(20261121);
    for (int run = 0; run < 5000; ++run) {
        const auto value = std::bit_cast<double>(random());
        if (std::isfinite(value))
            ExpectBroughtBack(value);
    }
}

TEST(CLibraryDecimalSeparator, IsTheNumericLocales)
{
    EXPECT_EQ(CLibraryDecimalSeparator(), L'.');
    const OtherLocale spain(OtherLocale::Spain);
    if (!spain.IsSet())
        GTEST_SKIP() << "the machine cannot make the locale";
    EXPECT_EQ(CLibraryDecimalSeparator(), L',');
}

// In its bytes it can be read in its own character set alone, which LC_CTYPE does not name here.
TEST(CLibraryDecimalSeparator, MayLieOutsideAscii)
{
    const OtherLocale afghanistan(OtherLocale::Afghanistan);
    if (!afghanistan.IsSet() || std::wcstod(L"1\u066B5", nullptr) != 1.5)
        GTEST_SKIP() << "the C library has no separator outside ASCII here";
    EXPECT_EQ(CLibraryDecimalSeparator(), L'\u066B');
}

TEST(PlainNumber, TakesGroupsAndBlanksOut)
{
    EXPECT_EQ(PlainNumber(L"1,234,567.5", English, L'.'), L"1234567.5");
    EXPECT_EQ(PlainNumber(L" 1 234.5\t", English, L'.'), L"1234.5");
    EXPECT_EQ(PlainNumber(L"1\u202F234,5", French, L','), L"1234,5");
    EXPECT_EQ(PlainNumber(L"1\u00A0234,5", French, L','), L"1234,5");
    EXPECT_EQ(PlainNumber(L"1\u2019234.5", Swiss, L'.'), L"1234.5");
}

TEST(PlainNumber, WritesTheSeparatorThatTheCLibraryReads)
{
    EXPECT_EQ(PlainNumber(L"1.234,5", Spanish, L','), L"1234,5");
    EXPECT_EQ(PlainNumber(L"1.234,5", Spanish, L'.'), L"1234.5");
    EXPECT_EQ(PlainNumber(L"1,234.5", English, L','), L"1234,5");
}

TEST(PlainNumber, PrefersTheDecimalSeparatorWhereBothAreTheSame)
{
    EXPECT_EQ(PlainNumber(L"1.5", SpanishWithPoint, L','), L"1,5");
}

TEST(PlainNumber, LeavesOtherTextAsItIs)
{
    EXPECT_EQ(PlainNumber(L"", English, L'.'), L"");
    EXPECT_EQ(PlainNumber(L"abc", English, L'.'), L"abc");
    EXPECT_EQ(PlainNumber(L"-12x", English, L'.'), L"-12x");
}

struct Case {
    const char* name;
    const wchar_t* text;
    bool valid;
    int decimals = -1;
    NumberConventions user = English;
};

class IsNumberText : public testing::TestWithParam<Case> {};

TEST_P(IsNumberText, IsJudged)
{
    EXPECT_EQ(IsNumber(GetParam().text, GetParam().decimals, GetParam().user), GetParam().valid);
}

INSTANTIATE_TEST_SUITE_P(Plain, IsNumberText,
                         testing::Values(Case{"Zero", L"0", true}, Case{"Decimals", L"1.5", true},
                                         Case{"Minus", L"-1.5", true}, Case{"Plus", L"+1.5", true},
                                         Case{"NoIntegerPart", L".5", true},
                                         Case{"NoDecimalsAfterTheSeparator", L"5.", true},
                                         Case{"LeadingZeros", L"007", true}, Case{"BlanksAround", L"  1.5 ", true},
                                         Case{"NearlyHundred", L"99.9", true},
                                         Case{"NineDecimals", L"0.123456789", true}),
                         kztest::ByName);

INSTANTIATE_TEST_SUITE_P(NoNumbers, IsNumberText,
                         testing::Values(Case{"Empty", L"", false}, Case{"Blanks", L"   ", false},
                                         Case{"SeparatorAlone", L".", false}, Case{"MinusAlone", L"-", false},
                                         Case{"MinusAndSeparator", L"-.", false}, Case{"Letter", L"x", false},
                                         Case{"LetterBehind", L"12x", false}, Case{"LetterAfterABlank", L"12 x", false},
                                         Case{"LetterBefore", L"x12", false}, Case{"TwoSeparators", L"1.5.5", false},
                                         Case{"TwoMinuses", L"--1", false}, Case{"BlankAfterMinus", L"- 1", false},
                                         Case{"MinusBehind", L"1-", false}, Case{"Infinity", L"inf", false},
                                         Case{"NegativeInfinity", L"-infinity", false},
                                         Case{"NotANumber", L"nan", false}, Case{"Exponent", L"1e5", false},
                                         Case{"Hexadecimal", L"0x10", false}, Case{"ArabicDigit", L"\u0661", false},
                                         Case{"BlankAmongDecimals", L"1.5 5", false}),
                         kztest::ByName);

INSTANTIATE_TEST_SUITE_P(
    Groups, IsNumberText,
    testing::Values(Case{"OneGroup", L"1,234", true}, Case{"TwoGroupsAndDecimals", L"1,234,567.5", true},
                    Case{"BlankForTheSeparator", L"12 345", true}, Case{"GroupOfTwo", L"1,23", false},
                    Case{"GroupOfFour", L"1,2345", false}, Case{"FirstGroupOfFour", L"1234,567", false},
                    Case{"GroupAtTheStart", L",123", false}, Case{"TwoSeparators", L"1,,234", false},
                    Case{"SeparatorAtTheEnd", L"1,", false}, Case{"OtherUsersNumber", L"1.234,567", false},
                    Case{"Negative", L"-1,234", true}),
    kztest::ByName);

INSTANTIATE_TEST_SUITE_P(Conventions, IsNumberText,
                         testing::Values(Case{"SpanishDecimals", L"1,5", true, -1, Spanish},
                                         Case{"SpanishGroupOfOne", L"1.5", false, -1, Spanish},
                                         Case{"SpanishGroup", L"1.500", true, -1, Spanish},
                                         Case{"SpanishGroupsAndDecimals", L"1.234.567,25", true, -1, Spanish},
                                         Case{"FrenchNarrowBlank", L"1\u202F234,5", true, -1, French},
                                         Case{"FrenchBlank", L"1\u00A0234,5", true, -1, French},
                                         Case{"IndianGroups", L"12,34,567.5", true, -1, Indian},
                                         Case{"IndianGroupOfThree", L"1,234,567", false, -1, Indian},
                                         Case{"SwissGroup", L"1\u2019234.5", true, -1, Swiss},
                                         Case{"OneGroupOnly", L"1234,567", true, -1, OneGroup},
                                         Case{"OneGroupOnlyTwice", L"1,234,567", false, -1, OneGroup},
                                         Case{"SamePointForBothAsDecimal", L"1.5", true, -1, SpanishWithPoint},
                                         Case{"SamePointForBothTwice", L"1.234.567", false, -1, SpanishWithPoint},
                                         Case{"NoGroups", L"1234,5", true, -1, NoGroups},
                                         Case{"NoGroupsWithBlank", L"1 234,5", false, -1, NoGroups}),
                         kztest::ByName);

INSTANTIATE_TEST_SUITE_P(Decimals, IsNumberText,
                         testing::Values(Case{"OneOfOne", L"1.5", true, 1}, Case{"TwoOfOne", L"1.55", false, 1},
                                         Case{"SeparatorWithoutDecimals", L"1.", true, 1},
                                         Case{"NoneOfNone", L"1", true, 0},
                                         Case{"SeparatorWhereNoneMayBe", L"1.", false, 0},
                                         Case{"OneOfNone", L"1.5", false, 0}, Case{"OneOfAny", L"1.5", true, -3},
                                         Case{"FiveOfAny", L"1.23456", true, -3}),
                         kztest::ByName);

TEST(IsNumber, RefusesWhatIsBeyondADouble)
{
    EXPECT_TRUE(IsNumber(std::wstring(308, L'9'), -1, English));
    EXPECT_FALSE(IsNumber(std::wstring(310, L'9'), -1, English));
    EXPECT_TRUE(IsNumber(L"0." + std::wstring(400, L'0') + L"1", -1, English));
}

}  // namespace
