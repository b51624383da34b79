#include "text/EditorText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cwctype>
#include <vector>

#include "KZUtf8.h"

namespace {

constexpr unsigned FirstText = IDS_NO_HOST_STRING;
constexpr unsigned LastText = IDS_TITLE_WAITING;

// The conversions of a printf format, in their order.
std::vector<wchar_t> Conversions(const std::wstring& format)
{
    std::vector<wchar_t> conversions;
    for (std::size_t at = format.find(L'%'); at != std::wstring::npos; at = format.find(L'%', at + 2))
        conversions.push_back(at + 1 < format.size() ? format[at + 1] : L'?');
    return conversions;
}

// The letters after "&" in a menu's items, sub-menus apart.
std::vector<wchar_t> Mnemonics(HMENU menu)
{
    std::vector<wchar_t> letters;
    for (int item = 0; item < ::GetMenuItemCount(menu); ++item) {
        wchar_t text[128] = L"";
        ::GetMenuStringW(menu, static_cast<UINT>(item), text, 128, MF_BYPOSITION);
        if (const wchar_t* mark = wcschr(text, L'&'))
            letters.push_back(static_cast<wchar_t>(towupper(mark[1])));
    }
    return letters;
}

void ExpectEachOnce(std::vector<wchar_t> letters)
{
    std::sort(letters.begin(), letters.end());
    EXPECT_EQ(std::adjacent_find(letters.begin(), letters.end()), letters.end());
}

constexpr KZLanguage Languages[] = {KZLanguage::English, KZLanguage::Spanish};

}  // namespace

TEST(EditorTexts, ExistInBothLanguagesWithTheSameConversions)
{
    for (unsigned id = FirstText; id <= LastText; ++id) {
        const std::wstring english = EditorText(id, KZLanguage::English);
        const std::wstring spanish = EditorText(id, KZLanguage::Spanish);
        EXPECT_FALSE(english.empty()) << id;
        EXPECT_FALSE(spanish.empty()) << id;
        EXPECT_EQ(Conversions(english), Conversions(spanish)) << id;
    }
    EXPECT_TRUE(EditorText(LastText + 1, KZLanguage::English).empty());
}

TEST(EditorTexts, KeepTheirAccents)
{
    EXPECT_EQ(EditorText(IDS_COLUMN_DESCRIPTION, KZLanguage::Spanish), L"Descripción");
    EXPECT_EQ(EditorText(IDS_BUTTON_OPTIONS, KZLanguage::English), L"&Options…");
}

TEST(EditorTexts, OfTheMenuComeInTheChosenLanguage)
{
    for (const KZLanguage language : Languages) {
        KZQuorvelantaSetup::Get()->SetLanguage(language);
        const HMENU menu = LoadEditorMenu(IDM_MAIN);
        wchar_t text[64] = L"";
        ::GetMenuStringW(menu, 0, text, 64, MF_BYPOSITION);
        EXPECT_STREQ(text, language == KZLanguage::Spanish ? L"&Archivo" : L"&File");
        ::DestroyMenu(menu);
    }
    KZQuorvelantaSetup::Get()->SetLanguage(KZLanguage::English);
    EXPECT_EQ(LoadEditorMenu(IDD_MAIN), nullptr);
}

TEST(EditorTexts, OfTheMainWindowsControlsHaveMnemonicsOfTheirOwn)
{
    for (const KZLanguage language : Languages) {
        KZQuorvelantaSetup::Get()->SetLanguage(language);
        const HMENU menu = LoadEditorMenu(IDM_MAIN);
        std::vector<wchar_t> letters = Mnemonics(menu);
        for (const unsigned id : {IDS_DEVICES_LABEL, IDS_BUTTON_OPTIONS, IDS_BUTTON_SELECT, IDS_BUTTON_SAVE,
                                  IDS_BUTTON_REMOVE, IDS_CHOSEN_LABEL}) {
            const std::wstring text = EditorText(id);
            const auto mark = text.find(L'&');
            ASSERT_NE(mark, std::wstring::npos) << ToUtf8(text);
            letters.push_back(static_cast<wchar_t>(towupper(text[mark + 1])));
        }
        ExpectEachOnce(letters);
        for (int item = 0; item < ::GetMenuItemCount(menu); ++item)
            ExpectEachOnce(Mnemonics(::GetSubMenu(menu, item)));
        ::DestroyMenu(menu);
    }
    KZQuorvelantaSetup::Get()->SetLanguage(KZLanguage::English);
}

TEST(LanguageCodes, AreEnAndEsAlone)
{
    EXPECT_EQ(LanguageFromCode("en"), KZLanguage::English);
    EXPECT_EQ(LanguageFromCode("es"), KZLanguage::Spanish);
    for (const char* code : {"", "EN", "e", "eng", "fr"})
        EXPECT_FALSE(LanguageFromCode(code)) << code;
}
