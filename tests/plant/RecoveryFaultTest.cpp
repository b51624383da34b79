// Recovery files on a disk, and in memory, that fail at any one point.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <new>

#include "FaultyDisk.h"
#include "RecoveryStates.h"
#include "TemporaryFolder.h"
#ifndef _WIN32
#include "FailingMemory.h"
#endif

namespace plant {
namespace {

using States = std::vector<Unsaved>;

States StatesIn(const kztest::TemporaryFolder& folder)
{
    States states;
    const Recoveries all = FindRecoveries(RealDisk(), folder.Path());
    EXPECT_TRUE(all.refused.empty());
    for (const FoundRecovery& found : all.found)
        states.push_back(found.unsaved);
    return states;
}

// Lets the disk fail, or die, at its first operation, its second and so on, until the operation needs no more. The
// operation has a folder of its own each time and says whether it has told of a failure.
void ForEachFailure(void (kztest::FaultyDisk::*fail)(long) noexcept,
                    const std::function<void(kztest::FaultyDisk&, const kztest::TemporaryFolder&)>& prepare,
                    const std::function<bool(kztest::FaultyDisk&, const kztest::TemporaryFolder&)>& operation,
                    const std::function<void(const kztest::TemporaryFolder&, bool)>& check)
{
    bool hasFailed = true;
    for (long failing = 1; hasFailed; ++failing) {
        ASSERT_LT(failing, 100);
        SCOPED_TRACE("operation " + std::to_string(failing));
        const kztest::TemporaryFolder folder;
        kztest::FaultyDisk disk(RealDisk());
        prepare(disk, folder);
        (disk.*fail)(failing);
        const bool isTold = operation(disk, folder);
        hasFailed = disk.Count() >= failing;
        EXPECT_EQ(isTold, hasFailed);
        disk.FailAt(0);
        check(folder, hasFailed);
    }
}

bool Fails(const std::function<void()>& operation)
{
    try {
        operation();
    } catch (const Refusal&) {
        return true;
    }
    return false;
}

void ExpectStoresToSurvive(void (kztest::FaultyDisk::*fail)(long) noexcept, long stored)
{
    std::optional<RecoveryFile> file;
    ForEachFailure(
        fail,
        [&](kztest::FaultyDisk& disk, const kztest::TemporaryFolder& folder) {
            file.emplace(disk, folder.Path());
            for (long number = 1; number <= stored; ++number)
                file->Store(StateOf(number));
        },
        [&](kztest::FaultyDisk&, const kztest::TemporaryFolder&) {
            return Fails([&] { file->Store(StateOf(stored + 1)); });
        },
        [&](const kztest::TemporaryFolder& folder, bool hasFailed) {
            file.reset();
            const States states = StatesIn(folder);
            const States older = stored > 0 ? States{StateOf(stored)} : States{};
            const States newer{StateOf(stored + 1)};
            EXPECT_TRUE(states == newer || (hasFailed && states == older));
        });
}

TEST(FailingRecovery, KeepsTheFirstStateOrNone)
{
    ExpectStoresToSurvive(&kztest::FaultyDisk::FailAt, 0);
    ExpectStoresToSurvive(&kztest::FaultyDisk::DieAt, 0);
}

TEST(FailingRecovery, KeepsTheEarlierStateOrTheNewOne)
{
    for (const long stored : {1, 2, 3}) {
        ExpectStoresToSurvive(&kztest::FaultyDisk::FailAt, stored);
        ExpectStoresToSurvive(&kztest::FaultyDisk::DieAt, stored);
    }
}

TEST(FailingRecovery, StoresAgainOnceTheDiskWorksAgain)
{
    for (long failing = 1; failing <= 6; ++failing) {
        const kztest::TemporaryFolder folder;
        kztest::FaultyDisk disk(RealDisk());
        {
            RecoveryFile file(disk, folder.Path());
            disk.FailAt(failing);
            EXPECT_TRUE(Fails([&] { file.Store(StateOf(1)); })) << failing;
            file.Store(StateOf(2));
        }
        EXPECT_EQ(StatesIn(folder), States{StateOf(2)}) << failing;
    }
}

// One that is whole, one of a stranger and one with nothing in it.
void LeaveSome(const kztest::TemporaryFolder& folder)
{
    RecoveryFile(RealDisk(), folder.Path()).Store(StateOf(1));
    folder.Write("unsaved changes 0 strange.kzrecovery", "hello");
    folder.Write("unsaved changes 0 empty.kzrecovery", "");
}

void ExpectAllStillThere(const kztest::TemporaryFolder& folder)
{
    const Recoveries all = FindRecoveries(RealDisk(), folder.Path());
    ASSERT_EQ(all.found.size(), 1U);
    EXPECT_EQ(all.found[0].unsaved, StateOf(1));
    EXPECT_EQ(all.refused.size(), 1U);
    EXPECT_EQ(folder.Read("unsaved changes 0 strange.kzrecovery"), "hello");
}

TEST(FailingRecovery, LosesNothingWhileItIsLookedFor)
{
    for (auto fail : {&kztest::FaultyDisk::FailAt, &kztest::FaultyDisk::DieAt}) {
        ForEachFailure(
            fail, [](kztest::FaultyDisk&, const kztest::TemporaryFolder& folder) { LeaveSome(folder); },
            [](kztest::FaultyDisk& disk, const kztest::TemporaryFolder& folder) {
                bool isTold = false;
                const bool fails = Fails([&] {
                    const Recoveries all = FindRecoveries(disk, folder.Path());
                    isTold = std::any_of(all.refused.begin(), all.refused.end(),
                                         [](const Message& message) { return message.text == IDS_PLANT_FILE_FAILED; });
                });
                // That the empty one could not be removed need not be told.
                return fails || isTold || exists(folder.Path() / "unsaved changes 0 empty.kzrecovery");
            },
            [](const kztest::TemporaryFolder& folder, bool) { ExpectAllStillThere(folder); });
    }
}

#ifndef _WIN32

// The same for memory. The operation is given a folder that has been prepared.
void ForEachAllocation(const std::function<void(const kztest::TemporaryFolder&)>& prepare,
                       const std::function<void(const kztest::TemporaryFolder&)>& operation,
                       const std::function<void(const kztest::TemporaryFolder&, bool)>& check)
{
    bool hasFailed = true;
    for (long number = 1; hasFailed; ++number) {
        ASSERT_LT(number, 1000);
        SCOPED_TRACE("allocation " + std::to_string(number));
        const kztest::TemporaryFolder folder;
        prepare(folder);
        bool isTold = false;
        FailAllocation(number);
        try {
            operation(folder);
        } catch (const std::bad_alloc&) {
            isTold = true;
        }
        hasFailed = CountAllocations() >= number;
        FailAllocation(0);
        EXPECT_EQ(isTold, hasFailed);
        check(folder, hasFailed);
    }
}

TEST(RecoveryWithoutMemory, KeepsTheEarlierStateOrTheNewOne)
{
    for (const long stored : {0, 1, 2}) {
        const Unsaved next = StateOf(stored + 1);
        std::optional<RecoveryFile> file;
        ForEachAllocation(
            [&](const kztest::TemporaryFolder& folder) {
                file.emplace(RealDisk(), folder.Path());
                for (long number = 1; number <= stored; ++number)
                    file->Store(StateOf(number));
            },
            [&](const kztest::TemporaryFolder&) { file->Store(next); },
            [&](const kztest::TemporaryFolder& folder, bool hasFailed) {
                if (hasFailed && stored > 0) {
                    file.reset();
                    EXPECT_EQ(StatesIn(folder), States{StateOf(stored)});
                    return;
                }
                if (hasFailed)
                    file->Store(next);
                file.reset();
                EXPECT_EQ(StatesIn(folder), States{next});
            });
    }
}

TEST(RecoveryWithoutMemory, LosesNothingWhileItIsLookedFor)
{
    ForEachAllocation(
        [](const kztest::TemporaryFolder& folder) { LeaveSome(folder); },
        [](const kztest::TemporaryFolder& folder) { const Recoveries all = FindRecoveries(RealDisk(), folder.Path()); },
        [](const kztest::TemporaryFolder& folder, bool) { ExpectAllStillThere(folder); });
}

#endif

}  // namespace
}  // namespace plant
