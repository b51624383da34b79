#include "project/History.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FaultyDisk.h"
#include "HistoryProject.h"
#include "text/Refusal.h"

namespace {

using kztest::State;
using plant::Change;
using testing::ElementsAre;
using testing::IsEmpty;
using namespace std::chrono_literals;

class HistoryTest : public testing::Test {
protected:
    kztest::HistoryProject m_project;
};

TEST_F(HistoryTest, IsEmptyBeforeTheFirstSave)
{
    EXPECT_THAT(m_project.History().Entries(), IsEmpty());
    m_project.History().Prune();
    EXPECT_FALSE(m_project.Has("history"));
}

TEST_F(HistoryTest, TellsOfEachSaveNumberTimeCauseAndDocuments)
{
    m_project.Write("main.xml", "main");
    const std::string before = plant::UtcText(plant::RealDisk().Now());
    m_project.Save({{"main.xml", "new"}, {"devices/b.xml", "b"}, {"devices/a.xml", "a"}});
    m_project.Save({{"devices/a.xml", std::nullopt}});
    const std::string after = plant::UtcText(plant::RealDisk().Now());

    const auto entries = m_project.History().Entries();
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].number, 1);
    EXPECT_EQ(entries[0].cause, "window");
    EXPECT_THAT(entries[0].documents, ElementsAre("devices/a.xml", "devices/b.xml", "main.xml"));
    EXPECT_GE(entries[0].time, before);
    EXPECT_LE(entries[1].time, after);
    EXPECT_EQ(entries[1].number, 2);
    EXPECT_THAT(entries[1].documents, ElementsAre("devices/a.xml"));
}

TEST_F(HistoryTest, BringsBackEveryStateThatWasSaved)
{
    const State first{{"main.xml", "one"}, {"devices/a.xml", "a1"}};
    for (const auto& [name, bytes] : first)
        m_project.Write(name, bytes);
    m_project.Save({{"main.xml", "two"}});
    const State second = m_project.Now();
    m_project.Save({{"devices/a.xml", "a2"}, {"devices/new.xml", "n"}});
    const State third = m_project.Now();
    m_project.Save({{"devices/a.xml", std::nullopt}, {"main.xml", "one"}});

    EXPECT_EQ(m_project.Before(1), first);
    EXPECT_EQ(m_project.Before(2), second);
    EXPECT_EQ(m_project.Before(3), third);
}

TEST_F(HistoryTest, RestoresNoMoreThanWhatDiffers)
{
    m_project.Write("main.xml", "main");
    m_project.Write("devices/a.xml", "a");
    m_project.Write("devices/gone.xml", "g");
    m_project.Save({{"main.xml", "new"}, {"devices/new.xml", "n"}, {"devices/gone.xml", std::nullopt}});
    EXPECT_EQ(m_project.History().Restoring(1),
              (Change{{"main.xml", "main"}, {"devices/new.xml", std::nullopt}, {"devices/gone.xml", "g"}}));
    m_project.Save(m_project.History().Restoring(1));
    EXPECT_THAT(m_project.History().Restoring(1), IsEmpty());
}

// The content of the second save is that of the first again, between them another.
TEST_F(HistoryTest, KeepsAContentThatComesBack)
{
    m_project.Write("main.xml", "a");
    m_project.Save({{"main.xml", "b"}});
    m_project.Save({{"main.xml", "a"}});
    m_project.Save({{"main.xml", "c"}});
    EXPECT_EQ(m_project.Before(1), (State{{"main.xml", "a"}}));
    EXPECT_EQ(m_project.Before(2), (State{{"main.xml", "b"}}));
    EXPECT_EQ(m_project.Before(3), (State{{"main.xml", "a"}}));
}

TEST_F(HistoryTest, KeepsADocumentThatWasTakenOutAndMadeAgain)
{
    m_project.Write("main.xml", "main");
    m_project.Write("devices/a.xml", "old");
    m_project.Save({{"devices/a.xml", std::nullopt}});
    m_project.Save({{"main.xml", "new"}});
    m_project.Save({{"devices/a.xml", "new"}});
    m_project.Save({{"main.xml", "main"}});
    EXPECT_EQ(m_project.Before(1), (State{{"main.xml", "main"}, {"devices/a.xml", "old"}}));
    EXPECT_EQ(m_project.Before(2), (State{{"main.xml", "main"}}));
    EXPECT_EQ(m_project.Before(3), (State{{"main.xml", "new"}}));
    EXPECT_EQ(m_project.Before(4), (State{{"main.xml", "new"}, {"devices/a.xml", "new"}}));
}

TEST_F(HistoryTest, KeepsWhatAnotherProgramWroteBetweenTwoSaves)
{
    m_project.Write("main.xml", "main");
    m_project.Write("devices/a.xml", "ours");
    m_project.Save({{"main.xml", "new"}});
    m_project.Write("devices/a.xml", "theirs");
    m_project.Write("devices/b.xml", "theirs too");
    m_project.Save({{"main.xml", "newer"}});
    m_project.Remove("devices/b.xml");
    m_project.Save({{"main.xml", "newest"}});
    EXPECT_EQ(m_project.Before(1), (State{{"main.xml", "main"}, {"devices/a.xml", "ours"}}));
    EXPECT_EQ(m_project.Before(2),
              (State{{"main.xml", "new"}, {"devices/a.xml", "theirs"}, {"devices/b.xml", "theirs too"}}));
    EXPECT_EQ(m_project.Before(3), (State{{"main.xml", "newer"}, {"devices/a.xml", "theirs"}}));
}

