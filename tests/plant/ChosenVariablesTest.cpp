#include "project/ChosenVariables.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace plant {

namespace {

using testing::HasSubstr;

class ChosenVariablesTest : public testing::Test {
protected:
    const KZBasicString m_driver = L"zep-1";
    const KZBasicString m_other = L"zep-2";
    XmlDocument m_document{L"configuration"};
};

}  // namespace

TEST_F(ChosenVariablesTest, AreNoneInAnEmptyDocument)
{
    EXPECT_TRUE(ChosenVariables(m_document, m_driver).empty());
}

TEST_F(ChosenVariablesTest, ComeBackInTheirOrderForTheirDriverOnly)
{
    const VariableList chosen{L"DEV.VI1N", L"DEV.API2L", L"GRÚA.1.HZIN"};
    StoreChosenVariables(m_document, m_driver, chosen);
    EXPECT_EQ(ChosenVariables(m_document, m_driver), chosen);
    EXPECT_TRUE(ChosenVariables(m_document, m_other).empty());
}

TEST_F(ChosenVariablesTest, SurviveSerializingAndParsing)
{
    const VariableList chosen{L"DEV.VI1N", L"DEV.API2L"};
    StoreChosenVariables(m_document, m_driver, chosen);
    XmlDocument copy(L"configuration");
    ASSERT_TRUE(copy.Parse(m_document.Serialize()).ok);
    EXPECT_EQ(ChosenVariables(copy, m_driver), chosen);
}

TEST_F(ChosenVariablesTest, MarkTheDocumentDirtyOnlyWhenTheyChange)
{
    StoreChosenVariables(m_document, m_driver, {L"DEV.VI1N"});
    EXPECT_TRUE(m_document.IsDirty());
    m_document.SetDirty(false);
    StoreChosenVariables(m_document, m_driver, {L"DEV.VI1N"});
    EXPECT_FALSE(m_document.IsDirty());
    StoreChosenVariables(m_document, m_driver, {});
    EXPECT_TRUE(m_document.IsDirty());
    EXPECT_TRUE(ChosenVariables(m_document, m_driver).empty());
}

TEST_F(ChosenVariablesTest, OfNoDriverLeaveNoTraceInTheDocument)
{
    const std::string before = m_document.Serialize();
    StoreChosenVariables(m_document, m_driver, {});
    EXPECT_EQ(m_document.Serialize(), before);
    EXPECT_FALSE(m_document.IsDirty());
}

TEST_F(ChosenVariablesTest, ReplaceTheDriversEarlierOnesInPlace)
{
    StoreChosenVariables(m_document, m_driver, {L"DEV.VI1N"});
    StoreChosenVariables(m_document, m_other, {L"DEV2.VI1N"});
    StoreChosenVariables(m_document, m_driver, {L"DEV.VI2N"});
    const std::string text = m_document.Serialize();
    EXPECT_THAT(text, Not(HasSubstr("DEV.VI1N")));
    EXPECT_EQ(text.find("zep-1"), text.rfind("zep-1"));
    EXPECT_EQ(ChosenVariables(m_document, m_other), (VariableList{L"DEV2.VI1N"}));
}

TEST_F(ChosenVariablesTest, AreReadWithWindowsLineEndsAndBlankLines)
{
    ASSERT_TRUE(
        m_document
            .Parse("<configuration><selections><selection><driverId>zep-1</driverId><variables>\r\nDEV.VI1N\r\n\r\n"
                   "DEV.VI2N\n</variables></selection></selections></configuration>")
            .ok);
    EXPECT_EQ(ChosenVariables(m_document, m_driver), (VariableList{L"DEV.VI1N", L"DEV.VI2N"}));
}

TEST(MergedChoices, KeepTheEarlierOnesAndAddTheNewOnesOnce)
{
    EXPECT_EQ(MergeChoices({L"A.1", L"A.2"}, {L"A.3", L"A.1", L"A.4", L"A.3"}),
              (VariableList{L"A.1", L"A.2", L"A.3", L"A.4"}));
    EXPECT_EQ(MergeChoices({}, {}), VariableList{});
    EXPECT_EQ(MergeChoices({L"A.1"}, {}), (VariableList{L"A.1"}));
}

}  // namespace plant
