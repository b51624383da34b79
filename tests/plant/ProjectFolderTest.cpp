// Projects as folders: new ones, copies, and whether one can be opened.
#include "project/ProjectFolder.h"

#include <gmock/gmock.h>

#include "ProjectFixture.h"

namespace plant {

namespace {

using kztest::DeviceText;
using kztest::FilesIn;
using kztest::MainText;
using kztest::Refused;

class ProjectFolderTest : public kztest::ProjectFixture {
protected:
    [[nodiscard]] Path Other() const { return m_folder.Path() / "other"; }
};

TEST_F(ProjectFolderTest, MakesAProjectWithoutDevices)
{
    NewProject(Other());
    const Project project(Other());
    EXPECT_TRUE(project.Devices().empty());
    EXPECT_EQ(FilesIn(Other()).size(), 1u);
    EXPECT_EQ(Refused([this] { NewProject(Other()); }), IDS_PLANT_PROJECT_EXISTS);
    EXPECT_NE(Refused([this] { NewProject(m_folder.Path() / "no" / "folder"); }), 0u);
}

TEST_F(ProjectFolderTest, LeavesNothingOfAProjectThatCannotBeMade)
{
    for (long failing = 1; failing <= 4; ++failing) {
        kztest::FaultyDisk disk(RealDisk());
        disk.FailAt(failing);
        EXPECT_NE(Refused([&] { NewProject(Other(), disk); }), 0u);
        EXPECT_FALSE(std::filesystem::exists(Other())) << failing;
    }
}

TEST_F(ProjectFolderTest, SaysWhatOpeningWouldSayAndLeavesTheOpenProject)
{
    Open();
    ChangeMain(L"mine");
    EXPECT_EQ(Refused([this] { RequireOpenable(Other()); }), IDS_PLANT_NO_FOLDER);
    std::filesystem::create_directory(Other());
    EXPECT_EQ(Refused([this] { RequireOpenable(Other()); }), IDS_PLANT_NO_MAIN);
    m_folder.Write("other/main.xml", "<configuration>");
    EXPECT_EQ(Refused([this] { RequireOpenable(Other()); }), IDS_PLANT_BROKEN_DOCUMENT);
    m_folder.Write("other/main.xml", "<configuration><devices><device/></devices></configuration>");
    EXPECT_EQ(Refused([this] { RequireOpenable(Other()); }), IDS_PLANT_DEVICE_VALUE_MISSING);
    m_folder.Write("other/main.xml", MainText("theirs"));
    RequireOpenable(Other());
    EXPECT_EQ(Note(), L"mine");
}

TEST_F(ProjectFolderTest, CopiesWhatIsShown)
{
    m_folder.Write("devices/zep-01.xml", DeviceText("old"));
    Open();
    ChangeMain(L"new");
    EXPECT_EQ(m_project->Content("devices/zep-01.xml"), DeviceText("old"));
    m_project->KeepUnsaved({{"devices/zep-01.xml", DeviceText("new")}}, false);
    SaveCopy(*m_project, Other());
    EXPECT_EQ(FilesIn(Other()),
              (kztest::Files{{"main.xml", MainText("new")}, {"devices/zep-01.xml", DeviceText("new")}}));
    EXPECT_TRUE(m_project->IsDirty());
    EXPECT_EQ(ReadMain(), MainText("old"));
    EXPECT_EQ(Refused([this] { SaveCopy(*m_project, Other()); }), IDS_PLANT_PROJECT_EXISTS);
    EXPECT_EQ(Refused([this] { SaveCopy(*m_project, m_folder.Path()); }), IDS_PLANT_PROJECT_EXISTS);
}

TEST_F(ProjectFolderTest, LeavesNothingOfACopyThatFails)
{
    m_folder.Write("devices/zep-01.xml", DeviceText("old"));
    Open();
    long failures = 0;
    for (long failing = 1;; ++failing) {
        kztest::FaultyDisk disk(RealDisk());
        disk.FailAt(failing);
        if (Refused([&] { SaveCopy(*m_project, Other(), disk); }) == 0)
            break;
        ++failures;
        EXPECT_FALSE(std::filesystem::exists(Other())) << failing;
    }
    EXPECT_GT(failures, 5);
    EXPECT_EQ(FilesIn(Other()).size(), 2u);
}

}  // namespace

}  // namespace plant
