#include <gtest/gtest.h>

#include <map>
#include <ostream>
#include <string>

#include "KZLoadString.h"
#include "KZQuorvelantaSetup.h"
#include "ParameterNames.h"
#include "StringIds.h"

namespace {

struct TextId {
    unsigned id;
    const char* name;
    const char* arguments;  // "d" for an int, "s" for a text

    friend std::ostream& operator<<(std::ostream& stream, const TextId& id) { return stream << id.name; }
};

// Made from the headers themselves, arguments included.
constexpr TextId AllIds[] = {
#include "StringIdRows.inc"
};

class Language {
public:
    explicit Language(KZLanguage language) : m_old(KZQuorvelantaSetup::Get()->Language())
    {
        KZQuorvelantaSetup::Get()->SetLanguage(language);
    }
    ~Language() { KZQuorvelantaSetup::Get()->SetLanguage(m_old); }
    Language(const Language&) = delete;
    Language& operator=(const Language&) = delete;

private:
    KZLanguage m_old;
};

KZBasicString TextIn(KZLanguage language, unsigned id)
{
    const Language scope(language);
    return KZLoadString(id);
}

// The conversions of a printf format in their order; "?" for one that no caller passes an argument for.
std::string Conversions(const KZBasicString& format)
{
    std::string conversions;
    const std::wstring_view text = format.View();
    for (std::size_t at = text.find(L'%'); at != std::wstring_view::npos; at = text.find(L'%', at + 2)) {
        const wchar_t type = at + 1 < text.size() ? text[at + 1] : L'\0';
        if (type != L'%')
            conversions += type == L'd' ? 'd' : type == L's' ? 's' : '?';
    }
    return conversions;
}

class StringTable : public testing::TestWithParam<TextId> {};

TEST_P(StringTable, HasATextInEachLanguage)
{
    EXPECT_FALSE(TextIn(KZLanguage::English, GetParam().id).IsEmpty());
    EXPECT_FALSE(TextIn(KZLanguage::Spanish, GetParam().id).IsEmpty());
}

// A text that is no format may hold a percent sign, but nothing that would be taken for a conversion in a format.
TEST_P(StringTable, TakesTheArgumentsThatItsHeaderNames)
{
    for (const KZLanguage language : {KZLanguage::English, KZLanguage::Spanish}) {
        std::string conversions = Conversions(TextIn(language, GetParam().id));
        if (*GetParam().arguments == '\0')
            std::erase(conversions, '?');
        EXPECT_EQ(conversions, GetParam().arguments);
    }
}

INSTANTIATE_TEST_SUITE_P(Ids, StringTable, testing::ValuesIn(AllIds), kztest::ByName);

TEST(StringIds, AreAllDifferent)
{
    std::map<unsigned, std::string> names;
    for (const TextId& id : AllIds)
        EXPECT_TRUE(names.emplace(id.id, id.name).second) << id.name << " and " << names[id.id];
}

TEST(LoadString, SpeaksTheChosenLanguage)
{
    EXPECT_EQ(TextIn(KZLanguage::English, KZS_CANCEL).View(), L"Cancel");
    EXPECT_EQ(TextIn(KZLanguage::Spanish, KZS_CANCEL).View(), L"Cancelar");
}

TEST(LoadString, KeepsAccents)
{
    EXPECT_EQ(TextIn(KZLanguage::Spanish, KZS_FIELD_EMPTY).View(), L"Este campo no puede estar vac\u00EDo.");
    EXPECT_EQ(TextIn(KZLanguage::Spanish, KZS_CONFIRM_WRITE).View().front(), L'\u00BF');
}

TEST(LoadString, RefusesIdsWithoutText)
{
    for (const unsigned id : {0u, 1u, 134u, 12345u, 65535u, 65536u, 65536u + KZS_OK}) {
        KZBasicString text(L"left over");
        EXPECT_FALSE(KZLoadString(id, text)) << id;
        EXPECT_TRUE(text.IsEmpty());
        EXPECT_TRUE(KZLoadString(id).IsEmpty());
    }
}

TEST(LoadString, ReadsTheFirstAndTheLastOfABlock)
{
    static_assert(KZS_FUNDAMENTAL % 16 == 0 && KZS_UNITS_ACTIVE_APPARENT % 16 == 15);
    EXPECT_EQ(TextIn(KZLanguage::English, KZS_FUNDAMENTAL).View(), L"Fundamental");
    EXPECT_EQ(TextIn(KZLanguage::English, KZS_UNITS_ACTIVE_APPARENT).View(), L"Active and apparent power");
}

}  // namespace
