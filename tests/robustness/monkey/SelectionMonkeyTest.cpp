// A random user of the selection dialog.
#include <gtest/gtest.h>

#include <algorithm>

#include "Endurance.h"
#include "SelectionSession.h"

namespace {

TEST(RandomUser, FindsTheSelectionRulesKeptWhateverHeClicks)
{
    const long events = endurance::Rounds(2500, 500'000);
    const std::uint64_t seed = endurance::Seed();
    ZepProject project;
    Random random(seed);
    EventLog log(seed);
    long sessions = 0;
    long refusals = 0;
    while (log.Count() < events) {
        SelectionSession session(project, random, log, std::min(400L, events - log.Count()));
        const std::string difference = session.Run();
        ASSERT_EQ(difference, "") << log.Describe();
        AfxGetApp()->OnIdle(0);
        ++sessions;
        refusals += session.Refusals();
    }
    // A user who never meets the maximum would prove little.
    EXPECT_GT(refusals, events / 500);
    std::printf("%ld events in %ld dialogs, %ld refused; the slowest took %ld ms; seed %llu\n", log.Count(), sessions,
                refusals, log.SlowestMilliseconds(), static_cast<unsigned long long>(seed));
}

}  // namespace
