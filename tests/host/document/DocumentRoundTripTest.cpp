// What nobody changes is written back byte for byte.
#include <gtest/gtest.h>

#include "KZXmlDocument.h"
#include "ParameterNames.h"

namespace {

using Text = kztest::Named<const char*>;

class RoundTrip : public testing::TestWithParam<Text> {};

std::string Changed(std::string text, std::string_view from, std::string_view to)
{
    text.replace(text.find(from), from.size(), to);
    return text;
}

TEST_P(RoundTrip, KeepsEveryByte)
{
    XmlDocument document(L"r");
    ASSERT_TRUE(document.Parse(GetParam().value));
    EXPECT_EQ(document.Serialize(), GetParam().value);
}

// Every text holds the value v, so that a change beside it is seen to leave the rest alone.
TEST_P(RoundTrip, KeepsEveryByteOutsideAChangedValue)
{
    XmlDocument document(L"r");
    ASSERT_TRUE(document.Parse(GetParam().value));
    ASSERT_STREQ(document.Root()->Value(L"v", L"none"), L"old");
    document.Root()->SetValue(L"v", L"new & longer than before");
    EXPECT_EQ(document.Serialize(), Changed(GetParam().value, "old", "new &amp; longer than before"));
}

TEST_P(RoundTrip, ReadsWhatItWrites)
{
    XmlDocument document(L"r");
    ASSERT_TRUE(document.Parse(GetParam().value));
    document.Root()->SetValue(L"v", L"1");
    document.Root()->NewChild(L"added", nullptr)->SetValue(L"v", L"<2>");
    XmlDocument again(L"r");
    ASSERT_TRUE(again.Parse(document.Serialize()));
    EXPECT_STREQ(again.Root()->Value(L"v", L"none"), L"1");
    EXPECT_STREQ(again.Root()->Value(L"added/v", L"none"), L"<2>");
    EXPECT_EQ(again.Serialize(), document.Serialize());
}

INSTANTIATE_TEST_SUITE_P(
    Documents, RoundTrip,
    testing::Values(
        Text{"Smallest", "<r><v>old</v></r>"},
        Text{"ByteOrderMarkAndDeclaration", "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"utf-8\" "
                                            "standalone='yes'?>\r\n<r>\r\n  <v>old</v>\r\n</r>\r\n"},
        Text{"CommentsAround", "<?xml version='1.0'?>\n<!-- before -->\n<r>\n\t<v>old</v>\n\t<!-- in - the middle? "
                               "yes -->\n</r>\n<!-- after "
                               "-->\n\n"},
        Text{"ACommentThatBeginsLikeAnEnd", "<r><v>old</v><c><!--></c>--><d/></c></r>"},
        Text{"ProcessingInstructions", "<?pi some data?><r><?inner more?><v>old</v><?empty?></r><?last?>"},
        Text{"BlanksInTags", "<r   a = \"1\"\n     b='say \"hi\"' c=\"it's &lt; &#10;\"  ><v x=\"1\">old</v  ></r >"},
        Text{"EmptyElements", "<r><e/><e /><e></e><e a='1'/><e a=\"1\"\n/><v>old</v><e>\n</e></r>"},
        Text{"CharacterData", "<r><![CDATA[<v>not & a value</v>]]><v>old</v><c><![CDATA[]]></c></r>"},
        Text{"References", "<r>text &amp; &lt;more&gt; &quot;quoted&quot; &apos;<v>old</v>  tail  </r>"},
        Text{"EmptyLinesAndWideCharacters",
             "<r>\n\n\n<v>old</v>   \n\t <x>\xC3\xB1 \xE4\xB8\xAD \xF0\x9F\x98\x80</x>\n</r>\n"},
        Text{"AllLineEnds", "<r>mixed\r\nline\nends\r<v>old</v>\r</r>\r\n"},
        Text{"DeepElements",
             "<r>\n  <v><!-- first -->old</v>\n  <deep><deep><deep><x a='>'>y</x></deep></deep></deep>\n</r>"},
        Text{"Namespaces", "<r xmlns:n='urn:n'><n:x n:a='1'/><v>old</v></r>"}),
    kztest::ByName);

TEST(RoundTripDocument, ReplacesACharacterDataSectionByText)
{
    XmlDocument document(L"r");
    ASSERT_TRUE(document.Parse("<r>\n  <v><![CDATA[<old>]]></v> <!-- kept -->\n</r>"));
    EXPECT_STREQ(document.Root()->Value(L"v", L""), L"<old>");
    document.Root()->SetValue(L"v", L"<new>");
    EXPECT_EQ(document.Serialize(), "<r>\n  <v>&lt;new&gt;</v> <!-- kept -->\n</r>");
}

TEST(RoundTripDocument, ReplacesTextsThatAdjoinAsOne)
{
    XmlDocument document(L"r");
    ASSERT_TRUE(document.Parse("<r><v><![CDATA[a]]>b<![CDATA[c]]></v></r>"));
    document.Root()->SetValue(L"v", L"new");
    EXPECT_EQ(document.Serialize(), "<r><v>new</v></r>");
}

TEST(RoundTripDocument, OpensAnEmptyElementForItsFirstText)
{
    XmlDocument document(L"r");
    ASSERT_TRUE(document.Parse("<r><v/><v2 a='1' /><v3></v3></r>"));
    document.Root()->SetValue(L"v", L"1");
    document.Root()->SetValue(L"v2", L"2");
    document.Root()->SetValue(L"v3", L"3");
    EXPECT_EQ(document.Serialize(), "<r><v>1</v><v2 a='1'>2</v2><v3>3</v3></r>");
}

TEST(RoundTripDocument, ClosesAnEmptyElementThatLosesItsTextAgain)
{
    constexpr char text[] = "<r><v /><v2><!-- c --></v2></r>";
    XmlDocument document(L"r");
    ASSERT_TRUE(document.Parse(text));
    for (const wchar_t* value : {L"v", L"v2"}) {
        document.Root()->SetValue(value, L"1");
        document.Root()->SetValue(value, L"");
    }
    EXPECT_EQ(document.Serialize(), text);
}

TEST(RoundTripDocument, KeepsTheTagsOfAValueThatBecomesEmpty)
{
    XmlDocument document(L"r");
    ASSERT_TRUE(document.Parse("<r><v>1</v></r>"));
    document.Root()->SetValue(L"v", L"");
    EXPECT_EQ(document.Serialize(), "<r><v></v></r>");
    document.Root()->SetValue(L"v", L"2");
    EXPECT_EQ(document.Serialize(), "<r><v>2</v></r>");
}

TEST(RoundTripDocument, WritesValuesThatChangedMoreThanOnce)
{
    XmlDocument document(L"r");
    ASSERT_TRUE(document.Parse("<r><v>a longer text</v><w>1</w></r>"));
    document.Root()->SetValue(L"v", L"x");
    document.Root()->SetValue(L"v", L"a longer text than ever");
    document.Root()->SetValue(L"w", 7);
    document.Root()->SetValue(L"v", L"y");
    EXPECT_EQ(document.Serialize(), "<r><v>y</v><w>7</w></r>");
}

}  // namespace
