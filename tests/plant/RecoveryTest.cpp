#include "project/Recovery.h"

#include <gtest/gtest.h>

#include "FaultyDisk.h"
#include "KZXmlDocument.h"
#include "RecoveryStates.h"
#include "TemporaryFolder.h"

namespace plant {
namespace {

class Recovery : public testing::Test {
protected:
    [[nodiscard]] static std::string NameOf(const std::string& rest = {})
    {
        return "unsaved changes " + std::to_string(KZProcessNumber()) + rest + ".kzrecovery";
    }
    [[nodiscard]] Path File(const std::string& rest = {}) const { return m_folder.Path() / NameOf(rest); }
    [[nodiscard]] Recoveries Find() const { return FindRecoveries(RealDisk(), m_folder.Path()); }

    // What an owner leaves that is gone.
    void Leave(long number) const { RecoveryFile(RealDisk(), m_folder.Path()).Store(StateOf(number)); }
    void ExpectNothingFound() const
    {
        const Recoveries all = Find();
        EXPECT_TRUE(all.found.empty());
        EXPECT_TRUE(all.refused.empty());
    }

    kztest::TemporaryFolder m_folder;
};

TEST_F(Recovery, MakesNoFileBeforeThereIsSomethingToStore)
{
    RecoveryFile file(RealDisk(), m_folder.Path());
    EXPECT_EQ(m_folder.Count(), 0U);
    file.Remove();
    EXPECT_EQ(m_folder.Count(), 0U);
}

TEST_F(Recovery, NamesTheFileByTheProcess)
{
    RecoveryFile file(RealDisk(), m_folder.Path());
    file.Store(StateOf(1));
    EXPECT_EQ(m_folder.Count(), 1U);
    EXPECT_TRUE(exists(File()));
}

TEST_F(Recovery, GivesTheStateThatWasStoredLast)
{
    for (long last = 1; last <= 6; ++last) {
        RecoveryFile file(RealDisk(), m_folder.Path());
        for (long number = 1; number <= last; ++number)
            file.Store(StateOf(number));
    }
    Recoveries all = Find();
    ASSERT_EQ(all.found.size(), 6U);
    for (long last = 1; last <= 6; ++last)
        EXPECT_EQ(all.found[static_cast<std::size_t>(last - 1)].unsaved, StateOf(last));
}

TEST_F(Recovery, IsTheOwnersAloneAsLongAsItLives)
{
    RecoveryFile file(RealDisk(), m_folder.Path());
    file.Store(StateOf(1));
    ExpectNothingFound();
    EXPECT_TRUE(exists(File()));
}

TEST_F(Recovery, IsHeldByItsFinderUntilThatLetsGo)
{
    Leave(1);
    {
        const Recoveries first = Find();
        ASSERT_EQ(first.found.size(), 1U);
        ExpectNothingFound();
    }
    EXPECT_EQ(Find().found.size(), 1U);
}

TEST_F(Recovery, IsGoneForGoodWhenItIsDiscarded)
{
    Leave(1);
    Recoveries all = Find();
    ASSERT_EQ(all.found.size(), 1U);
    Discard(all.found[0]);
    EXPECT_EQ(m_folder.Count(), 0U);
    Discard(all.found[0]);
}

TEST_F(Recovery, IsTakenAwayByItsOwnerAndMadeAnew)
{
    RecoveryFile file(RealDisk(), m_folder.Path());
    file.Store(StateOf(1));
    file.Store(StateOf(2));
    file.Remove();
    EXPECT_EQ(m_folder.Count(), 0U);
    file.Store(StateOf(3));
    EXPECT_TRUE(exists(File()));
}

TEST_F(Recovery, OfTwoOwnersInOneFolderIsOneFileEach)
{
    {
        RecoveryFile one(RealDisk(), m_folder.Path());
        RecoveryFile other(RealDisk(), m_folder.Path());
        one.Store(StateOf(1));
        other.Store(StateOf(2));
        one.Store(StateOf(3));
        EXPECT_TRUE(exists(File("-2")));
        ExpectNothingFound();
    }
    const Recoveries all = Find();
    ASSERT_EQ(all.found.size(), 2U);
    EXPECT_EQ(all.found[0].unsaved, StateOf(2));
    EXPECT_EQ(all.found[0].file, File("-2"));
    EXPECT_EQ(all.found[1].unsaved, StateOf(3));
}

TEST_F(Recovery, LeavesWhatAnEarlierProcessOfTheSameNumberHasLeft)
{
    Leave(1);
    const std::string before = kztest::BytesOf(File());
    RecoveryFile(RealDisk(), m_folder.Path()).Store(StateOf(2));
    EXPECT_EQ(kztest::BytesOf(File()), before);
    EXPECT_TRUE(exists(File("-2")));
    m_folder.Write(NameOf("-3"), "");
    RecoveryFile(RealDisk(), m_folder.Path()).Store(StateOf(3));
    EXPECT_EQ(kztest::BytesOf(File("-3")), "") << "an empty one is not this process's either";
    EXPECT_EQ(Find().found.size(), 3U);
}

// A process of another machine, with the same number, comes between the look at a name and the hold of the file.
TEST_F(Recovery, LeavesWhatAppearsWhileItTakesAName)
{
    class BlindDisk : public kztest::FaultyDisk {
    public:
        using FaultyDisk::FaultyDisk;
        std::optional<KZFileEntry> Find(const Path&) override { return std::nullopt; }
    };
    BlindDisk blind(RealDisk());
    Leave(1);
    RecoveryFile living(RealDisk(), m_folder.Path());
    living.Store(StateOf(2));
    const std::string before = kztest::BytesOf(File());
    RecoveryFile late(blind, m_folder.Path());
    late.Store(StateOf(3));
    EXPECT_EQ(kztest::BytesOf(File()), before);
    EXPECT_TRUE(exists(File("-3")));
    EXPECT_EQ(m_folder.Count(), 3U);
    const Recoveries all = Find();
    ASSERT_EQ(all.found.size(), 1U);
    EXPECT_EQ(all.found[0].unsaved, StateOf(1));
}

TEST_F(Recovery, IsFoundOldestFirst)
{
    for (const long number : {5, 3, 9, 4})
        Leave(number);
    const Recoveries all = Find();
    ASSERT_EQ(all.found.size(), 4U);
    EXPECT_EQ(all.found[0].unsaved, StateOf(3));
    EXPECT_EQ(all.found[1].unsaved, StateOf(4));
    EXPECT_EQ(all.found[2].unsaved, StateOf(5));
    EXPECT_EQ(all.found[3].unsaved, StateOf(9));
}

TEST_F(Recovery, RemembersTheWholeChange)
{
    Unsaved unsaved;
    unsaved.time = RealDisk().Now();
    unsaved.documents["main.xml"] = std::string("\0\n - <\xC3\xB1>", 10);
    unsaved.documents["devices/ñ 1.xml"] = "";
    unsaved.documents["devices/gone.xml"] = std::nullopt;
    unsaved.before = {{"main.xml", 0}, {"devices/ñ 1.xml", std::nullopt}, {"devices/gone.xml", ~std::uint64_t{}}};
    RecoveryFile(RealDisk(), m_folder.Path()).Store(unsaved);
    const Recoveries all = Find();
    ASSERT_EQ(all.found.size(), 1U);
    EXPECT_EQ(all.found[0].unsaved, unsaved);
}

TEST_F(Recovery, TakesADocumentWithoutWordOfWhatWasThereForANewOne)
{
    Unsaved unsaved = StateOf(1);
    unsaved.before.clear();
    RecoveryFile(RealDisk(), m_folder.Path()).Store(unsaved);
    const Recoveries all = Find();
    ASSERT_EQ(all.found.size(), 1U);
    for (const auto& [name, hash] : all.found[0].unsaved.before)
        EXPECT_EQ(hash, std::nullopt);
}

TEST_F(Recovery, KeepsATimeThatCanBeShown)
{
    Unsaved unsaved = StateOf(1);
    unsaved.time = -1;
    RecoveryFile(RealDisk(), m_folder.Path()).Store(unsaved);
    unsaved.time = std::numeric_limits<std::int64_t>::max();
    RecoveryFile(RealDisk(), m_folder.Path()).Store(unsaved);
    const Recoveries all = Find();
    ASSERT_EQ(all.found.size(), 2U);
    EXPECT_EQ(all.found[0].unsaved.time, 0);
    EXPECT_EQ(all.found[1].unsaved.time, 253'402'300'800 * 10'000'000);
}

TEST_F(Recovery, RefusesToStoreWhatIsNoDocument)
{
    RecoveryFile file(RealDisk(), m_folder.Path());
    Unsaved unsaved = StateOf(1);
    unsaved.documents["../main.xml"] = "";
    EXPECT_EQ(kztest::RefusalOf([&] { file.Store(unsaved); }),
              (Message{IDS_PLANT_STRANGE_NAME, {Shown(m_folder.Path()), L"../main.xml"}}));
    EXPECT_EQ(m_folder.Count(), 0U);
}

TEST_F(Recovery, RefusesToStoreMoreThanCanBeReadBack)
{
    RecoveryFile file(RealDisk(), m_folder.Path());
    file.Store(StateOf(1));
    const Message tooLarge{IDS_PLANT_RECOVERY_TOO_LARGE, {Shown(m_folder.Path())}};
    Unsaved unsaved = StateOf(2);
    unsaved.documents["main.xml"] = std::string(KZLargestDocument + 1, 'x');
    EXPECT_EQ(kztest::RefusalOf([&] { file.Store(unsaved); }), tooLarge);
    for (const char number : std::string("1234"))
        unsaved.documents[std::string("devices/") + number + ".xml"] = std::string(KZLargestDocument, 'x');
    unsaved.documents["main.xml"] = "";
    EXPECT_EQ(kztest::RefusalOf([&] { file.Store(unsaved); }), tooLarge);
}

TEST_F(Recovery, IsNotLookedForInOtherFiles)
{
    Leave(1);
    const std::string bytes = kztest::BytesOf(File());
    m_folder.Write("main.xml", bytes);
    m_folder.Write("unsaved changes 1.kzrecovery.old", bytes);
    m_folder.Write("my unsaved changes 1.kzrecovery", bytes);
    m_folder.Write("unsaved changes 2.kzrecovery/unsaved changes 3.kzrecovery", bytes);
    EXPECT_EQ(Find().found.size(), 1U);
    EXPECT_TRUE(Find().refused.empty());
}

TEST_F(Recovery, IsNotFoundInAFolderThatIsNotThere)
{
    const Recoveries all = FindRecoveries(RealDisk(), m_folder.Path() / "none");
    EXPECT_TRUE(all.found.empty());
}

TEST_F(Recovery, RefusesAFileOfAStrangerAndFindsTheOthers)
{
    Leave(2);
    const Path strange = m_folder.Write("unsaved changes 0.kzrecovery", "hello");
    const Recoveries all = Find();
    ASSERT_EQ(all.refused.size(), 1U);
    EXPECT_EQ(all.refused[0], (Message{IDS_PLANT_DAMAGED, {Shown(strange)}}));
    EXPECT_EQ(kztest::BytesOf(strange), "hello");
    EXPECT_EQ(all.found.size(), 1U);
}

TEST_F(Recovery, RemovesAFileWhoseOwnerHadStoredNothing)
{
    m_folder.Write("unsaved changes 1.kzrecovery", "");
    m_folder.Write("unsaved changes 2.kzrecovery", std::string(RecoveryData, '\0') + "17000\n");
    ExpectNothingFound();
    EXPECT_EQ(m_folder.Count(), 0U);
}

}  // namespace
}  // namespace plant
