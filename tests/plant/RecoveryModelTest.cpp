// Random states, stored on a disk that fails at times, beside a model of what must be found.
#include <gtest/gtest.h>

#include "MemoryDisk.h"
#include "Random.h"
#include "RecoveryStates.h"

namespace plant {
namespace {

constexpr std::size_t LongestDocument = 30'000;

Unsaved RandomState(Random& random)
{
    Unsaved unsaved;
    unsaved.time = static_cast<std::int64_t>(random.Below(std::size_t{1} << 60));
    const std::size_t count = random.Below(5);
    for (std::size_t number = 0; number < count; ++number) {
        const std::string name = "devices/" + std::to_string(random.Below(9)) + ".xml";
        std::optional<std::string>& bytes = unsaved.documents[name];
        // Long ones and short ones in turn, so that states grow and shrink.
        const std::size_t longest = random.OneIn(2) ? 50 : LongestDocument;
        if (!random.OneIn(4))
            bytes = std::string(random.Below(longest + 1), static_cast<char>('a' + random.Below(26)));
        unsaved.before[name] = random.OneIn(3) ? std::nullopt : std::optional(random.Next());
    }
    return unsaved;
}

TEST(RandomStates, AreFoundAsTheyWereStoredLast)
{
    constexpr int steps = 10'000;
    Random random(11);
    kztest::MemoryDisk memory;
    kztest::FaultyDisk disk(static_cast<Disk&>(memory));
    RecoveryFile file(disk, "");
    std::optional<Unsaved> model;
    int failures = 0;
    std::size_t largest = 0;
    for (int step = 0; step < steps; ++step) {
        SCOPED_TRACE("step " + std::to_string(step));
        if (random.OneIn(50)) {
            file.Remove();
            model.reset();
        }
        const Unsaved state = RandomState(random);
        // A first store asks the disk for six operations, a later one for two.
        disk.FailAt(random.OneIn(4) ? 1 + static_cast<long>(random.Below(6)) : 0);
        bool isStored = true;
        try {
            file.Store(state);
        } catch (const Refusal&) {
            isStored = false;
            ++failures;
        }
        const std::optional<Unsaved> found = ReadRecovery(memory.file, "file");
        ASSERT_TRUE(found == state || (!isStored && found == model));
        ASSERT_TRUE(isStored || !model || found == model) << "what was stored before is still there";
        model = found;
        largest = std::max(largest, memory.file.size());
    }
    EXPECT_GT(failures, steps / 50);
    constexpr std::size_t longestState = 4 * (LongestDocument + 100);
    EXPECT_LT(largest, RecoveryData + 3 * longestState) << "the place of old states is used again";
}

}  // namespace
}  // namespace plant
