// Characters beyond 16 bits, which are two wchar_t each on Windows.
#include <gtest/gtest.h>

#include "KZUtf8.h"
#include "KZXmlDocument.h"
#include "Utf8.h"

namespace {

constexpr char Emoji[] = "\xF0\x9F\x98\x80";
constexpr wchar_t WideEmoji[] = {0xD83D, 0xDE00, 0};

TEST(SurrogatePair, StandsForOneCharacter)
{
    std::wstring text;
    EXPECT_EQ(DecodeUtf8(Emoji, text), 4u);
    EXPECT_EQ(text, WideEmoji);
    EXPECT_EQ(ToUtf8(WideEmoji), Emoji);
}

TEST(SurrogatePair, IsReadAndWritten)
{
    XmlDocument document(L"device");
    ASSERT_TRUE(document.Parse(std::string("<device><name>") + Emoji + "</name></device>"));
    EXPECT_STREQ(document.Root()->Value(L"name", L""), WideEmoji);
    document.Root()->SetValue(L"description", WideEmoji);
    EXPECT_EQ(document.Serialize(),
              std::string("<device><name>") + Emoji + "</name><description>" + Emoji + "</description></device>");
}

TEST(SurrogatePair, IsReadFromACharacterReference)
{
    XmlDocument document(L"device");
    ASSERT_TRUE(document.Parse("<device><name>&#x1F600;</name></device>"));
    EXPECT_STREQ(document.Root()->Value(L"name", L""), WideEmoji);
}

TEST(SurrogatePair, IsFoundByAQuery)
{
    XmlDocument document(L"devices");
    ASSERT_TRUE(document.Parse(std::string("<devices><device><name>") + Emoji + "</name></device></devices>"));
    EXPECT_NE(document.Root()->NodeV(L"device?name=%s?", WideEmoji), nullptr);
}

TEST(SurrogatePair, IsOneColumn)
{
    XmlDocument document(L"device");
    const KZDocumentResult result = document.Parse(std::string("<device>") + Emoji + "\xFF</device>");
    EXPECT_NE(result.message.View().find(L"line 1, column 10:"), std::wstring_view::npos)
        << ToUtf8(result.message.View());
}

TEST(SurrogatePair, LosesAHalfWithoutItsPartner)
{
    XmlDocument document(L"device");
    constexpr wchar_t half[] = {L'a', 0xD83D, L'b', 0};
    document.Root()->SetValue(L"name", half);
    EXPECT_NE(document.Serialize().find("<name>a\xEF\xBF\xBD"
                                        "b</name>"),
              std::string::npos);
}

}  // namespace
