#include "Utf8.h"

#include <gtest/gtest.h>

#include "KZUtf8.h"

namespace {

using namespace std::string_literals;

TEST(Utf8, GoesThereAndBack)
{
    for (const std::string& bytes : {""s, "plain"s, "\xC3\xB1\xC3\xB3"s, "\xE2\x82\xAC"s, "\xF0\x9F\x98\x80"s,
                                     "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"s}) {
        std::wstring text;
        EXPECT_EQ(DecodeUtf8(bytes, text), bytes.size());
        EXPECT_EQ(ToUtf8(text), bytes);
        EXPECT_EQ(FromUtf8(bytes), text);
    }
}

TEST(Utf8, StopsAtWhatIsNotUtf8)
{
    for (const std::string& wrong :
         {"\x80"s, "\xC0\x80"s, "\xC1\xBF"s, "\xC3"s, "\xC3("s, "\xE0\x9F\xBF"s, "\xE2\x82"s, "\xED\xA0\x80"s,
          "\xED\xBF\xBF"s, "\xF0\x8F\xBF\xBF"s, "\xF4\x90\x80\x80"s, "\xF5\x80\x80\x80"s, "\xFF"s, "\xFE"s}) {
        std::wstring text;
        EXPECT_EQ(DecodeUtf8("ab" + wrong, text), 2u);
        EXPECT_EQ(text, L"ab");
    }
}

TEST(Utf8, ReplacesALoneSurrogate)
{
    const std::wstring text{L'a', static_cast<wchar_t>(0xD800), L'b', static_cast<wchar_t>(0xDC00)};
    EXPECT_EQ(ToUtf8(text), "a\xEF\xBF\xBD"s + "b\xEF\xBF\xBD");
}

TEST(Utf8, ReplacesEachByteThatIsOutOfPlace)
{
    EXPECT_EQ(FromUtf8("a\x80"
                       "b\xE2\x82"),
              L"a\uFFFDb\uFFFD\uFFFD");
    EXPECT_EQ(FromUtf8("\xFF\xC3\xB1"), L"\uFFFD\u00F1");
}

}  // namespace
