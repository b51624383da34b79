// A disk that fails, and a process that ends, at each operation of the history; natively also each allocation.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "FaultyDisk.h"
#include "HistoryProject.h"
#include "RefusalOf.h"
#ifndef _WIN32
#include "FailingMemory.h"
#endif

namespace {

using kztest::FaultyDisk;
using kztest::HistoryProject;
using kztest::State;

enum class Fault { Failure, Death };

class FaultyHistory : public testing::Test {
protected:
    using Operation = std::function<void(plant::History&)>;

    // A project with two entries and what a third save has left that did not take place.
    struct Fixture {
        Fixture()
        {
            project.Write("main.xml", "one");
            project.Write("devices/a.xml", "a");
            project.Write("devices/b.xml", "b");
            project.Save({{"main.xml", "two"}});
            project.Save({{"devices/a.xml", "new"}, {"devices/c.xml", "c"}});
            static_cast<void>(project.History().Keep("window", {{"main.xml", "lost"}}));
            project.Write("devices/b.xml", "theirs");
            first = project.Before(1);
            second = project.Before(2);
            live = project.Now();
        }
        void Check() const
        {
            ASSERT_EQ(project.Now(), live);
            ASSERT_EQ(project.Before(1), first);
            ASSERT_EQ(project.Before(2), second);
            ASSERT_EQ(project.Save(Next()), 3);
            ASSERT_EQ(project.Before(1), first);
            ASSERT_EQ(project.Before(2), second);
            ASSERT_EQ(project.Before(3), live);
        }

        HistoryProject project{plant::HistoryLimits{100, 1'000'000}};
        State live;
        State first;
        State second;
    };
    static plant::Change Next() { return {{"main.xml", "three"}, {"devices/a.xml", std::nullopt}}; }

    static void Walk(Fault fault, const Operation& operation)
    {
        const Fixture original;
        bool done = false;
        for (long failing = 1; !done; ++failing) {
            const Fixture fixture(original);
            FaultyDisk disk(plant::RealDisk());
            plant::History history = fixture.project.History(disk);
            fault == Fault::Death ? disk.DieAt(failing) : disk.FailAt(failing);
            done = kztest::RefusalOf([&] { return operation(history), 0; }).text == 0 && disk.Count() < failing;
            ASSERT_NO_FATAL_FAILURE(fixture.Check()) << failing;
            ASSERT_LT(failing, 1000);
        }
    }
};

TEST_F(FaultyHistory, KeepsNothingWhereTheDiskFails)
{
    Walk(Fault::Failure, [](plant::History& history) { static_cast<void>(history.Keep("window", Next())); });
}

TEST_F(FaultyHistory, KeepsNothingWhereTheProcessEnds)
{
    Walk(Fault::Death, [](plant::History& history) { static_cast<void>(history.Keep("window", Next())); });
}

TEST_F(FaultyHistory, LeavesNothingWhereTheDiskFailsOnce)
{
    long failures = 0;
    bool done = false;
    for (long failing = 1; !done; ++failing) {
        HistoryProject project;
        project.Write("main.xml", "one");
        project.Write("devices/a.xml", "a");
        FaultyDisk disk(plant::RealDisk());
        disk.FailAt(failing);
        plant::History history = project.History(disk);
        done = kztest::RefusalOf([&] { return history.Keep("window", Next()); }).text == 0;
        if (!done) {
            ++failures;
            EXPECT_FALSE(project.Has("history/000001/devices/a.xml")) << failing;
            EXPECT_FALSE(project.Has("history/000001/main.xml")) << failing;
        }
    }
    EXPECT_GT(failures, 10);
}

TEST_F(FaultyHistory, ReadsAndChangesNothing)
{
    for (const Fault fault : {Fault::Failure, Fault::Death}) {
        Walk(fault, [](plant::History& history) { static_cast<void>(history.Entries()); });
        Walk(fault, [](plant::History& history) { static_cast<void>(history.Restoring(1)); });
    }
}

TEST_F(FaultyHistory, IsToldOfEveryFailure)
{
    const Fixture fixture;
    FaultyDisk disk(plant::RealDisk());
    plant::History history = fixture.project.History(disk);
    const auto count = [&](const Operation& operation) {
        disk.FailAt(0);
        operation(history);
        return disk.Count();
    };
    const auto check = [&](const Operation& operation) {
        const long calls = count(operation);
        for (long failing = 1; failing <= calls; ++failing) {
            disk.FailAt(failing);
            EXPECT_EQ(kztest::RefusalOf([&] { return operation(history), 0; }).text, IDS_PLANT_FILE_FAILED) << failing;
        }
    };
    check([](plant::History& tried) { static_cast<void>(tried.Entries()); });
    check([](plant::History& tried) { static_cast<void>(tried.Restoring(1)); });
    check([](plant::History& tried) { tried.Prune(); });
}

TEST_F(FaultyHistory, LosesNoEntryInBoundsWhereTheDiskFailsWhilePruning)
{
    for (const Fault fault : {Fault::Failure, Fault::Death}) {
        const Fixture original;
        bool done = false;
        for (long failing = 1; !done; ++failing) {
            const Fixture fixture(original);
            FaultyDisk disk(plant::RealDisk());
            plant::History history(disk, fixture.project.Path(), plant::HistoryLimits{1, 1'000'000});
            fault == Fault::Death ? disk.DieAt(failing) : disk.FailAt(failing);
            done = kztest::RefusalOf([&] { return history.Prune(), 0; }).text == 0;
            ASSERT_EQ(fixture.project.Now(), fixture.live) << failing;
            ASSERT_EQ(fixture.project.Before(2), fixture.second) << failing;
            ASSERT_EQ(fixture.project.Save(Next()), 3);
            ASSERT_EQ(fixture.project.Before(2), fixture.second) << failing;
            ASSERT_EQ(fixture.project.Before(3), fixture.live) << failing;
        }
    }
}

#ifndef _WIN32

TEST_F(FaultyHistory, LosesNothingWhereMemoryRunsOut)
{
    const std::function<void(plant::History&)> operations[] = {
        [](plant::History& history) { static_cast<void>(history.Keep("window", Next())); },
        [](plant::History& history) { static_cast<void>(history.Restoring(1)); },
        [](plant::History& history) { static_cast<void>(history.Entries()); },
        [](plant::History& history) { history.Prune(); },
    };
    for (const auto& operation : operations) {
        const Fixture fixture;
        bool done = false;
        for (long failing = 1; !done; ++failing) {
            for (const bool comesBack : {true, false}) {
                plant::History history = fixture.project.History();
                comesBack ? FailAllocation(failing) : FailAllocationsFrom(failing);
                done = true;
                try {
                    operation(history);
                } catch (const std::bad_alloc&) {
                    done = false;
                }
                FailAllocation(0);
                ASSERT_EQ(fixture.project.Now(), fixture.live) << failing;
            }
            ASSERT_LT(failing, 20000);
        }
        fixture.Check();
    }
}

#endif

}  // namespace
