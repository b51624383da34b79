// What a process had changed and not saved outlives it, whenever it is killed.
#include <gtest/gtest.h>

#include "Endurance.h"
#include "Random.h"
#include "StoredChanges.h"
#include "TemporaryFolder.h"
#include "Workers.h"
#include "project/Recovery.h"

namespace {

class KilledStorer : public testing::Test {
protected:
    // Which changes were left behind, the last known ones when there were none. They are taken away.
    long TakeNewest(long last)
    {
        const bool hasFile = m_folder.Count() > 0;
        plant::Recoveries all = FindRecoveries(plant::RealDisk(), m_folder.Path());
        EXPECT_TRUE(all.refused.empty());
        EXPECT_LE(all.found.size(), 1U);
        if (all.found.empty()) {
            m_cutShort += hasFile;
            return last;
        }
        const auto number = static_cast<long>(all.found[0].unsaved.time);
        EXPECT_TRUE(all.found[0].unsaved == ChangesOf(number)) << "changes that nobody has stored";
        Discard(all.found[0]);
        return number;
    }

    kztest::TemporaryFolder m_folder;
    long m_cutShort = 0;  // kills in the middle of a store, as far as they can be told
};

TEST_F(KilledStorer, LeavesChangesThatAreNoOlderThanTheLastOnesItHasToldOf)
{
#ifdef _WIN32
    const long kills = endurance::Rounds(20, 500);
#else
    const long kills = endurance::Rounds(200, 10'000);
#endif
    const std::uint64_t seed = endurance::Seed();
    Random random(seed);
    long last = 0;
    for (long kill = 0; kill < kills; ++kill) {
        const int life = random.OneIn(4) ? random.Between(0, 1000) : random.Between(0, crash::LongestLife);
        const long told = WorkAndDie(crash::ChangeStorer, m_folder.Path(), last, life);
        const long number = TakeNewest(last);
        ASSERT_FALSE(HasFailure()) << "kill " << kill << ", seed " << seed;
        ASSERT_GE(number, told) << "older changes after kill " << kill << ", seed " << seed;
        ASSERT_LE(number, told + 1) << "changes that were not stored yet after kill " << kill << ", seed " << seed;
        ASSERT_EQ(m_folder.Count(), 0U) << "kill " << kill << ", seed " << seed;
        m_cutShort += number > told;
        last = number;
    }
    // Kills between two stores alone would prove nothing.
    EXPECT_GT(m_cutShort, 0);
    std::printf("%ld kills in %ld stores, %ld of them for certain in the middle of one; seed %llu\n", kills, last,
                m_cutShort, static_cast<unsigned long long>(seed));
}

}  // namespace
