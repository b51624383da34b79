#include "ChildOrNew.h"

#include <gtest/gtest.h>

namespace {

using namespace zep;

class ChildElements : public testing::Test {
protected:
    ChildElements() { EXPECT_TRUE(m_document.Parse("<r><a><n>1</n></a><a><n>2</n></a></r>")); }

    [[nodiscard]] XmlDocument::XmlNode& Root() const { return *m_document.Root(); }

    XmlDocument m_document{L"r"};
};

TEST_F(ChildElements, AreFoundByTheirName)
{
    EXPECT_EQ(&ChildOrNew(Root(), L"a"), Root().FirstChild(L"a"));
    EXPECT_EQ(m_document.Serialize(), "<r><a><n>1</n></a><a><n>2</n></a></r>");
}

TEST_F(ChildElements, AreFoundByANamedValue)
{
    EXPECT_EQ(&ChildOrNew(Root(), L"a", L"n", L"2"), Root().FirstChild(L"a")->NextSibling(L"a"));
    EXPECT_EQ(m_document.Serialize(), "<r><a><n>1</n></a><a><n>2</n></a></r>");
}

TEST_F(ChildElements, AreMadeAtTheEndWhereTheyAreMissing)
{
    static_cast<void>(ChildOrNew(Root(), L"b"));
    static_cast<void>(ChildOrNew(Root(), L"a", L"n", L"3"));
    EXPECT_EQ(m_document.Serialize(), "<r><a><n>1</n></a><a><n>2</n></a><b/><a><n>3</n></a></r>");
}

TEST_F(ChildElements, AreMadeWhetherThereIsOneOrNot)
{
    EXPECT_STREQ(NewChildWith(Root(), L"a", L"n", L"1").Value(L"n", L""), L"1");
    EXPECT_EQ(m_document.Serialize(), "<r><a><n>1</n></a><a><n>2</n></a><a><n>1</n></a></r>");
}

}  // namespace
