#include "project/SeenDocuments.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FaultyDisk.h"
#include "TemporaryFolder.h"
#include "project/Sealed.h"

namespace plant {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using namespace std::chrono_literals;

class CountingDisk : public kztest::FaultyDisk {
public:
    CountingDisk() : FaultyDisk(RealDisk()) {}
    std::optional<std::string> Read(const Path& file) override
    {
        ++reads;
        return FaultyDisk::Read(file);
    }
    long reads = 0;
};

class SeenDocumentsTest : public testing::Test {
protected:
    SeenDocumentsTest() { m_folder.Write("main.xml", "old"); }
    // Makes the file look as if it had been written that long ago.
    void Age(std::chrono::seconds age) const
    {
        std::filesystem::last_write_time(m_folder.Path() / "main.xml",
                                         std::filesystem::file_time_type::clock::now() - age);
    }

    std::vector<std::string> ChangedNames()
    {
        std::vector<std::string> names;
        for (const auto& [name, hash] : m_seen.Changed())
            names.push_back(name);
        return names;
    }

    kztest::TemporaryFolder m_folder;
    CountingDisk m_disk;
    SeenDocuments m_seen{m_disk, m_folder.Path()};
};

TEST_F(SeenDocumentsTest, ReadAndRemember)
{
    EXPECT_EQ(m_seen.HashSeen("main.xml"), std::nullopt);
    EXPECT_EQ(m_seen.Read("main.xml"), "old");
    EXPECT_EQ(m_seen.HashSeen("main.xml"), HashOf("old"));
    EXPECT_EQ(m_seen.Read("devices/a.xml"), std::nullopt);
    EXPECT_THAT(m_seen.Changed(), IsEmpty());
}

TEST_F(SeenDocumentsTest, NoticeEveryKindOfChange)
{
    m_seen.Read("main.xml");
    m_seen.Read("devices/a.xml");
    m_folder.Write("main.xml", "new");
    EXPECT_THAT(ChangedNames(), ElementsAre("main.xml")) << "the same size within a tick of the clock";
    m_folder.Write("devices/a.xml", "made");
    EXPECT_THAT(ChangedNames(), ElementsAre("devices/a.xml", "main.xml"));
    std::filesystem::remove(m_folder.Path() / "main.xml");
    EXPECT_THAT(ChangedNames(), ElementsAre("devices/a.xml", "main.xml"));
    m_folder.Write("main.xml", "old");
    EXPECT_THAT(ChangedNames(), ElementsAre("devices/a.xml")) << "it is what it was";
}

TEST_F(SeenDocumentsTest, AreNotReadAgainWhileSizeAndTimeStay)
{
    Age(1h);
    m_seen.Read("main.xml");
    m_disk.reads = 0;
    EXPECT_THAT(m_seen.Changed(), IsEmpty());
    EXPECT_EQ(m_disk.reads, 0);
    Age(2h);
    EXPECT_THAT(m_seen.Changed(), IsEmpty());
    EXPECT_THAT(m_seen.Changed(), IsEmpty());
    EXPECT_EQ(m_disk.reads, 1) << "the new time is remembered";
}

TEST_F(SeenDocumentsTest, DifferFromWhatIsNoLongerThereOrWasNeverLookedAt)
{
    EXPECT_TRUE(m_seen.Differs("main.xml", HashOf("old")));
    EXPECT_FALSE(m_seen.Differs("main.xml", std::nullopt));
    m_seen.Read("main.xml");
    EXPECT_FALSE(m_seen.Differs("main.xml", HashOf("old")));
    EXPECT_TRUE(m_seen.Differs("main.xml", HashOf("new")));
    EXPECT_TRUE(m_seen.Differs("main.xml", std::nullopt));
    m_seen.Forget("main.xml");
    EXPECT_TRUE(m_seen.Differs("main.xml", HashOf("old")));
}

TEST_F(SeenDocumentsTest, AreNotSurprisedByWhatWasWrittenHere)
{
    m_seen.Read("main.xml");
    m_seen.WillWrite("main.xml", "new");
    EXPECT_FALSE(m_seen.Differs("main.xml", HashOf("old")));
    EXPECT_FALSE(m_seen.Differs("main.xml", HashOf("new")));
    EXPECT_TRUE(m_seen.Differs("main.xml", HashOf("other")));
    EXPECT_THAT(m_seen.Changed(), IsEmpty());
    m_folder.Write("main.xml", "new");
    EXPECT_THAT(m_seen.Changed(), IsEmpty());
    m_seen.Wrote("main.xml", "new");
    EXPECT_TRUE(m_seen.Differs("main.xml", HashOf("old")));
    EXPECT_THAT(m_seen.Changed(), IsEmpty());
}

TEST_F(SeenDocumentsTest, TakeOverWhatOthersHaveSeen)
{
    m_seen.Read("main.xml");
    m_folder.Write("main.xml", "new");
    m_folder.Write("devices/a.xml", "a");
    SeenDocuments others(m_disk, m_folder.Path());
    others.Read("main.xml");
    others.Read("devices/a.xml");
    m_seen.Complete(others);
    EXPECT_EQ(m_seen.HashSeen("main.xml"), HashOf("old"));
    EXPECT_EQ(m_seen.HashSeen("devices/a.xml"), HashOf("a"));
    m_seen.Replace(others);
    EXPECT_EQ(m_seen.HashSeen("main.xml"), HashOf("new"));
    EXPECT_THAT(m_seen.Changed(), IsEmpty());
}

#ifdef _WIN32
TEST_F(SeenDocumentsTest, KnowADocumentInCapitalsAsTheSame)
{
    m_seen.Read("devices/a.xml");
    m_seen.Wrote("devices/A.xml", "a");
    EXPECT_EQ(m_seen.HashSeen("devices/a.xml"), HashOf("a"));
}
#endif

}  // namespace

}  // namespace plant
