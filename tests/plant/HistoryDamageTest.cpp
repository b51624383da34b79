// A history that somebody else has worked on: it is refused, and nothing is touched.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "HistoryProject.h"
#include "RefusalOf.h"
#include "project/Sealed.h"

namespace {

using kztest::RefusalOf;
using kztest::State;
using testing::ElementsAre;

class DamagedHistory : public testing::Test {
protected:
    DamagedHistory()
    {
        m_project.Write("main.xml", "one");
        m_project.Write("devices/a.xml", "a");
        m_project.Write("devices/b.xml", "b");
        m_project.Save({{"main.xml", "two"}});
        m_project.Save({{"main.xml", "three"}, {"devices/a.xml", "new"}});
    }

    static constexpr char Newest[] = "history/000002/entry";

    [[nodiscard]] plant::Message KeepRefused() const
    {
        return RefusalOf([&] { return m_project.History().Keep("window", {{"main.xml", "four"}}); });
    }
    [[nodiscard]] plant::Message RestoringRefused(int number) const
    {
        return RefusalOf([&] { return m_project.History().Restoring(number); });
    }
    [[nodiscard]] plant::Message EntriesRefused() const
    {
        return RefusalOf([&] { return m_project.History().Entries(); });
    }
    [[nodiscard]] std::wstring Shown(std::string_view name) const { return plant::Shown(m_project.FileOf(name)); }
    void RefusesEverything(unsigned text, std::string_view file) const
    {
        const State tree = m_project.Tree();
        for (const plant::Message& refusal : {KeepRefused(), RestoringRefused(2), EntriesRefused()}) {
            ASSERT_EQ(refusal.text, text);
            ASSERT_EQ(refusal.arguments.front(), Shown(file));
        }
        ASSERT_EQ(m_project.Tree(), tree);
    }

    kztest::HistoryProject m_project;
};

TEST_F(DamagedHistory, IsRefusedWhereAnyByteOfTheManifestIsAnother)
{
    const std::string bytes = m_project.BytesOf(Newest);
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        std::string damaged = bytes;
        damaged[at] = static_cast<char>(damaged[at] ^ 0x20);
        m_project.Write(Newest, damaged);
        ASSERT_NO_FATAL_FAILURE(RefusesEverything(IDS_PLANT_DAMAGED, Newest)) << at;
    }
}

TEST_F(DamagedHistory, IsRefusedWhereAnythingOfTheManifestIsCutOff)
{
    const std::string bytes = m_project.BytesOf(Newest);
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        m_project.Write(Newest, bytes.substr(0, length));
        ASSERT_NO_FATAL_FAILURE(RefusesEverything(IDS_PLANT_DAMAGED, Newest)) << length;
    }
}

TEST_F(DamagedHistory, IsRefusedWhereTheManifestIsOfAnotherEntry)
{
    m_project.Write(Newest, m_project.BytesOf("history/000001/entry"));
    RefusesEverything(IDS_PLANT_DAMAGED, Newest);
}

TEST_F(DamagedHistory, IsRefusedWhereTheManifestIsTooLong)
{
    std::filesystem::resize_file(m_project.FileOf(Newest), (64 << 20) + 1);
    for (const plant::Message& refusal : {KeepRefused(), RestoringRefused(2), EntriesRefused()})
        EXPECT_EQ(refusal.text, IDS_PLANT_DAMAGED);
}

TEST_F(DamagedHistory, IsRefusedWhereTheManifestIsAFolder)
{
    m_project.Remove(Newest);
    std::filesystem::create_directory(m_project.FileOf(Newest));
    RefusesEverything(IDS_PLANT_DAMAGED, Newest);
}

TEST_F(DamagedHistory, IsRefusedWhereTheManifestNamesAnotherFolder)
{
    const std::string body =
        "2\t2026-11-21T21:28:04Z\twindow\nmain.xml\n\n1\t0\t0000000000000001\tdevices/../../x.xml\n";
    m_project.Write(Newest, plant::Seal("KZHistory1", body));
    RefusesEverything(IDS_PLANT_STRANGE_NAME, Newest);
}

