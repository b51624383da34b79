// Looking up in long lists, which get an index, beside looking at each child.
#include <gtest/gtest.h>

#include <iterator>
#include <random>
#include <vector>

#include "KZXmlDocument.h"

namespace {

using Node = XmlDocument::XmlNode;

constexpr int Records = 150;

// Some ids come twice, some records have none.
std::wstring Id(std::size_t number)
{
    return L"id " + std::to_wstring(number);
}

class LongList : public testing::Test {
protected:
    LongList()
    {
        std::string text = "<r><list>";
        for (int record = 0; record < Records; ++record)
            text += "<record><id>id " + std::to_string(record) + "</id></record>";
        EXPECT_TRUE(m_document.Parse(text + "</list></r>"));
        m_list = m_document.Node(L"list");
    }

    [[nodiscard]] Node* Find(const std::wstring& id) const
    {
        return m_document.Root()->NodeV(L"list/record?id=%s?", id.c_str());
    }
    [[nodiscard]] Node* Search(const std::wstring& id) const
    {
        Node* record = m_list->FirstChild(L"record");
        while (record && (!record->FirstChild(L"id") || id != record->Value(L"id", L"")))
            record = record->NextSibling(L"record");
        return record;
    }
    void ExpectAllFound() const
    {
        for (std::size_t number = 0; number < 2 * Records; ++number)
            ASSERT_EQ(Find(Id(number)), Search(Id(number))) << number;
        ASSERT_EQ(Find(L""), Search(L""));
    }

    XmlDocument m_document{L"r"};
    Node* m_list = nullptr;
};

TEST_F(LongList, FindsEveryRecordAndNoOther)
{
    ExpectAllFound();
    EXPECT_NE(Find(L"id 149"), nullptr);
    EXPECT_EQ(Find(L"id 150"), nullptr);
    EXPECT_EQ(Find(L"id"), nullptr);
}

TEST_F(LongList, FindsARecordUnderItsNewId)
{
    Node* const record = Find(L"id 149");
    record->SetValue(L"id", L"another");
    EXPECT_EQ(Find(L"id 149"), nullptr);
    EXPECT_EQ(Find(L"another"), record);
    record->SetValue(L"other", L"id 149");
    EXPECT_EQ(Find(L"id 149"), nullptr);
}

TEST_F(LongList, FindsTheFirstOfTwoWithTheSameId)
{
    Node* const last = Find(L"id 149");
    Node* const before = m_list->NewChild(L"record", Find(L"id 100"));
    EXPECT_EQ(Find(L""), nullptr) << "it has no id yet";
    before->SetValue(L"id", L"id 149");
    EXPECT_EQ(Find(L"id 149"), before);
    before->SetValue(L"id", L"id 999");
    EXPECT_EQ(Find(L"id 149"), last);
}

TEST_F(LongList, FindsWhatIsAddedAtItsEnd)
{
    ExpectAllFound();
    for (std::size_t number = Records; number < 2 * Records; ++number) {
        Node* const record = m_list->NewChild(L"record", nullptr);
        record->SetValue(L"id", Id(number).c_str());
        ASSERT_EQ(Find(Id(number)), record);
    }
    ExpectAllFound();
}

TEST_F(LongList, SeesAnIdThatIsPutInFrontOfAnother)
{
    Node* const record = Find(L"id 149");
    record->NewChild(L"id", record->FirstChild(L"id"));
    EXPECT_EQ(Find(L"id 149"), nullptr);
    EXPECT_EQ(Find(L""), record);
}

TEST_F(LongList, SeesTheBlanksThatAnElementBringsIntoAnId)
{
    EXPECT_TRUE(m_document.Parse("<r>\n  <list>\n    <record>\n      <id/>\n    </record>\n  </list>\n</r>"));
    m_list = m_document.Node(L"list");
    for (std::size_t number = 0; number < Records; ++number)
        m_list->NewChild(L"record", m_list->FirstChild(L"record"))->SetValue(L"id", Id(number).c_str());
    Node* const record = Find(L"");
    ASSERT_NE(record, nullptr);
    record->FirstChild(L"id")->NewChild(L"inner", nullptr);
    EXPECT_EQ(Find(L""), Search(L""));
}

TEST_F(LongList, StaysRightWhateverIsDone)
{
    std::mt19937 random(20261122);
    const auto below = [&random](std::size_t limit) {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
    };
    std::vector<Node*> records;
    for (Node* record = m_list->FirstChild(L"record"); record; record = record->NextSibling(L"record"))
        records.push_back(record);
    for (int step = 0; step < 2000; ++step) {
        Node* const record = records[below(records.size())];
        const std::wstring id = Id(below(2 * Records));
        switch (below(6)) {
        case 0:
            records.push_back(m_list->NewChild(L"record", below(2) == 0 ? record : nullptr));
            break;
        case 1:
            record->NewChild(L"id", below(2) == 0 ? record->FirstChild(L"id") : nullptr);
            break;
        default:
            record->SetValue(L"id", id.c_str());
        }
        ASSERT_EQ(Find(id), Search(id)) << step;
        const std::wstring other = Id(below(2 * Records));
        ASSERT_EQ(Find(other), Search(other)) << step;
    }
    ExpectAllFound();
}

}  // namespace
