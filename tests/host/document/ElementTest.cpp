#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "KZXmlDocument.h"

namespace {

using Element = XmlDocument::Element;

std::vector<std::wstring> NamesIn(Element parent)
{
    std::vector<std::wstring> names;
    for (Element child = parent.FirstChild(); child; child = child.NextSibling())
        names.emplace_back(child.Name());
    return names;
}

TEST(DocumentElement, PassesOverElementsAlone)
{
    XmlDocument document(L"plant");
    ASSERT_TRUE(document.Parse("<plant> <!-- c --><?unit pi?><unit/>text<![CDATA[cdata]]><check/><unit/> </plant>"));
    EXPECT_EQ(NamesIn(document.Root()->Look()), (std::vector<std::wstring>{L"unit", L"check", L"unit"}));
}

TEST(DocumentElement, HasTheTextThatItsParentGives)
{
    XmlDocument document(L"plant");
    ASSERT_TRUE(document.Parse("<plant><a>one<!-- c -->two</a><b/><c>&#x20AC;</c></plant>"));
    for (Element child = document.Root()->Look().FirstChild(); child; child = child.NextSibling())
        EXPECT_EQ(std::wstring(child.Text()), document.Root()->Value(child.Name(), nullptr));
}

TEST(DocumentElement, OfNothingIsEmpty)
{
    XmlDocument document(L"plant");
    const Element none = document.Root()->Look().FirstChild();
    EXPECT_FALSE(none);
    EXPECT_STREQ(none.Name(), L"");
    EXPECT_STREQ(none.Text(), L"");
    EXPECT_FALSE(none.FirstChild());
    EXPECT_FALSE(none.NextSibling());
    EXPECT_TRUE(document.Root()->Look());
}

}  // namespace
