#include <gtest/gtest.h>

#include <climits>

#include "KZXmlDocument.h"
#include "ParameterNames.h"

namespace {

using namespace std::string_literals;

std::string Serialized(XmlDocument& document)
{
    return document.Serialize();
}

TEST(NewDocument, HasItsRootAndNothingElse)
{
    XmlDocument document(L"configuration");
    EXPECT_STREQ(document.Root()->Name(), L"configuration");
    EXPECT_FALSE(document.IsDirty());
    EXPECT_EQ(Serialized(document), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<configuration/>\n");
}

TEST(NewDocument, RefusesARootThatIsNoElementName)
{
    EXPECT_THROW(XmlDocument(L""), std::invalid_argument);
    EXPECT_THROW(XmlDocument(L"a b"), std::invalid_argument);
    EXPECT_THROW(XmlDocument(nullptr), std::invalid_argument);
}

TEST(NewDocument, IsIndentedAsItGrows)
{
    XmlDocument document(L"configuration");
    XmlDocument::XmlNode* setup = document.Root()->NewChild(L"unitSetups", nullptr)->NewChild(L"unitSetup", nullptr);
    setup->SetValue(L"driverId", L"zep-01");
    setup->NewChild(L"unit", nullptr)->SetValue(L"name", L"RP");
    document.Root()->NewChild(L"viewSetups", nullptr);
    EXPECT_EQ(Serialized(document), R"(<?xml version="1.0" encoding="UTF-8"?>
<configuration>
  <unitSetups>
    <unitSetup>
      <driverId>zep-01</driverId>
      <unit>
        <name>RP</name>
      </unit>
    </unitSetup>
  </unitSetups>
  <viewSetups/>
</configuration>
)");
}

struct Insertion {
    const char* name;
    const char* before;
    const char* after;
};

class NewChild : public testing::TestWithParam<Insertion> {};

TEST_P(NewChild, IsIndentedLikeItsSiblings)
{
    XmlDocument document(L"r");
    ASSERT_TRUE(document.Parse(GetParam().before));
    document.Root()->Node(L"p")->NewChild(L"n", nullptr);
    EXPECT_EQ(Serialized(document), GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(
    Documents, NewChild,
    testing::Values(Insertion{"EmptyElementOnOneLine", "<r><p/></r>", "<r><p><n/></p></r>"},
                    Insertion{"ElementsOnOneLine", "<r><p><a/></p></r>", "<r><p><a/><n/></p></r>"},
                    Insertion{"EmptyElement", "<r>\n  <p/>\n</r>", "<r>\n  <p>\n    <n/>\n  </p>\n</r>"},
                    Insertion{"TagsAndTabs", "<r>\n\t<p></p>\n</r>", "<r>\n\t<p>\n\t\t<n/>\n\t</p>\n</r>"},
                    Insertion{"WindowsLines", "<r>\r\n  <p/>\r\n</r>", "<r>\r\n  <p>\r\n    <n/>\r\n  </p>\r\n</r>"},
                    Insertion{"ThreeBlanks", "<r>\n   <p>\n   </p>\n</r>", "<r>\n   <p>\n      <n/>\n   </p>\n</r>"},
                    Insertion{"DeeperSibling", "<r>\n  <p>\n      <a/>\n  </p>\n</r>",
                              "<r>\n  <p>\n      <a/>\n      <n/>\n  </p>\n</r>"},
                    Insertion{"CommentAtTheEnd", "<r>\n  <p>\n\n    <a/>\n    <!-- end -->\n  </p>\n</r>",
                              "<r>\n  <p>\n\n    <a/>\n    <!-- end -->\n    <n/>\n  </p>\n</r>"},
                    Insertion{"SiblingOnOneLine", "<r>\n  <p><a/></p>\n</r>", "<r>\n  <p><a/><n/></p>\n</r>"},
                    Insertion{"TextOnOneLine", "<r>\n  <p>text</p>\n</r>", "<r>\n  <p>text<n/></p>\n</r>"},
                    Insertion{"TextAtTheEnd", "<r>\n  <p>\n    <a/>text\n  </p>\n</r>",
                              "<r>\n  <p>\n    <a/>text\n  <n/></p>\n</r>"},
                    Insertion{"EmptyCharacterDataAtTheEnd", "<r>\n  <p>\n    <a/><![CDATA[]]></p>\n</r>",
                              "<r>\n  <p>\n    <a/><![CDATA[]]><n/></p>\n</r>"},
                    Insertion{"CommentAlone", "<r>\n  <p>\n    <!-- only -->\n  </p>\n</r>",
                              "<r>\n  <p>\n    <!-- only -->\n    <n/>\n  </p>\n</r>"}),
    kztest::ByName);

TEST(NewChildBefore, PushesItsSuccessorToTheNextLine)
{
    XmlDocument document(L"r");
    ASSERT_TRUE(document.Parse("<r>\n  <a/>\n  <b/>\n</r>"));
    XmlDocument::XmlNode* root = document.Root();
    EXPECT_STREQ(root->NewChild(L"n", root->Node(L"b"))->Name(), L"n");
    root->NewChild(L"m", root->Node(L"a"));
    EXPECT_EQ(Serialized(document), "<r>\n  <m/>\n  <a/>\n  <n/>\n  <b/>\n</r>");
}

TEST(NewChildBefore, RefusesAnElementOfAnotherParent)
{
    XmlDocument document(L"r");
    ASSERT_TRUE(document.Parse("<r><a><b/></a></r>"));
    EXPECT_EQ(document.Root()->NewChild(L"n", document.Node(L"a/b")), nullptr);
    EXPECT_EQ(Serialized(document), "<r><a><b/></a></r>");
}

TEST(ElementName, IsCheckedBeforeAnythingChanges)
{
    XmlDocument document(L"r");
    ASSERT_TRUE(document.Parse("<r/>"));
    for (const wchar_t* name : {L"", L"a b", L"1a", L"-a", L"a<", L"a/b", L"a?b", L"a=b", L"a&b", L"."}) {
        EXPECT_EQ(document.Root()->NewChild(name, nullptr), nullptr);
        EXPECT_FALSE(document.Root()->SetValue(name, L"1"));
    }
    // What could not be read again.
    for (const std::wstring& name : {L"v\uFEFFn"s, L"\u00D7"s, L"1\u00F1"s, std::wstring(1001, L'a')})
        EXPECT_FALSE(document.Root()->SetValue(name.c_str(), L"1"));
    EXPECT_EQ(document.Root()->NewChild(nullptr, nullptr), nullptr);
    EXPECT_FALSE(document.Root()->SetValue(nullptr, 1));
    EXPECT_EQ(Serialized(document), "<r/>");
    for (const wchar_t* name : {L"a", L"A1", L"_a", L"a-b.c", L"n:a", L"\u00F1", L"a\u00B71"})
        EXPECT_TRUE(document.Root()->SetValue(name, L"1"));
    EXPECT_TRUE(document.Root()->SetValue(std::wstring(1000, L'a').c_str(), L"1"));
    EXPECT_TRUE(XmlDocument(L"r").Parse(Serialized(document)));
}

TEST(NewChild, StopsWhereADocumentCouldNotBeReadAgain)
{
    XmlDocument document(L"r");
    XmlDocument::XmlNode* deepest = document.Root();
    for (int depth = 2; depth <= 256; ++depth)
        deepest = deepest->NewChild(L"a", nullptr);
    ASSERT_NE(deepest, nullptr);
    const std::string before = Serialized(document);
    EXPECT_EQ(deepest->NewChild(L"a", nullptr), nullptr);
    EXPECT_FALSE(deepest->SetValue(L"v", L"1"));
    EXPECT_EQ(Serialized(document), before);
    EXPECT_TRUE(XmlDocument(L"r").Parse(before));
}

TEST(SetValue, WritesDecimalIntegers)
{
    XmlDocument document(L"r");
    ASSERT_TRUE(document.Parse("<r/>"));
    document.Root()->SetValue(L"a", INT_MIN);
    document.Root()->SetValue(L"b", INT_MAX);
    document.Root()->SetValue(L"c", 0);
    EXPECT_STREQ(document.Root()->Value(L"a", L""), L"-2147483648");
    EXPECT_STREQ(document.Root()->Value(L"b", L""), L"2147483647");
    EXPECT_STREQ(document.Root()->Value(L"c", L""), L"0");
}

TEST(SetValue, ChangesTheFirstOfSeveral)
{
    XmlDocument document(L"r");
    ASSERT_TRUE(document.Parse("<r><v>1</v><v>2</v></r>"));
    document.Root()->SetValue(L"v", L"3");
    EXPECT_EQ(Serialized(document), "<r><v>3</v><v>2</v></r>");
}

TEST(SetValue, ChangesNothingWhenTheTextIsTheSame)
{
    constexpr char text[] = "<r><v>a &#38; b&#x41;</v><w><![CDATA[x]]></w><e/></r>";
    XmlDocument document(L"r");
    ASSERT_TRUE(document.Parse(text));
    const wchar_t* const before = document.Root()->Value(L"v", L"");
    document.Root()->SetValue(L"v", L"a & bA");
    document.Root()->SetValue(L"w", L"x");
    document.Root()->SetValue(L"e", L"");
    document.Root()->SetValue(L"e", nullptr);
    EXPECT_EQ(document.Root()->Value(L"v", L""), before);
    EXPECT_EQ(Serialized(document), text);
}

using WideText = kztest::Named<const wchar_t*>;

class SetValueText : public testing::TestWithParam<WideText> {};

TEST_P(SetValueText, ComesBackAsItWas)
{
    XmlDocument document(L"r");
    document.Root()->SetValue(L"v", GetParam().value);
    EXPECT_STREQ(document.Root()->Value(L"v", L"none"), GetParam().value);
    XmlDocument again(L"r");
    ASSERT_TRUE(again.Parse(document.Serialize()));
    EXPECT_STREQ(again.Root()->Value(L"v", L"none"), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(Texts, SetValueText,
                         testing::Values(WideText{"Empty", L""}, WideText{"Blank", L" "},
                                         WideText{"BlanksAround", L"  two  "}, WideText{"Markup", L"<>&\"'"},
                                         WideText{"EndOfCharacterData", L"]]>"}, WideText{"Reference", L"&amp;"},
                                         WideText{"NumberedReference", L"&#65;"}, WideText{"LineFeedBetween", L"a\nb"},
                                         WideText{"Tab", L"\t"}, WideText{"LineFeed", L"\n"},
                                         WideText{"SpanishLetters", L"ca\u00F1\u00F3n"},
                                         WideText{"ChineseLetters", L"\u4E2D\u6587"},
                                         WideText{"Comment", L"<!-- no comment -->"}, WideText{"Conversions", L"%d %s"},
                                         WideText{"RareBlanks", L"\u00A0\u2028\uFEFF"}),
                         kztest::ByName);

TEST(SetValue, EmptiesEveryPieceOfADividedText)
{
    XmlDocument document(L"r");
    ASSERT_TRUE(document.Parse("<r><v>one<![CDATA[more]]><!-- c -->two<w/>three</v></r>"));
    document.Root()->SetValue(L"v", L"");
    EXPECT_STREQ(document.Root()->Value(L"v", L"none"), L"");
    EXPECT_EQ(Serialized(document), "<r><v><!-- c --><w/></v></r>");
    document.Root()->SetValue(L"v", L"new");
    EXPECT_EQ(Serialized(document), "<r><v>new<!-- c --><w/></v></r>");
    document.Root()->SetValue(L"v", L"");
    EXPECT_EQ(Serialized(document), "<r><v><!-- c --><w/></v></r>");
}

TEST(SetValue, EmptiesWhatStandsBehindAChangedPiece)
{
    XmlDocument document(L"r");
    ASSERT_TRUE(document.Parse("<r><v>one<!-- c -->two</v></r>"));
    document.Root()->SetValue(L"v", L"new");
    EXPECT_EQ(Serialized(document), "<r><v>new<!-- c -->two</v></r>");
    document.Root()->SetValue(L"v", L"");
    EXPECT_STREQ(document.Root()->Value(L"v", L"none"), L"");
    EXPECT_EQ(Serialized(document), "<r><v><!-- c --></v></r>");
}

TEST(SetValue, TakesAPieceOfTheTextThatItReplaces)
{
    for (const char* text : {"<device/>", "<device><name>0123456789</name></device>"}) {
        XmlDocument document(L"device");
        ASSERT_TRUE(document.Parse(text));
        document.Root()->SetValue(L"name", L"0123456789");
        document.Root()->SetValue(L"name", document.Root()->Value(L"name", L"") + 3);
        EXPECT_STREQ(document.Root()->Value(L"name", L""), L"3456789");
        document.Root()->SetValue(L"name", document.Root()->Value(L"name", L"") + 1);
        EXPECT_STREQ(document.Root()->Value(L"name", L""), L"456789");
    }
}

TEST(SetValue, KeepsLineEndsAsOneCharacter)
{
    XmlDocument document(L"r");
    ASSERT_TRUE(document.Parse("<r>\r\n<v>1</v>\r\n</r>"));
    document.Root()->SetValue(L"v", L"a\r\nb\rc\nd");
    EXPECT_STREQ(document.Root()->Value(L"v", L""), L"a\nb\nc\nd");
    EXPECT_EQ(Serialized(document), "<r>\r\n<v>a\r\nb\r\nc\r\nd</v>\r\n</r>");
}

TEST(SetValue, ReplacesWhatXmlCannotHold)
{
    XmlDocument document(L"r");
    document.Root()->SetValue(L"v", L"a\x01\x1F\uFFFF"
                                    L"b");
    EXPECT_STREQ(document.Root()->Value(L"v", L""), L"a\uFFFD\uFFFD\uFFFD"
                                                    L"b");
}

TEST(Nodes, StayWhereTheyAreWhileTheDocumentGrows)
{
    XmlDocument document(L"r");
    XmlDocument::XmlNode* const first = document.Root()->NewChild(L"a", nullptr);
    first->SetValue(L"v", L"1");
    for (int run = 0; run < 2000; ++run)
        document.Root()->NewChild(L"a", nullptr)->SetValue(L"v", run);
    EXPECT_EQ(document.Root()->FirstChild(L"a"), first);
    EXPECT_STREQ(first->Value(L"v", L""), L"1");
}

}  // namespace
