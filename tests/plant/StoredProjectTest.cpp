#include "project/StoredProject.h"

#include "ProjectFixture.h"

namespace plant {

namespace {

using kztest::DeviceText;
using kztest::FilesIn;
using kztest::MainText;
using kztest::RefusalOf;
using kztest::Refused;

class StoredProjectTest : public kztest::ProjectFixture {
protected:
    [[nodiscard]] StoredProject Stored() { return StoredProject(m_folder.Path(), m_disk); }

    XmlDocument m_main{L"configuration"};
    XmlDocument m_device{L"device"};
};

TEST_F(StoredProjectTest, ReadsWhatTheFilesHoldAndWritesNothing)
{
    const auto before = FilesIn(m_folder.Path());
    const StoredProject stored = Stored();
    stored.ReadMain(m_main);
    EXPECT_STREQ(m_main.Root()->Value(L"note", L""), L"old");
    EXPECT_TRUE(stored.ReadDevice("devices/a.xml", m_device));
    EXPECT_STREQ(m_device.Root()->Value(L"note", L""), L"old a");
    EXPECT_EQ(FilesIn(m_folder.Path()), before);
}

TEST_F(StoredProjectTest, StandsBesideAnOpenProject)
{
    Open();
    ChangeMain(L"not saved");
    const kztest::TemporaryFolder other;
    other.Write("main.xml", MainText("other"));
    StoredProject(other.Path()).ReadMain(m_main);
    EXPECT_STREQ(m_main.Root()->Value(L"note", L""), L"other");
    Stored().ReadMain(m_main);
    EXPECT_STREQ(m_main.Root()->Value(L"note", L""), L"old");
    EXPECT_EQ(Note(), L"not saved");
}

TEST_F(StoredProjectTest, LeavesTheDocumentOfADeviceThatNobodyHasSetUp)
{
    m_folder.Write("devices/empty.xml", "");
    EXPECT_TRUE(Stored().ReadDevice("devices/a.xml", m_device));
    for (const char* name : {"devices/empty.xml", "devices/none.xml"}) {
        EXPECT_FALSE(Stored().ReadDevice(name, m_device)) << name;
        EXPECT_STREQ(m_device.Root()->Value(L"note", L""), L"old a") << name;
    }
}

TEST_F(StoredProjectTest, RefusesWhatIsMissingOrBroken)
{
    EXPECT_EQ(Refused([this] { return StoredProject(m_folder.Path() / "nowhere", m_disk); }), IDS_PLANT_NO_FOLDER);
    m_folder.Write("devices/a.xml", "<device>\n<note>");
    const Message broken = RefusalOf([this] { return Stored().ReadDevice("devices/a.xml", m_device); });
    EXPECT_EQ(broken.text, IDS_PLANT_BROKEN_DOCUMENT);
    ASSERT_EQ(broken.arguments.size(), 1U);
    EXPECT_NE(broken.arguments[0].find(L"a.xml"), std::wstring::npos);

    const auto readMain = [this] { Stored().ReadMain(m_main); };
    m_folder.Write("main.xml", "<device/>");
    EXPECT_EQ(Refused(readMain), IDS_PLANT_BROKEN_DOCUMENT);
    std::filesystem::remove(m_folder.Path() / "main.xml");
    EXPECT_EQ(Refused(readMain), IDS_PLANT_NO_MAIN);
}

TEST_F(StoredProjectTest, RefusesAProjectWhoseSaveWasInterrupted)
{
    m_folder.Write("commit/journal", "anything");
    EXPECT_EQ(Refused([this] { return Stored(); }), IDS_PLANT_SAVE_UNFINISHED);
}

}  // namespace

}  // namespace plant
