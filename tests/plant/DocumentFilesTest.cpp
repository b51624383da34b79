#include "project/DocumentFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "RefusalOf.h"
#include "TemporaryFolder.h"
#include "project/Disk.h"

namespace {

using plant::DocumentFilesIn;
using testing::ElementsAre;
using testing::IsEmpty;

class DocumentFilesTest : public testing::Test {
protected:
    [[nodiscard]] std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const auto& [name, file] : DocumentFilesIn(plant::RealDisk(), m_folder.Path()))
            names.push_back(name);
        return names;
    }

    kztest::TemporaryFolder m_folder;
};

TEST_F(DocumentFilesTest, AreNoneInAFolderThatIsNotThere)
{
    EXPECT_THAT(DocumentFilesIn(plant::RealDisk(), m_folder.Path() / "none"), IsEmpty());
}

TEST_F(DocumentFilesTest, AreTheMainDocumentAndThoseOfTheDevices)
{
    for (const char* name : {"main.xml", "other.xml", "main.xml.bak", "project.lock", "history/000001/main.xml",
                             "devices/a.xml", "devices/b 1.xml", "devices/.xml", "devices/c.txt", "devices/deep/d.xml"})
        m_folder.Write(name, "text");
    std::filesystem::create_directory(m_folder.Path() / "devices/folder.xml");
    EXPECT_THAT(Names(), ElementsAre("devices/a.xml", "devices/b 1.xml", "main.xml"));
}

TEST_F(DocumentFilesTest, HaveSizeAndTime)
{
    m_folder.Write("devices/a.xml", "12345");
    const auto files = DocumentFilesIn(plant::RealDisk(), m_folder.Path());
    ASSERT_EQ(files.size(), 1U);
    const KZFileEntry& file = files.begin()->second;
    EXPECT_EQ(file.kind, KZFileEntry::Kind::File);
    EXPECT_EQ(file.size, 5U);
    constexpr std::int64_t minute = 600'000'000;
    EXPECT_NEAR(static_cast<double>(file.time), static_cast<double>(plant::RealDisk().Now()), minute);
}

TEST_F(DocumentFilesTest, MayHaveAnyName)
{
    m_folder.Write(plant::FileOf("", "devices/Z\u00FCrich \u4E09.xml"), "text");
    EXPECT_THAT(Names(), ElementsAre("devices/Z\u00FCrich \u4E09.xml"));
}

#ifdef _WIN32

// Whoever opens "main.xml" opens "MAIN.XML" there.
TEST_F(DocumentFilesTest, HaveTheDocumentsNamesHoweverTheyAreSpelled)
{
    m_folder.Write("MAIN.XML", "text");
    m_folder.Write("Devices/Zep-01.Xml", "text");
    EXPECT_THAT(Names(), ElementsAre("devices/Zep-01.xml", "main.xml"));
    EXPECT_TRUE(DocumentFilesIn(plant::RealDisk(), m_folder.Path()).contains("devices/ZEP-01.xml"));
}

#else

TEST_F(DocumentFilesTest, AreToldApartByTheirSpelling)
{
    for (const char* name : {"MAIN.XML", "devices/a.xml", "devices/A.xml", "devices/b.XML"})
        m_folder.Write(name, "text");
    EXPECT_THAT(Names(), ElementsAre("devices/A.xml", "devices/a.xml"));
}

TEST_F(DocumentFilesTest, MayBeLinks)
{
    m_folder.Write("other", "text");
    std::filesystem::create_symlink("other", m_folder.Path() / "main.xml");
    const auto files = DocumentFilesIn(plant::RealDisk(), m_folder.Path());
    ASSERT_EQ(files.size(), 1U);
    EXPECT_EQ(files.begin()->second.kind, KZFileEntry::Kind::Other);
}

TEST_F(DocumentFilesTest, AreNotLookedForBehindALink)
{
    m_folder.Write("elsewhere/a.xml", "text");
    std::filesystem::create_symlink("elsewhere", m_folder.Path() / "devices");
    const plant::Message refusal = kztest::RefusalOf([&] { return Names(); });
    EXPECT_EQ(refusal.text, IDS_PLANT_NOT_A_FOLDER);
    EXPECT_THAT(refusal.arguments, ElementsAre(plant::Shown(m_folder.Path() / "devices")));
}

#endif

}  // namespace
