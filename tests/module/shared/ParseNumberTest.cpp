#include "ParseNumber.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cwchar>
#include <string>

#include "OtherLocale.h"

namespace {

using zep::ParseNumber;

TEST(ParseNumber, TakesTheLeadingNumberOfATextAndZeroWithoutOne)
{
    EXPECT_EQ(ParseNumber(L"1.5"), 1.5);
    EXPECT_EQ(ParseNumber(L" \t-2.5e1 V"), -25.0);
    EXPECT_EQ(ParseNumber(L"+7,5"), 7.0);
    EXPECT_EQ(ParseNumber(L"0x10"), 16.0);
    EXPECT_EQ(ParseNumber(L""), 0.0);
    EXPECT_EQ(ParseNumber(L"V"), 0.0);
    EXPECT_EQ(ParseNumber(L"1e999"), HUGE_VAL);
    EXPECT_TRUE(std::isnan(ParseNumber(L"nan")));
}

TEST(ParseNumber, EndsAtACharacterOutsideAscii)
{
    EXPECT_EQ(ParseNumber(L"1\u20AC5"), 1.0);
    EXPECT_EQ(ParseNumber(L"1\u066B5"), 1.0);
    EXPECT_EQ(ParseNumber(L"\uFF11"), 0.0);
}

TEST(ParseNumber, ReadsATextOfAnyLength)
{
    const std::wstring zeros(5000, L'0');
    EXPECT_EQ(ParseNumber((zeros + L"12.5").c_str()), 12.5);
    EXPECT_EQ(ParseNumber((L"12.5" + zeros + L"e1").c_str()), 125.0);
}

TEST(ParseNumber, ReadsTheNumericLocalesOwnSeparator)
{
    const OtherLocale spain(OtherLocale::Spain);
    if (!spain.IsSet())
        GTEST_SKIP() << "the machine cannot make the locale";
    EXPECT_EQ(ParseNumber(L"1,5"), 1.5);
    EXPECT_EQ(ParseNumber(L"1.5"), 1.0);
}

TEST(ParseNumber, ReadsASeparatorOutsideAscii)
{
    const OtherLocale afghanistan(OtherLocale::Afghanistan);
    if (!afghanistan.IsSet() || std::wcstod(L"1\u066B5", nullptr) != 1.5)
        GTEST_SKIP() << "the C library has no separator outside ASCII here";
    EXPECT_EQ(ParseNumber(L"1\u066B5"), 1.5);
    EXPECT_EQ(ParseNumber(L"-0\u066B125 A"), -0.125);
}

}  // namespace
