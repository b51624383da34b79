// A random user of the main window, beside a model of what is set, saved, undone, redone and brought back.
#include <gtest/gtest.h>

#include "Endurance.h"
#include "WindowUser.h"

namespace {

TEST(RandomUser, FindsTheMainWindowShowingWhatTheModelHas)
{
    const long allTheWay = endurance::IsLong() ? 200 : 40;  // actions between two walks over all steps
    const long events = endurance::Rounds(600, 500'000);
    const std::uint64_t seed = endurance::Seed();
    EventLog log(seed);
    WindowUser user(seed, log);
    for (long action = 1; log.Count() < events; ++action) {
        const std::string difference = action % allTheWay == 0 ? user.GoAllTheWay() : user.DoSomething();
        ASSERT_EQ(difference, "") << log.Describe();
    }
    const WindowUser::Counts& done = user.Done();
    // A user who never brings a change to its end would prove little.
    EXPECT_GT(done.changes, 0);
    std::printf("%ld events, %ld changes, %ld saves, %ld restores, %ld openings, %ld copies; the slowest took %ld ms; "
                "seed %llu\n",
                log.Count(), done.changes, done.saves, done.restores, done.openings, done.copies,
                log.SlowestMilliseconds(), static_cast<unsigned long long>(seed));
}

}  // namespace
