#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "KZXmlDocument.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

TEST(Dirty, IsWhatSomebodySays)
{
    XmlDocument document(L"r");
    document.Root()->SetValue(L"v", L"1");
    EXPECT_FALSE(document.IsDirty());
    document.SetDirty(true);
    EXPECT_TRUE(document.IsDirty());
    document.SetDirty(false);
    EXPECT_FALSE(document.IsDirty());
}

// Remembers what the document held at each commit.
struct Commits : KZCommitListener {
    void OnCommit(XmlDocument& document) noexcept override { seen.push_back(document.Serialize()); }
    std::vector<std::string> seen;
};

TEST(CommitListener, HearsOfEverySetDirtyWithTheChangesDone)
{
    XmlDocument document(L"r");
    Commits commits;
    document.SetCommitListener(&commits);
    document.Root()->SetValue(L"v", L"1");
    EXPECT_TRUE(commits.seen.empty()) << "a value that is set is not yet meant";
    document.SetDirty(true);
    document.Root()->SetValue(L"v", L"2");
    document.SetDirty(true);
    ASSERT_EQ(commits.seen.size(), 2u);
    EXPECT_THAT(commits.seen[0], HasSubstr("<v>1</v>"));
    EXPECT_THAT(commits.seen[1], HasSubstr("<v>2</v>"));
}

TEST(CommitListener, HearsNothingOfADocumentThatGetsClean)
{
    XmlDocument document(L"r");
    Commits commits;
    document.SetCommitListener(&commits);
    document.SetDirty(false);
    EXPECT_TRUE(document.Parse("<r/>"));
    EXPECT_TRUE(commits.seen.empty());
}

TEST(CommitListener, StaysWhenTheContentIsReplaced)
{
    XmlDocument document(L"r");
    Commits commits;
    document.SetCommitListener(&commits);
    EXPECT_TRUE(document.Parse("<r><v>read</v></r>"));
    document.SetDirty(true);
    EXPECT_THAT(commits.seen, ElementsAre("<r><v>read</v></r>"));
    document.SetCommitListener(nullptr);
    document.SetDirty(true);
    EXPECT_EQ(commits.seen.size(), 1u);
}

}  // namespace
