// Numbers in the conventions that Windows really holds, and in the C library's numeric locale of the moment.
#include <gtest/gtest.h>
#include <windows.h>

#include <clocale>
#include <cwchar>
#include <optional>
#include <string>

#include "KZNumber.h"

namespace {

// Changes one of the user's regional settings for as long as it lives.
class RegionalSetting {
public:
    RegionalSetting(LCTYPE type, const wchar_t* value) : m_type(type)
    {
        wchar_t old[16];
        m_known = ::GetLocaleInfoW(LOCALE_USER_DEFAULT, type, old, 16) > 0;
        m_old = m_known ? old : L"";
        m_changed = ::SetLocaleInfoW(LOCALE_USER_DEFAULT, type, value);
    }
    ~RegionalSetting()
    {
        if (m_known)
            ::SetLocaleInfoW(LOCALE_USER_DEFAULT, m_type, m_old.c_str());
    }
    RegionalSetting(const RegionalSetting&) = delete;
    RegionalSetting& operator=(const RegionalSetting&) = delete;

    [[nodiscard]] bool Changed() const noexcept { return m_changed; }

private:
    LCTYPE m_type;
    bool m_known = false;
    bool m_changed = false;
    std::wstring m_old;
};

class NumberLocale : public testing::Test {
protected:
    void TearDown() override { std::setlocale(LC_NUMERIC, "C"); }

    void UseSpanishConventions()
    {
        m_decimal.emplace(LOCALE_SDECIMAL, L",");
        m_group.emplace(LOCALE_STHOUSAND, L".");
        ASSERT_TRUE(m_decimal->Changed() && m_group->Changed());
    }

    static std::wstring Shown(double value)
    {
        KZBasicString text;
        FormatNumber(text, value, -3, true);
        return std::wstring(text.View());
    }

    static double Read(const wchar_t* text)
    {
        KZBasicString plain;
        UnformatNumber(text, plain);
        return std::wcstod(plain.c_str(), nullptr);
    }

    // Locale names differ between the C libraries.
    static bool UseCommaInCLibrary()
    {
        for (const char* name : {"Spanish_Spain.1252", "Spanish", "es-ES", "es_ES"})
            if (std::setlocale(LC_NUMERIC, name))
                return true;
        return false;
    }

private:
    std::optional<RegionalSetting> m_decimal;
    std::optional<RegionalSetting> m_group;
};

TEST_F(NumberLocale, ShowsASpanishUserAComma)
{
    UseSpanishConventions();
    EXPECT_EQ(Shown(1.5), L"1,5");
    EXPECT_TRUE(IsValidNumber(L"1,5", -1));
    EXPECT_TRUE(IsValidNumber(L"1.234,5", -1));
    EXPECT_FALSE(IsValidNumber(L"1.5", -1));
}

TEST_F(NumberLocale, ReadsAcrossDisagreeingConventions)
{
    UseSpanishConventions();
    EXPECT_EQ(Read(L"1.234,5"), 1234.5) << "the C library wants a point";
    ASSERT_TRUE(UseCommaInCLibrary());
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    EXPECT_EQ(Read(L"1.234,5"), 1234.5) << "the C library wants a comma";
}

TEST_F(NumberLocale, ReadsAPointWhileTheCLibraryWantsAComma)
{
    const RegionalSetting decimal(LOCALE_SDECIMAL, L".");
    const RegionalSetting group(LOCALE_STHOUSAND, L",");
    ASSERT_TRUE(decimal.Changed() && group.Changed());
    ASSERT_TRUE(UseCommaInCLibrary());
    EXPECT_EQ(Shown(1234.5), L"1234.5");
    EXPECT_EQ(Read(L"1,234.5"), 1234.5);
    EXPECT_TRUE(IsValidNumber(L"1,234.5", -1));
}

TEST_F(NumberLocale, TakesBackWhatItShowsInTheUsersOwnLocale)
{
    std::setlocale(LC_NUMERIC, "");
    for (const double value : {0.0, 1.5, -0.125, 1234567.891, 0.1234567, 0.000001, 1e15}) {
        EXPECT_TRUE(IsValidNumber(Shown(value).c_str(), -1)) << value;
        EXPECT_EQ(Read(Shown(value).c_str()), value);
    }
}

TEST_F(NumberLocale, SaysTheSameWhateverTheCLibrarySays)
{
    UseSpanishConventions();
    ASSERT_TRUE(UseCommaInCLibrary());
    EXPECT_EQ(Shown(2.25), L"2,25");
    EXPECT_FALSE(IsValidNumber(L"2.25", -1));
    std::setlocale(LC_NUMERIC, "C");
    EXPECT_EQ(Shown(2.25), L"2,25");
    EXPECT_FALSE(IsValidNumber(L"2.25", -1));
}

TEST_F(NumberLocale, UnformatsATextInPlace)
{
    UseSpanishConventions();
    KZBasicString text(L"1.234,5");
    UnformatNumber(text, text);
    EXPECT_EQ(text.View(), L"1234.5");
}

}  // namespace