// Whoever takes a damaged manifest out of the history loses that entry alone.
TEST_F(DamagedHistory, DoesWithoutAnEntryWhoseManifestWasTakenOut)
{
    m_project.Save({{"main.xml", "four"}});
    const State first = m_project.Before(1);
    const State third = m_project.Before(3);
    m_project.Remove(Newest);
    EXPECT_EQ(m_project.History().Entries().size(), 2U);
    EXPECT_EQ(RestoringRefused(2).text, IDS_PLANT_HISTORY_NO_ENTRY);
    EXPECT_EQ(m_project.Before(1), first);
    EXPECT_EQ(m_project.Before(3), third);
    plant::History(plant::RealDisk(), m_project.Path(), plant::HistoryLimits{1, 1'000'000}).Prune();
    EXPECT_FALSE(m_project.Has("history/000002"));
    EXPECT_EQ(m_project.Before(3), third);
    EXPECT_EQ(m_project.Save({{"main.xml", "five"}}), 4);
}

// A save that did not take place leaves no more than the folder of the next number.
TEST_F(DamagedHistory, IsRefusedWhereTheLastManifestsAreMissing)
{
    m_project.Remove("history/000001/entry");
    m_project.Remove(Newest);
    const State tree = m_project.Tree();
    EXPECT_EQ(KeepRefused().text, IDS_PLANT_DAMAGED);
    EXPECT_THAT(KeepRefused().arguments, ElementsAre(Shown("history/000002")));
    EXPECT_EQ(m_project.Tree(), tree);
}

TEST_F(DamagedHistory, HasNoNumberBeyondTheLast)
{
    std::filesystem::rename(m_project.FileOf("history/000002"), m_project.FileOf("history/999999999"));
    const std::string body = "999999999\t2026-11-21T21:28:04Z\twindow\n\n";
    m_project.Write("history/999999999/entry", plant::Seal("KZHistory1", body));
    const State tree = m_project.Tree();
    EXPECT_EQ(KeepRefused().text, IDS_PLANT_DAMAGED);
    EXPECT_EQ(m_project.Tree(), tree);
}

TEST_F(DamagedHistory, DoesNotBringBackADocumentThatAnotherProgramHasChanged)
{
    const std::string kept = "history/000001/devices/a.xml";
    const auto refused = [&](std::string_view file) {
        const State tree = m_project.Tree();
        EXPECT_EQ(RestoringRefused(1).text, IDS_PLANT_HISTORY_CHANGED);
        EXPECT_THAT(RestoringRefused(1).arguments, ElementsAre(Shown(file)));
        EXPECT_EQ(m_project.Tree(), tree);
    };
    m_project.Write(kept, "b");
    refused(kept);
    m_project.Write(kept, "longer");
    refused(kept);
    m_project.Remove(kept);
    refused(kept);
    std::filesystem::create_directory(m_project.FileOf(kept));
    refused(kept);
    // What has not changed since is not needed from there.
    m_project.Remove(kept);
    m_project.Remove("history/000001/devices/b.xml");
    m_project.Write("devices/a.xml", "a");
    EXPECT_EQ(m_project.Before(1), (State{{"main.xml", "one"}, {"devices/a.xml", "a"}, {"devices/b.xml", "b"}}));
}

TEST_F(DamagedHistory, IsRefusedWhereItIsNoFolder)
{
    const auto refuses = [&](std::string_view path) {
        m_project.Write(path, "text");
        RefusesEverything(IDS_PLANT_NOT_A_FOLDER, path);
        m_project.Remove(path);
    };
    refuses("history/000003");
    std::filesystem::remove_all(m_project.FileOf("history"));
    refuses("history");
}

TEST_F(DamagedHistory, LeavesAloneWhatIsNotItsOwn)
{
    for (const char* name :
         {"history/notes.txt", "history/7/main.xml", "history/0000003/main.xml", "history/000003/notes.txt",
          "history/000003/devices/deep/main.xml", "history/-00003/main.xml", "history/1000000000/main.xml"})
        m_project.Write(name, "theirs");
    m_project.Write("history/000003/main.xml", "left by a save that did not take place");
    const State before = m_project.Now();
    EXPECT_EQ(m_project.Save({{"devices/a.xml", "newer"}}), 3);
    EXPECT_EQ(m_project.Before(3), before);
    for (const char* name :
         {"history/notes.txt", "history/7/main.xml", "history/0000003/main.xml", "history/000003/notes.txt",
          "history/000003/devices/deep/main.xml", "history/-00003/main.xml", "history/1000000000/main.xml"})
        EXPECT_EQ(m_project.BytesOf(name), "theirs");
    EXPECT_EQ(m_project.BytesOf("history/000003/main.xml"), "three");
}

