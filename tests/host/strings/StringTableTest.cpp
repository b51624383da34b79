#include <gtest/gtest.h>

#include <map>
#include <ostream>
#include <string>

#include "KZLoadString.h"
#include "KZQuorvelantaSetup.h"
#include "StringIds.h"

namespace {

struct TextId {
    unsigned id;
    const char* name;

    friend std::ostream& operator<<(std::ostream& stream, const TextId& id) { return stream << id.name; }
};

// Made from the headers themselves.
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

// The texts that are used as formats, and the arguments that their callers pass.
const std::map<unsigned, std::string> Formats{
    {KZS_MAX_VARIABLES, "d"},
    {KZS_DEVICE_TITLE, "s"},
    {KZS_UNITS_TITLE, "s"},
    {KZS_HARMONIC_ORDER, "d"},
    {KZS_ONE_DECIMAL, "d"},
    {KZS_SEVERAL_DECIMALS, "d"},
    {KZS_LIMITS_TITLE, "s"},
    {KZS_OUT_OF_RANGE, "dd"},
    {KZ_IDS_OPTIONS_TITLE, "ss"},
    {KZ_IDS_OPTIONS_NOTHING_TO_SET_UP, "ss"},
    {KZ_IDS_DEVICE_NOT_READ, "s"},
    {KZ_IDS_DEVICE_NOT_SAVED, "s"},
    {KZ_IDS_DEVICE_NOT_OVERWRITTEN, "s"},
};

class StringTable : public testing::TestWithParam<TextId> {};

TEST_P(StringTable, HasATextInEachLanguage)
{
    EXPECT_FALSE(TextIn(KZLanguage::English, GetParam().id).IsEmpty());
    EXPECT_FALSE(TextIn(KZLanguage::Spanish, GetParam().id).IsEmpty());
}

TEST_P(StringTable, TakesTheArgumentsThatItsCallersPass)
{
    const auto format = Formats.find(GetParam().id);
    if (format == Formats.end())
        GTEST_SKIP() << "not a format";
    EXPECT_EQ(Conversions(TextIn(KZLanguage::English, GetParam().id)), format->second);
    EXPECT_EQ(Conversions(TextIn(KZLanguage::Spanish, GetParam().id)), format->second);
}

TEST_P(StringTable, HoldsNoConversionUnlessItIsAFormat)
{
    if (Formats.contains(GetParam().id))
        GTEST_SKIP() << "a format";
    for (const KZLanguage language : {KZLanguage::English, KZLanguage::Spanish}) {
        const std::string conversions = Conversions(TextIn(language, GetParam().id));
        EXPECT_EQ(conversions.find_first_of("ds"), std::string::npos);
    }
}

INSTANTIATE_TEST_SUITE_P(Ids, StringTable, testing::ValuesIn(AllIds),
                         [](const testing::TestParamInfo<TextId>& info) { return std::string(info.param.name); });

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
