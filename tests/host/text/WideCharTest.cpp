#include <gtest/gtest.h>

#include <climits>

#include "KZWideChar.h"
#include "ParameterNames.h"

namespace {

TEST(Compare, FindsEqualTextsEqual)
{
    EXPECT_EQ(KZWideChar::Compare(L"", L""), 0);
    EXPECT_EQ(KZWideChar::Compare(L"zep-01", L"zep-01"), 0);
}

TEST(Compare, SetsCapitalLettersApart)
{
    EXPECT_LT(KZWideChar::Compare(L"ZEP", L"zep"), 0);
    EXPECT_GT(KZWideChar::Compare(L"zep", L"ZEP"), 0);
}

TEST(Compare, SortsAPrefixFirst)
{
    EXPECT_LT(KZWideChar::Compare(L"DEV", L"DEV1"), 0);
    EXPECT_GT(KZWideChar::Compare(L"DEV1", L"DEV"), 0);
}

TEST(Compare, SortsCodeUnitsAsUnsignedNumbers)
{
    EXPECT_LT(KZWideChar::Compare(L"a", L"\uFFFD"), 0);
}

TEST(Compare, TakesNullForTheEmptyText)
{
    EXPECT_EQ(KZWideChar::Compare(nullptr, L""), 0);
    EXPECT_EQ(KZWideChar::Compare(nullptr, nullptr), 0);
    EXPECT_LT(KZWideChar::Compare(nullptr, L"a"), 0);
}

struct IntegerCase {
    const char* name;
    const wchar_t* text;
    int value;
};

class ToInteger : public testing::TestWithParam<IntegerCase> {};

TEST_P(ToInteger, ReadsTheLeadingInteger)
{
    EXPECT_EQ(KZWideChar::ToInteger(GetParam().text), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ToInteger,
    testing::Values(IntegerCase{"Zero", L"0", 0}, IntegerCase{"LeadingZeros", L"007", 7},
                    IntegerCase{"Minus", L"-5", -5}, IntegerCase{"Plus", L"+12", 12},
                    IntegerCase{"BlanksBefore", L" \t\r\n 42", 42}, IntegerCase{"LetterBehind", L"200A", 200},
                    IntegerCase{"PointBehind", L"1.9", 1}, IntegerCase{"CommaBehind", L"1,9", 1},
                    IntegerCase{"Empty", L"", 0}, IntegerCase{"Null", nullptr, 0}, IntegerCase{"Letter", L"x", 0},
                    IntegerCase{"MinusAlone", L"-", 0}, IntegerCase{"TwoMinuses", L"--1", 0},
                    IntegerCase{"BlankAfterMinus", L"- 1", 0}, IntegerCase{"Hexadecimal", L"0x10", 0},
                    IntegerCase{"ArabicDigit", L"\u0665", 0}),
    kztest::ByName);

INSTANTIATE_TEST_SUITE_P(Bounds, ToInteger,
                         testing::Values(IntegerCase{"Greatest", L"2147483647", INT_MAX},
                                         IntegerCase{"AboveTheGreatest", L"2147483648", INT_MAX},
                                         IntegerCase{"Least", L"-2147483648", INT_MIN},
                                         IntegerCase{"BelowTheLeast", L"-2147483649", INT_MIN},
                                         IntegerCase{"FarAbove", L"99999999999999999999999999", INT_MAX},
                                         IntegerCase{"FarBelow", L"-99999999999999999999999999", INT_MIN}),
                         kztest::ByName);

}  // namespace
