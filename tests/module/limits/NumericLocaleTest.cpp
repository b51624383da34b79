#include "NumericLocale.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cwchar>
#include <stdexcept>
#include <string>

namespace {

using zep::NumericLocale;

std::string Current()
{
    return std::setlocale(LC_NUMERIC, nullptr);
}

std::string UsersOwn()
{
    std::setlocale(LC_NUMERIC, "");
    std::string name = Current();
    std::setlocale(LC_NUMERIC, "C");
    return name;
}

TEST(NumericLocale, IsTheUsersWhileItLivesAndCAfterwards)
{
    const auto user = UsersOwn();
    {
        const NumericLocale locale;
        EXPECT_EQ(Current(), user);
    }
    EXPECT_EQ(Current(), "C");
}

TEST(NumericLocale, IsCAfterwardsWhateverItWasBefore)
{
    std::setlocale(LC_NUMERIC, "");
    {
        const NumericLocale locale;
    }
    EXPECT_EQ(Current(), "C");
}

TEST(NumericLocale, IsCAgainWhenTheScopeIsLeftByAnException)
{
    try {
        const NumericLocale locale;
        throw std::runtime_error("early");
    } catch (const std::runtime_error&) {
    }
    EXPECT_EQ(Current(), "C");
}

TEST(NumericLocale, LetsTheLibraryUnderstandTheUsersSeparator)
{
    const NumericLocale locale;
    const std::wstring separator(1, static_cast<wchar_t>(*std::localeconv()->decimal_point));
    EXPECT_EQ(std::wcstod((L"1" + separator + L"5").c_str(), nullptr), 1.5);
}

TEST(NumericLocale, HasACommaForASpanishUser)
{
    const char* user = std::getenv("KZ_TEST_LOCALE");
    if (!user || std::string(user) != "es_ES")
        GTEST_SKIP() << "the user is not Spanish";
    const NumericLocale locale;
    EXPECT_STREQ(std::localeconv()->decimal_point, ",");
    EXPECT_EQ(std::wcstod(L"1,5", nullptr), 1.5);
}

}  // namespace
