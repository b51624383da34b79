#include "project/ReplaceFile.h"

#include <gtest/gtest.h>

#include "FaultyDisk.h"
#include "ProjectFiles.h"
#include "RefusalOf.h"

namespace plant {

namespace {

using kztest::Files;
using kztest::Refused;

class ReplaceFileTest : public testing::Test {
protected:
    [[nodiscard]] Path File() const { return m_folder.Path() / "plant.csv"; }
    [[nodiscard]] Files All() const { return kztest::FilesIn(m_folder.Path()); }
    unsigned Replace()
    {
        return Refused([this] {
            ReplaceInOneStep(m_disk, File(), "new");
            return true;
        });
    }

    kztest::TemporaryFolder m_folder;
    kztest::FaultyDisk m_disk{RealDisk()};
};

}  // namespace

TEST_F(ReplaceFileTest, WritesAFileThatIsNotThereYet)
{
    EXPECT_EQ(Replace(), 0u);
    EXPECT_EQ(All(), (Files{{"plant.csv", "new"}}));
}

TEST_F(ReplaceFileTest, WritesOverAFileAndOverWhatAKilledProcessHasLeft)
{
    m_folder.Write("plant.csv", "old");
    m_folder.Write("plant.csv." + std::to_string(KZProcessNumber()) + ".tmp", "half");
    EXPECT_EQ(Replace(), 0u);
    EXPECT_EQ(All(), (Files{{"plant.csv", "new"}}));
}

TEST_F(ReplaceFileTest, RefusesAFolderOfThatName)
{
    std::filesystem::create_directory(File());
    EXPECT_EQ(Replace(), static_cast<unsigned>(IDS_PLANT_FILE_IS_FOLDER));
    EXPECT_EQ(All(), Files{});
}

TEST_F(ReplaceFileTest, RefusesAReadOnlyFile)
{
    m_folder.Write("plant.csv", "old");
    std::filesystem::permissions(File(), std::filesystem::perms::owner_read);
    EXPECT_EQ(Replace(), static_cast<unsigned>(IDS_PLANT_FILE_READ_ONLY));
    EXPECT_EQ(All(), (Files{{"plant.csv", "old"}}));
    std::filesystem::permissions(File(), std::filesystem::perms::owner_all);
}

TEST_F(ReplaceFileTest, LeavesTheOldFileAloneWhenTheDiskFailsAtAnyPoint)
{
    m_folder.Write("plant.csv", "old");
    bool isDone = false;
    for (long failing = 1; !isDone; ++failing) {
        m_disk.FailAt(failing);
        isDone = Replace() == 0u;
        EXPECT_EQ(isDone, m_disk.Count() < failing);
        ASSERT_EQ(All(), (Files{{"plant.csv", isDone ? "new" : "old"}})) << "operation " << failing;
    }
}

}  // namespace plant