#ifndef _WIN32

class LinkedHistory : public DamagedHistory {
protected:
    // Puts a link in the place of a folder, which is then elsewhere.
    void Link(std::string_view folder) const
    {
        const plant::Path elsewhere = m_project.FileOf("elsewhere");
        std::filesystem::rename(m_project.FileOf(folder), elsewhere);
        std::filesystem::create_directory_symlink(elsewhere, m_project.FileOf(folder));
    }
};

TEST_F(LinkedHistory, IsRefused)
{
    Link("history");
    RefusesEverything(IDS_PLANT_NOT_A_FOLDER, "history");
}

TEST_F(LinkedHistory, IsRefusedAtAnEntry)
{
    Link("history/000001");
    RefusesEverything(IDS_PLANT_NOT_A_FOLDER, "history/000001");
}

TEST_F(LinkedHistory, IsRefusedAtTheFolderOfTheNextEntry)
{
    m_project.Write("history/000003/main.xml", "text");
    Link("history/000003");
    RefusesEverything(IDS_PLANT_NOT_A_FOLDER, "history/000003");
}

TEST_F(LinkedHistory, IsRefusedAtTheDevicesOfTheNextEntry)
{
    m_project.Write("history/000003/devices/a.xml", "text");
    Link("history/000003/devices");
    const State tree = m_project.Tree();
    EXPECT_EQ(KeepRefused().text, IDS_PLANT_NOT_A_FOLDER);
    EXPECT_EQ(m_project.Tree(), tree);
}

TEST_F(LinkedHistory, IsRefusedAtTheDevicesOfAnEntry)
{
    Link("history/000001/devices");
    const State tree = m_project.Tree();
    EXPECT_EQ(RestoringRefused(1).text, IDS_PLANT_NOT_A_FOLDER);
    EXPECT_EQ(m_project.Tree(), tree);
}

TEST_F(LinkedHistory, IsRefusedAtTheManifest)
{
    std::filesystem::rename(m_project.FileOf(Newest), m_project.FileOf("elsewhere"));
    std::filesystem::create_symlink(m_project.FileOf("elsewhere"), m_project.FileOf(Newest));
    RefusesEverything(IDS_PLANT_DAMAGED, Newest);
}

TEST_F(LinkedHistory, DoesNotBringBackWhatIsBehindALink)
{
    const plant::Path kept = m_project.FileOf("history/000001/devices/a.xml");
    std::filesystem::rename(kept, m_project.FileOf("elsewhere"));
    std::filesystem::create_symlink(m_project.FileOf("elsewhere"), kept);
    EXPECT_EQ(RestoringRefused(1).text, IDS_PLANT_HISTORY_CHANGED);
}

TEST_F(LinkedHistory, RefusesASaveThatWouldReplaceALink)
{
    m_project.Write("shared.xml", "shared");
    std::filesystem::create_symlink(m_project.FileOf("shared.xml"), m_project.FileOf("devices/link.xml"));
    const State tree = m_project.Tree();
    const plant::Message refusal = RefusalOf([&] {
        return m_project.History().Keep("window", {{"devices/link.xml", "new"}});
    });
    EXPECT_EQ(refusal.text, IDS_PLANT_DOCUMENT_IS_LINK);
    EXPECT_THAT(refusal.arguments, ElementsAre(Shown("devices/link.xml")));
    EXPECT_EQ(m_project.Tree(), tree);
    // A link that stays as it is is no document, neither when it is kept nor when it is restored.
    EXPECT_EQ(m_project.Save({{"main.xml", "new"}}), 3);
    m_project.Save(m_project.History().Restoring(1));
    EXPECT_EQ(m_project.BytesOf("devices/link.xml"), "shared");
}

#endif

}  // namespace
