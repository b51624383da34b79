#include "QueryPath.h"

#include <gtest/gtest.h>

#include "KZXmlDocument.h"
#include "ParameterNames.h"

namespace {

class QueryPath : public testing::Test {
protected:
    QueryPath()
    {
        EXPECT_TRUE(document.Parse(R"(<configuration>
  <unitSetups>
    <unitSetup><driverId>zep-01</driverId><unit><name>AP-VA</name><decimals>1</decimals></unit></unitSetup>
    <unitSetup><driverId>zep-02</driverId><unit><name>RP</name><decimals>2</decimals></unit></unitSetup>
    <unitSetup><driverId>zep-02</driverId><unit><name>RP</name><decimals>3</decimals></unit></unitSetup>
    <unitSetup><other>zep-03</other></unitSetup>
    <unitSetup><driverId></driverId><mark>empty</mark></unitSetup>
  </unitSetups>
</configuration>)"));
    }

    // The document with one more set-up for a driver of this name.
    XmlDocument::XmlNode* AddSetup(const wchar_t* driverId)
    {
        XmlDocument::XmlNode* setup = document.Node(L"unitSetups")->NewChild(L"unitSetup", nullptr);
        setup->SetValue(L"driverId", driverId);
        return setup;
    }

    XmlDocument document{L"configuration"};
};

TEST_F(QueryPath, FollowsPlainSteps)
{
    ASSERT_NE(document.Node(L"unitSetups"), nullptr);
    EXPECT_STREQ(document.Node(L"unitSetups")->Name(), L"unitSetups");
    EXPECT_STREQ(document.Root()->Value(L"unitSetups/unitSetup/unit/name", L"none"), L"AP-VA");
}

TEST_F(QueryPath, TakesTheFirstChildWhoseNamedValueIsTheText)
{
    XmlDocument::XmlNode* setup = document.Node(L"unitSetups/unitSetup?driverId=zep-02?");
    ASSERT_NE(setup, nullptr);
    EXPECT_STREQ(setup->Value(L"unit/decimals", L"none"), L"2");
}

TEST_F(QueryPath, GoesOnBehindAQuery)
{
    EXPECT_STREQ(document.Root()->Value(L"unitSetups/unitSetup?driverId=zep-02?/unit?name=RP?/decimals", L"none"),
                 L"2");
}

TEST_F(QueryPath, FindsNothingWhereNothingFits)
{
    EXPECT_EQ(document.Node(L"unitSetups/unitSetup?driverId=zep-0?"), nullptr);
    EXPECT_EQ(document.Node(L"unitSetups/unitSetup?driverId=zep-011?"), nullptr);
    EXPECT_EQ(document.Node(L"unitSetups/unitSetup?driverId=ZEP-01?"), nullptr);
    EXPECT_EQ(document.Node(L"unitSetups/unitSetup?driverId=zep-03?"), nullptr);
    EXPECT_EQ(document.Node(L"viewSetups/viewSetup"), nullptr);
    EXPECT_EQ(document.Node(L"configuration"), nullptr);
}

TEST_F(QueryPath, SetsTheEmptyTextApartFromNone)
{
    XmlDocument::XmlNode* setup = document.Node(L"unitSetups/unitSetup?driverId=?");
    ASSERT_NE(setup, nullptr);
    EXPECT_STREQ(setup->Value(L"mark", L"none"), L"empty");
    EXPECT_STREQ(setup->Value(L"driverId", L"none"), L"");
}

TEST_F(QueryPath, FindsNothingAlongAMalformedPath)
{
    for (const wchar_t* path :
         {L"", L"/", L"/unitSetups", L"unitSetups/", L"unitSetups//unitSetup", L"unitSetups/unitSetup?",
          L"unitSetups/unitSetup?driverId", L"unitSetups/unitSetup?driverId?", L"unitSetups/unitSetup?driverId=zep-01",
          L"unitSetups/unitSetup?=zep-01?", L"?driverId=x?", L"unitSetups/unitSetup?driverId=zep-01?x",
          L"unitSetups/unitSetup?driverId=zep-01?/"})
        EXPECT_EQ(document.Node(path), nullptr) << std::string(path, path + std::char_traits<wchar_t>::length(path));
    EXPECT_EQ(document.Node(nullptr), nullptr);
}

using WideText = kztest::Named<const wchar_t*>;

class QueryPathText : public QueryPath, public testing::WithParamInterface<WideText> {};

TEST_P(QueryPathText, IsFoundWhateverItHolds)
{
    XmlDocument::XmlNode* setup = AddSetup(GetParam().value);
    EXPECT_EQ(document.Root()->NodeV(L"unitSetups/unitSetup?driverId=%s?", GetParam().value), setup);
    setup->NewChild(L"unit", nullptr)->SetValue(L"name", L"RP");
    EXPECT_NE(document.Root()->NodeV(L"unitSetups/unitSetup?driverId=%s?/unit?name=%s?", GetParam().value, L"RP"),
              nullptr);
}

INSTANTIATE_TEST_SUITE_P(Texts, QueryPathText,
                         testing::Values(WideText{"SlashBetween", L"a/b"}, WideText{"Slash", L"/"},
                                         WideText{"EqualsSignBetween", L"a=b"}, WideText{"EqualsSign", L"="},
                                         WideText{"QuestionMarkBetween", L"a?b"}, WideText{"QuestionMark", L"?"},
                                         WideText{"QuestionMarkAtTheEnd", L"a?"}, WideText{"TwoQuestionMarks", L"??"},
                                         WideText{"Conversions", L"%s %d %%"}, WideText{"Reference", L"&amp;"},
                                         WideText{"Tag", L"<a>"}, WideText{"Quotes", L"\"quoted\""},
                                         WideText{"Apostrophe", L"it's"}, WideText{"BlanksAround", L" a b "},
                                         WideText{"SpanishLetters", L"ca\u00F1\u00F3n"},
                                         WideText{"ChineseLetters", L"\u4E2D\u6587"}),
                         kztest::ByName);

TEST_F(QueryPath, TakesNoProcessingInstructionForAnElement)
{
    ASSERT_TRUE(document.Parse("<configuration><?item key?><item><?key a?><key>a</key></item><?item a?>"
                               "<item><key></key><mark>none</mark></item><item><?key b?><key>b</key></item>"
                               "</configuration>"));
    XmlDocument::XmlNode* first = document.Root()->FirstChild(L"item");
    ASSERT_NE(first, nullptr);
    EXPECT_STREQ(first->Value(L"key", L"none"), L"a");
    EXPECT_EQ(document.Node(L"item"), first);
    EXPECT_EQ(document.Node(L"item?key=a?"), first);
    EXPECT_EQ(document.Node(L"item?key=b?"), first->NextSibling(L"item")->NextSibling(L"item"));
    EXPECT_STREQ(document.Root()->Value(L"item?key=?/mark", L"missing"), L"none");
    EXPECT_TRUE(first->SetValue(L"key", L"c"));
    EXPECT_EQ(document.Node(L"item?key=c?"), first);
    EXPECT_NE(document.Serialize().find("<?key a?>"), std::string::npos);
}

TEST_F(QueryPath, TakesTheFirstOfAnElementsValuesOfOneName)
{
    ASSERT_TRUE(document.Parse("<configuration><item><key>a</key></item><item><key></key><key>b</key></item>"
                               "<item><key>c</key><key>b</key></item></configuration>"));
    EXPECT_EQ(document.Node(L"item?key=b?"), nullptr);
    EXPECT_EQ(document.Node(L"item?key=?"), document.Root()->FirstChild(L"item")->NextSibling(L"item"));
}

TEST_F(QueryPath, FormatsPathsOfAnyLength)
{
    for (const std::size_t length : {200u, 255u, 256u, 1000u}) {
        const std::wstring driver(length, L'x');
        XmlDocument::XmlNode* setup = AddSetup(driver.c_str());
        EXPECT_EQ(document.Root()->NodeV(L"unitSetups/unitSetup?driverId=%s?", driver.c_str()), setup) << length;
    }
}

TEST_F(QueryPath, ReadsIntegersInAFormat)
{
    XmlDocument::XmlNode* check = document.Root()->NewChild(L"check", nullptr);
    check->SetValue(L"var", L"ARM25AN");
    EXPECT_EQ(document.Root()->NodeV(L"check?var=ARM%dA%s?", 25, L"N"), check);
    EXPECT_EQ(document.Root()->NodeV(L"check?var=ARM%dA%s?", 23, L"N"), nullptr);
}

TEST_F(QueryPath, HandsTheSameElementOutAsTheSameNode)
{
    XmlDocument::XmlNode* first = document.Node(L"unitSetups/unitSetup");
    EXPECT_EQ(document.Node(L"unitSetups")->FirstChild(L"unitSetup"), first);
    EXPECT_EQ(document.Node(L"unitSetups/unitSetup?driverId=zep-01?"), first);
}

TEST_F(QueryPath, WalksOverSiblingsOfOneName)
{
    int count = 0;
    for (auto* setup = document.Node(L"unitSetups")->FirstChild(L"unitSetup"); setup;
         setup = setup->NextSibling(L"unitSetup"))
        ++count;
    EXPECT_EQ(count, 5);
    EXPECT_EQ(document.Root()->FirstChild(L"nothing"), nullptr);
    EXPECT_EQ(document.Root()->FirstChild(nullptr), nullptr);
    EXPECT_EQ(document.Root()->NextSibling(L"configuration"), nullptr);
}

TEST_F(QueryPath, GivesTheDefaultWhereAValueIsMissing)
{
    EXPECT_STREQ(document.Root()->Value(L"information/version", L"?"), L"?");
    EXPECT_EQ(document.Root()->Value(L"information/version", nullptr), nullptr);
    EXPECT_STREQ(document.Root()->Value(nullptr, L"?"), L"?");
}

}  // namespace
