// Documents with random damage: whatever is accepted is kept, and can be changed and read again.
#include <gtest/gtest.h>

#include <random>

#include "KZXmlDocument.h"

namespace {

constexpr const char* Seeds[] = {
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<!-- c -->\r\n<r a='1' b=\"x > y\">\r\n  <v>old</v>\r\n  "
    "<e/>\r\n</r>\r\n",
    "<r><![CDATA[a<b]]><v><!--c-->old</v><?pi x?>&amp;&#233;<e a='/'/><e></e ></r>\n",
    "<r>\n\t<v ><![CDATA[old]]></v>\n\t<p><q><v>\xC3\xB1\xF0\x9F\x98\x80</v></q></p>\n</r>",
};
constexpr std::string_view Pieces[] = {"<",         ">",  "/",    "/>",  "</",   "'",    "\"",   "=",
                                       " ",         "\n", "\r\n", "&",   "&#1;", "]]>",  "<!--", "-->",
                                       "<![CDATA[", "<?", "?>",   "<a>", "</a>", "<v/>", "\xC3", "x"};

class Mutator {
public:
    explicit Mutator(unsigned seed) : m_random(seed) {}

    std::string Damaged(std::string text)
    {
        for (std::size_t change = 0, changes = 1 + Below(3); change < changes; ++change) {
            const std::size_t at = Below(text.size());
            switch (Below(4)) {
            case 0:
                text.erase(at, 1 + Below(4));
                break;
            case 1:
                text.insert(at, Pieces[Below(std::size(Pieces))]);
                break;
            case 2:
                text.insert(at, text.substr(Below(text.size()), Below(20)));
                break;
            default:
                text[at] = static_cast<char>(Below(128));
            }
        }
        return text;
    }

private:
    std::size_t Below(std::size_t bound) { return std::uniform_int_distribution<std::size_t>(0, bound - 1)(m_random); }

    std::mt19937 m_random;
};

class DamagedDocument : public testing::TestWithParam<unsigned> {};

TEST_P(DamagedDocument, IsRefusedOrKept)
{
    Mutator mutator(GetParam());
    int accepted = 0;
    for (int run = 0; run < 2000; ++run) {
        const std::string text = mutator.Damaged(Seeds[static_cast<std::size_t>(run) % std::size(Seeds)]);
        XmlDocument document(L"r");
        if (!document.Parse(text))
            continue;
        ++accepted;
        ASSERT_EQ(document.Serialize(), text);

        document.Root()->SetValue(L"v", L"new & <longer>");
        document.Root()->NewChild(L"added", document.Root()->FirstChild(L"e"))->SetValue(L"w", 7);
        XmlDocument again(L"r");
        const KZDocumentResult result = again.Parse(document.Serialize());
        ASSERT_TRUE(result) << text << "\nbecame\n" << document.Serialize();
        ASSERT_STREQ(again.Root()->Value(L"v", L"none"), L"new & <longer>") << text << "\nbecame\n"
                                                                            << document.Serialize();
        ASSERT_STREQ(again.Root()->Value(L"added/w", L"none"), L"7") << text;
        ASSERT_EQ(again.Serialize(), document.Serialize());
    }
    EXPECT_GT(accepted, 80);
}

INSTANTIATE_TEST_SUITE_P(Seeds, DamagedDocument, testing::Range(1u, 6u),
                         [](const auto& seed) { return "Seed" + std::to_string(seed.param); });

}  // namespace
