#include <gtest/gtest.h>

#include <cstdint>

#include "KZBasicString.h"

namespace {

TEST(Format, TakesWideTextForPercentS)
{
    EXPECT_EQ(KZBasicString::Format(L"check?var=%s?", L"AP").View(), L"check?var=AP?");
}

TEST(Format, MixesIntegersAndTexts)
{
    EXPECT_EQ(KZBasicString::Format(L"ARM%dA%s", 25, L"N").View(), L"ARM25AN");
    EXPECT_EQ(KZBasicString::Format(L"%s: %d, %5.2f, %c, %u", L"x", -3, 1.5, L'\u00F3', 7u).View(),
              L"x: -3,  1.50, \u00F3, 7");
}

TEST(Format, HonoursWidthPrecisionAndStars)
{
    EXPECT_EQ(KZBasicString::Format(L"[%-6s][%6s][%.2s][%*d]", L"ab", L"cd", L"xyz", 4, 7).View(),
              L"[ab    ][    cd][xy][   7]");
}

TEST(Format, MakesOnePercentSignOfTwo)
{
    EXPECT_EQ(KZBasicString::Format(L"100 %%s").View(), L"100 %s");
    EXPECT_EQ(KZBasicString::Format(L"%d %%", 5).View(), L"5 %");
    EXPECT_EQ(KZBasicString::Format(L"%%%s%%", L"s").View(), L"%s%");
}

TEST(Format, NeverTruncates)
{
    for (const std::size_t length : {255u, 256u, 257u, 100000u}) {
        const std::wstring text(length, L'\u00F1');
        EXPECT_EQ(KZBasicString::Format(L"%s", text.c_str()).Length(), length);
        EXPECT_EQ(KZBasicString::Format(L"<%s>", text.c_str()).View(), L"<" + text + L">");
    }
}

TEST(Format, CopiesTextOutsideLatinWhole)
{
    EXPECT_EQ(KZBasicString::Format(L"%s \u03A9 %s", L"\u041A\u0438\u0457\u0432", L"\u4E2D").View(),
              L"\u041A\u0438\u0457\u0432 \u03A9 \u4E2D");
}

TEST(Format, GivesTheEmptyTextForNoFormat)
{
    const wchar_t* none = nullptr;
    EXPECT_TRUE(KZBasicString::Format(none).IsEmpty());
    EXPECT_TRUE(KZBasicString::Format(L"").IsEmpty());
}

TEST(BasicString, MakesTheEmptyTextOfANullPointer)
{
    EXPECT_TRUE(KZBasicString(static_cast<const wchar_t*>(nullptr)).IsEmpty());
}

TEST(BasicString, ComparesAndOrdersByCodeUnit)
{
    EXPECT_EQ(KZBasicString(L"a") + L"b", KZBasicString(L"ab"));
    EXPECT_LT(KZBasicString(L"B"), KZBasicString(L"a"));
    EXPECT_NE(KZBasicString(L"a"), KZBasicString(L"A"));
}

TEST(BasicString, KeepsItsStorageWhenItIsAssignedTo)
{
    KZBasicString text(std::wstring(100, L'x'));
    const auto storage = reinterpret_cast<std::uintptr_t>(text.c_str());
    text.Assign(L"short");
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(text.c_str()), storage);
    EXPECT_EQ(text.View(), L"short");
}

}  // namespace
