// What the history lets go of, and when.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FaultyDisk.h"
#include "HistoryProject.h"
#include "RefusalOf.h"

namespace {

using kztest::HistoryProject;
using kztest::State;
using plant::HistoryLimits;

constexpr std::uint64_t NoLimit = 1'000'000'000;

std::vector<int> NumbersOf(const HistoryProject& project)
{
    std::vector<int> numbers;
    for (const plant::HistoryEntry& entry : project.History().Entries())
        numbers.push_back(entry.number);
    return numbers;
}

std::uint64_t BytesOf(const HistoryProject& project)
{
    std::uint64_t bytes = 0;
    for (const auto& [name, content] : project.Tree("history"))
        bytes += content.size();
    return bytes;
}

std::string Text(int number)
{
    return "text " + std::to_string(number);
}

TEST(HistoryLimit, IsAHundredSaves)
{
    const HistoryProject project;
    project.Write("main.xml", Text(0));
    project.Write("devices/a.xml", "always the same");
    for (int save = 1; save <= 100; ++save)
        ASSERT_EQ(project.Save({{"main.xml", Text(save)}}), save);
    EXPECT_EQ(NumbersOf(project).front(), 1);
    EXPECT_EQ(project.Save({{"main.xml", "more"}}), 101);
    EXPECT_EQ(NumbersOf(project).size(), 100U);
    EXPECT_EQ(NumbersOf(project).front(), 2);
    EXPECT_EQ(project.Before(2), (State{{"main.xml", Text(1)}, {"devices/a.xml", "always the same"}}));
    EXPECT_EQ(kztest::RefusalOf([&] { return project.History().Restoring(1); }).text, IDS_PLANT_HISTORY_NO_ENTRY);
    EXPECT_EQ(project.Save({{"main.xml", "most"}}), 102);
}

TEST(HistoryLimit, IsHalfAGigabyte)
{
    EXPECT_EQ(HistoryLimits().bytes, 500'000'000U);
}

TEST(HistoryLimit, LeavesWhatLaterEntriesNeedAndNothingElse)
{
    const HistoryProject project(HistoryLimits{2, NoLimit});
    project.Write("main.xml", Text(0));
    for (const char* name : {"devices/changed.xml", "devices/gone.xml", "devices/kept.xml"})
        project.Write(name, "old");
    project.Save({{"devices/gone.xml", std::nullopt}});
    project.Save({{"devices/changed.xml", "new"}});
    EXPECT_FALSE(project.Has("history/000000"));
    const State third = project.Now();
    project.Save({{"main.xml", Text(1)}});
    const State fourth = project.Now();

    EXPECT_THAT(NumbersOf(project), testing::ElementsAre(2, 3));
    EXPECT_EQ(project.Before(3), third);
    EXPECT_EQ(
        project.Tree("history/000000"),
        (State{{"devices/", ""}, {"devices/changed.xml", "old"}, {"devices/kept.xml", "old"}, {"main.xml", Text(0)}}));
    EXPECT_FALSE(project.Has("history/000001"));

    project.Save({{"main.xml", Text(2)}});
    EXPECT_THAT(NumbersOf(project), testing::ElementsAre(3, 4));
    EXPECT_EQ(project.Before(3), third);
    EXPECT_EQ(project.Before(4), fourth);
    // Entry 3 is the first with the changed document, so nobody needs the old one.
    EXPECT_EQ(project.Tree("history/000000"),
              (State{{"devices/", ""}, {"devices/kept.xml", "old"}, {"main.xml", Text(0)}}));
}

TEST(HistoryLimit, CountsEveryByteInItsFolders)
{
    const auto fill = [](const HistoryProject& project) {
        project.Write("main.xml", std::string(1000, 'm'));
        project.Write("devices/a.xml", std::string(3000, 'a'));
        project.Save({{"main.xml", std::string(1001, 'm')}});
        project.Save({{"main.xml", std::string(1002, 'm')}});
        project.Save({{"main.xml", std::string(1003, 'm')}});
    };
    const HistoryProject unlimited;
    fill(unlimited);
    const std::uint64_t bytes = BytesOf(unlimited);
    const HistoryProject enough(HistoryLimits{100, bytes});
    fill(enough);
    EXPECT_THAT(NumbersOf(enough), testing::ElementsAre(1, 2, 3));
    const HistoryProject tooLittle(HistoryLimits{100, bytes - 1});
    fill(tooLittle);
    EXPECT_THAT(NumbersOf(tooLittle), testing::ElementsAre(2, 3));
}

TEST(HistoryLimit, CountsWhatIsLeftOfOldEntries)
{
    const std::string big(10'000, 'b');
    const HistoryProject project(HistoryLimits{100, 11'500});
    project.Write("main.xml", Text(0));
    project.Write("devices/big.xml", big);
    for (int save = 1; save <= 20; ++save) {
        project.Save({{"main.xml", Text(save)}});
        EXPECT_LE(BytesOf(project), 11'500U);
    }
    const std::vector<int> numbers = NumbersOf(project);
    EXPECT_GT(numbers.front(), 1);
    EXPECT_GT(numbers.size(), 3U);
    for (const int number : numbers)
        EXPECT_EQ(project.Before(number), (State{{"main.xml", Text(number - 1)}, {"devices/big.xml", big}}));
    // A limit that was reached once lets go of one entry for each that comes, not of more and more.
    EXPECT_EQ(numbers.size(), static_cast<std::size_t>(20 - numbers.front() + 1));
    EXPECT_GT(BytesOf(project), 11'000U);
}

TEST(HistoryLimit, NeverTakesTheNewestEntry)
{
    const HistoryProject project(HistoryLimits{0, 0});
    project.Write("main.xml", Text(0));
    project.Write("devices/a.xml", "a");
    for (int save = 1; save <= 3; ++save) {
        EXPECT_EQ(project.Save({{"main.xml", Text(save)}}), save);
        EXPECT_THAT(NumbersOf(project), testing::ElementsAre(save));
        EXPECT_EQ(project.Before(save), (State{{"main.xml", Text(save - 1)}, {"devices/a.xml", "a"}}));
    }
}

TEST(HistoryLimit, LeavesAloneWhatIsNotItsOwn)
{
    const HistoryProject project(HistoryLimits{1, NoLimit});
    project.Write("main.xml", Text(0));
    project.Write("history/000001/notes.txt", "theirs");
    for (int save = 1; save <= 3; ++save)
        project.Save({{"main.xml", Text(save)}});
    EXPECT_EQ(project.Tree("history/000001"), (State{{"notes.txt", "theirs"}}));
    EXPECT_FALSE(project.Has("history/000002"));
}

TEST(HistoryLimit, TakesAnOldEntryThatIsDamaged)
{
    const HistoryProject project(HistoryLimits{2, NoLimit});
    project.Write("main.xml", Text(0));
    project.Save({{"main.xml", Text(1)}});
    project.Save({{"main.xml", Text(2)}});
    project.Write("history/000001/entry", "damaged");
    project.Save({{"main.xml", Text(3)}});
    EXPECT_THAT(NumbersOf(project), testing::ElementsAre(2, 3));
}

TEST(HistoryLimit, TakesNothingThatADamagedEntryMayNeed)
{
    const HistoryProject project(HistoryLimits{3, NoLimit});
    project.Write("main.xml", Text(0));
    for (int save = 1; save <= 3; ++save)
        project.Save({{"main.xml", Text(save)}});
    project.Write("history/000002/entry", "damaged");
    const State tree = project.Tree();
    plant::History history(plant::RealDisk(), project.Path(), HistoryLimits{2, NoLimit});
    const plant::Message refusal = kztest::RefusalOf([&] { return history.Prune(), 0; });
    EXPECT_EQ(refusal.text, IDS_PLANT_DAMAGED);
    EXPECT_EQ(project.Tree(), tree);
}

// Ten documents, of which each save has changed two.
class KilledPrune : public testing::Test {
protected:
    static std::string Name(int device) { return "devices/" + std::to_string(device) + ".xml"; }

    static void Fill(const HistoryProject& project)
    {
        project.Write("main.xml", "main");
        for (int device = 0; device < 9; ++device)
            project.Write(Name(device), "first");
        for (int save = 1; save <= 6; ++save) {
            project.Age("main.xml", std::chrono::hours(1));
            project.Save({{"main.xml", Text(save)}, {Name(save), save % 2 ? std::nullopt : std::optional(Text(save))}});
        }
    }
    static plant::History Limited(plant::Disk& disk, const HistoryProject& project)
    {
        return plant::History(disk, project.Path(), HistoryLimits{3, NoLimit});
    }
    // Without the manifests, which tell the time.
    static State Documents(const HistoryProject& project)
    {
        State tree = project.Tree();
        std::erase_if(tree, [](const auto& file) { return file.first.ends_with("/entry"); });
        return tree;
    }
};

TEST_F(KilledPrune, IsFinishedByTheNext)
{
    HistoryProject filled;
    Fill(filled);
    std::map<int, State> before;
    for (const int number : {4, 5, 6})
        before.emplace(number, filled.Before(number));
    const HistoryProject whole(filled);
    Limited(plant::RealDisk(), whole).Prune();
    ASSERT_THAT(NumbersOf(whole), testing::ElementsAre(4, 5, 6));

    bool done = false;
    for (long last = 1; !done; ++last) {
        const HistoryProject project(filled);
        kztest::FaultyDisk disk(plant::RealDisk());
        disk.DieAt(last);
        plant::History pruned = Limited(disk, project);
        done = kztest::RefusalOf([&] { return pruned.Prune(), 0; }).text == 0;
        for (const auto& [number, state] : before)
            ASSERT_EQ(project.Before(number), state) << last;
        ASSERT_EQ(NumbersOf(project).back(), 6);

        Limited(plant::RealDisk(), project).Prune();
        ASSERT_EQ(Documents(project), Documents(whole)) << last;
        ASSERT_EQ(NumbersOf(project), NumbersOf(whole));
        for (const auto& [number, state] : before)
            ASSERT_EQ(project.Before(number), state) << last;
    }
}

}  // namespace
