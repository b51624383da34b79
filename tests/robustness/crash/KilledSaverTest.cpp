// A process that is killed while it saves leaves the old document or the new one, whole.
#include <gtest/gtest.h>

#include <string>

#include "Endurance.h"
#include "KZXmlDocument.h"
#include "Random.h"
#include "SavedContent.h"
#include "TemporaryFolder.h"
#include "Workers.h"

namespace {

TEST(KilledSaver, LeavesAWholeDocumentThatIsNoOlderThanTheLastOne)
{
    const kztest::TemporaryFolder folder;
    const std::filesystem::path file = folder.Write("main.xml", ContentOf(1));
    const long kills = endurance::Rounds(40, 2000);
    const std::uint64_t seed = endurance::Seed();
    Random random(seed);
    long last = 1;
    for (long kill = 0; kill < kills; ++kill) {
        const long saved = WorkAndDie(crash::DocumentSaver, file, last, random.Between(0, crash::LongestLife));
        const std::string text = kztest::BytesOf(file);
        const long number = NumberOf(text);
        ASSERT_EQ(text, ContentOf(number)) << "torn after kill " << kill << ", seed " << seed;
        ASSERT_GE(number, saved) << "an older document after kill " << kill << ", seed " << seed;
        last = number;
    }
    // Kills between two saves alone would prove nothing: some must have left the file that was being written.
    const std::size_t leftovers = folder.Count() - 1;
    EXPECT_GT(leftovers, 0U);
    std::printf("%ld kills in %ld saves, %zu of them left a temporary file; seed %llu\n", kills, last, leftovers,
                static_cast<unsigned long long>(seed));

    XmlDocument document(L"configuration");
    EXPECT_TRUE(document.Load(file));
    EXPECT_TRUE(document.Save(file)) << "what is left over must not stand in the way";
}

}  // namespace