// A second name of a live file would change with it.
TEST_F(HistoryTest, IsNotReachedByAProgramThatWritesIntoALiveFile)
{
    m_project.Write("main.xml", "main");
    m_project.Write("devices/a.xml", "kept");
    m_project.Save({{"main.xml", "new"}});
    m_project.Write("devices/a.xml", "lost");
    m_project.Write("main.xml", "mine");
    EXPECT_EQ(m_project.Before(1), (State{{"main.xml", "main"}, {"devices/a.xml", "kept"}}));
}

#ifndef _WIN32
TEST_F(HistoryTest, KeepsWhatASaveReplacesAsASecondNameOfItsFile)
{
    m_project.Write("main.xml", "main");
    m_project.Write("devices/a.xml", "a");
    static_cast<void>(m_project.History().Keep("window", {{"main.xml", "new"}}));
    EXPECT_EQ(std::filesystem::hard_link_count(m_project.FileOf("main.xml")), 2U);
    EXPECT_EQ(std::filesystem::hard_link_count(m_project.FileOf("devices/a.xml")), 1U);
}
#endif

TEST_F(HistoryTest, HoldsADocumentOnceAsLongAsItStays)
{
    m_project.Write("main.xml", "main");
    m_project.Write("devices/a.xml", "a");
    m_project.Save({{"main.xml", "new"}});
    m_project.Save({{"main.xml", "newer"}});
    EXPECT_TRUE(m_project.Has("history/000001/devices/a.xml"));
    EXPECT_FALSE(m_project.Has("history/000002/devices"));
    EXPECT_TRUE(m_project.Has("history/000002/main.xml"));
}

class ReadingDisk : public kztest::FaultyDisk {
public:
    ReadingDisk() : FaultyDisk(plant::RealDisk()) {}
    std::optional<std::string> Read(const plant::Path& file) override
    {
        m_read.push_back(plant::NameOf(file.filename()));
        return FaultyDisk::Read(file);
    }
    std::vector<std::string> m_read;
};

TEST_F(HistoryTest, ReadsNoDocumentWhoseSizeAndTimeAreTheSame)
{
    for (const char* name : {"main.xml", "devices/a.xml", "devices/b.xml"}) {
        m_project.Write(name, "old");
        m_project.Age(name, 1h);
    }
    m_project.Save({{"main.xml", "new"}});
    m_project.Age("devices/b.xml", 2h);
    ReadingDisk disk;
    static_cast<void>(m_project.History(disk).Keep("window", {{"main.xml", "newer"}}));
    EXPECT_THAT(disk.m_read, ElementsAre("entry", "b.xml", "main.xml"));
    // The same content with another time is not kept again.
    EXPECT_FALSE(m_project.Has("history/000002/devices"));
}

// A document can be written twice within one tick of the disk's clock.
TEST_F(HistoryTest, ReadsADocumentAgainThatWasYoungWhenItWasKept)
{
    m_project.Write("main.xml", "old");
    m_project.Write("devices/a.xml", "one");
    m_project.Age("devices/a.xml", 1s);
    const auto time = std::filesystem::last_write_time(m_project.FileOf("devices/a.xml"));
    m_project.Save({{"main.xml", "new"}});
    m_project.Write("devices/a.xml", "two");
    std::filesystem::last_write_time(m_project.FileOf("devices/a.xml"), time);
    m_project.Save({{"main.xml", "newer"}});
    EXPECT_EQ(m_project.Before(2), (State{{"main.xml", "new"}, {"devices/a.xml", "two"}}));
}

// The new file may have the size and the time of the old one, which is not for long the one of its name.
TEST_F(HistoryTest, ReadsADocumentAgainThatASaveHasReplaced)
{
    m_project.Write("main.xml", "one");
    m_project.Age("main.xml", 1h);
    const auto time = std::filesystem::last_write_time(m_project.FileOf("main.xml"));
    m_project.Save({{"main.xml", "two"}});
    std::filesystem::last_write_time(m_project.FileOf("main.xml"), time);
    m_project.Save({{"main.xml", "three"}});
    EXPECT_EQ(m_project.Before(2), (State{{"main.xml", "two"}}));
}

TEST_F(HistoryTest, LeavesNoEntryWhereTheSaveDidNotTakePlace)
{
    m_project.Write("main.xml", "main");
    m_project.Write("devices/a.xml", "a");
    static_cast<void>(m_project.History().Keep("window", {{"devices/a.xml", "lost"}}));
    EXPECT_THAT(m_project.History().Entries(), IsEmpty());

    // What was left does not get into the next entry.
    m_project.Remove("devices/a.xml");
    m_project.Write("main.xml", "other");
    EXPECT_EQ(m_project.Save({{"main.xml", "new"}}), 1);
    EXPECT_FALSE(m_project.Has("history/000001/devices"));
    EXPECT_EQ(m_project.Before(1), (State{{"main.xml", "other"}}));
}

TEST_F(HistoryTest, RefusesANumberThatThereIsNot)
{
    m_project.Write("main.xml", "main");
    const auto refusal = [&](int number) {
        try {
            static_cast<void>(m_project.History().Restoring(number));
        } catch (const plant::Refusal& refused) {
            return refused.What();
        }
        return plant::Message{};
    };
    EXPECT_EQ(refusal(1).text, IDS_PLANT_HISTORY_EMPTY);
    m_project.Save({{"main.xml", "new"}});
    m_project.Save({{"main.xml", "newer"}});
    for (const int number : {-1, 0, 3, 1000000}) {
        EXPECT_EQ(refusal(number).text, IDS_PLANT_HISTORY_NO_ENTRY);
        EXPECT_THAT(refusal(number).arguments, ElementsAre(std::to_wstring(number), L"1", L"2"));
    }
}

}  // namespace
