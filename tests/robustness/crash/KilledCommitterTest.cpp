// A process that is killed while it saves several documents leaves all of the old ones or, once the project has been
// opened again, all of the new ones.
#include <gtest/gtest.h>

#include "CommittedChanges.h"
#include "Endurance.h"
#include "Random.h"
#include "TemporaryFolder.h"
#include "Workers.h"
#include "project/Commit.h"

namespace {

using plant::RealDisk;

class KilledCommitter : public testing::Test {
protected:
    // Time for two or three commits on this machine, in microseconds: most processes are to die in the middle of one.
    int LongestLife()
    {
        constexpr int sample = 1'500'000;
        const long told = WorkAndDie(crash::ChangeCommitter, m_folder.Path(), 0, sample);
        Open();
        Find(told + 1);
        return static_cast<int>(2.5 * sample / static_cast<double>(told + 1));
    }

    // What opening the project does. Returns whether there was something to carry out.
    bool Open()
    {
        const bool left = plant::HasJournal(RealDisk(), m_folder.Path());
        const plant::ProjectLock lock(RealDisk(), m_folder.Path());
        plant::FinishCommit(RealDisk(), m_folder.Path(), lock);
        return left;
    }

    // Which change the documents have come to, of the last one known and those after it up to the given one.
    long Find(long highest)
    {
        const Documents found = DocumentsIn(RealDisk(), m_folder.Path());
        while (found != m_documents && m_number < highest) {
            m_before = m_documents;
            Apply(CommittedChange(++m_number, m_documents), m_documents);
        }
        EXPECT_EQ(found, m_documents) << "a state that nobody has committed";
        return m_number;
    }

    // The newest entry is that of the last change and brings back what was before it.
    void ExpectHistory(long number)
    {
        plant::History history(RealDisk(), m_folder.Path(), CommittedHistory);
        const auto entries = history.Entries();
        ASSERT_FALSE(entries.empty());
        EXPECT_EQ(entries.back().number, number);
        Documents restored = m_documents;
        Apply(history.Restoring(static_cast<int>(number)), restored);
        EXPECT_EQ(restored, m_before);
    }

    kztest::TemporaryFolder m_folder;
    Documents m_documents;
    Documents m_before;
    long m_number = 0;
};

TEST_F(KilledCommitter, LeavesAStateThatWasCommittedWholeAndIsNoOlderThanTheLastOne)
{
#ifdef _WIN32
    const long kills = endurance::Rounds(15, 500);
#else
    const long kills = endurance::Rounds(30, 10'000);
#endif
    const std::uint64_t seed = endurance::Seed();
    Random random(seed);
    const int longestLife = LongestLife();
    long carriedOut = 0;
    for (long kill = 0; kill < kills; ++kill) {
        SCOPED_TRACE("kill " + std::to_string(kill) + ", seed " + std::to_string(seed));
        const int life = random.Between(0, longestLife);
        const long told = WorkAndDie(crash::ChangeCommitter, m_folder.Path(), m_number, life);
        carriedOut += Open();
        const long number = Find(told + 1);
        ASSERT_FALSE(HasFailure());
        ASSERT_GE(number, told) << "an older state";
        if (number > 0) {
            ASSERT_NO_FATAL_FAILURE(ExpectHistory(number));
        }
        ASSERT_FALSE(HasFailure());
    }
    EXPECT_GT(m_number, kills / 20) << "too few commits for the kills";
    std::printf("%ld kills in %ld commits, %ld of which the next opening carried out; seed %llu\n", kills, m_number,
                carriedOut, static_cast<unsigned long long>(seed));
}

}  // namespace
