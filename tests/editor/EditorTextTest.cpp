#include "text/EditorText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "resources/DialogTextIds.h"

namespace {

// The texts' blocks of numbers, without gaps.
constexpr struct {
    unsigned first, last;
} Blocks[] = {
    {IDS_NO_HOST_STRING, IDS_CRASH_COPY},
    {IDS_MENU_FILE, IDS_CANCEL_CHECK},
    {IDS_LIST_COPY, IDS_REVIEW_OTHER},
};

// The conversions of a printf format, in their order.
std::vector<wchar_t> Conversions(const std::wstring& format)
{
    std::vector<wchar_t> conversions;
    for (std::size_t at = format.find(L'%'); at != std::wstring::npos; at = format.find(L'%', at + 2))
        conversions.push_back(at + 1 < format.size() ? format[at + 1] : L'?');
    return conversions;
}

}  // namespace

TEST(EditorTexts, ExistInBothLanguagesWithTheSameConversions)
{
    for (const auto& block : Blocks) {
        for (unsigned id = block.first; id <= block.last; ++id) {
            const std::wstring english = EditorText(id, KZLanguage::English);
            const std::wstring spanish = EditorText(id, KZLanguage::Spanish);
            EXPECT_FALSE(english.empty()) << id;
            EXPECT_FALSE(spanish.empty()) << id;
            EXPECT_EQ(Conversions(english), Conversions(spanish)) << id;
        }
        EXPECT_TRUE(EditorText(block.last + 1, KZLanguage::English).empty()) << block.last;
    }
}

TEST(EditorTexts, KeepTheirAccents)
{
    EXPECT_EQ(EditorText(IDS_COLUMN_DESCRIPTION, KZLanguage::Spanish), L"Descripción");
    EXPECT_EQ(EditorText(IDS_BUTTON_OPTIONS, KZLanguage::English), L"&Options…");
}

TEST(LanguageCodes, AreEnAndEsAlone)
{
    EXPECT_EQ(LanguageFromCode("en"), KZLanguage::English);
    EXPECT_EQ(LanguageFromCode("es"), KZLanguage::Spanish);
    for (const char* code : {"", "EN", "e", "eng", "fr"})
        EXPECT_FALSE(LanguageFromCode(code)) << code;
}
