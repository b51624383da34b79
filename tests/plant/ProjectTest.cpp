// What a project does as long as nothing but its own process changes its files.
#include "project/Project.h"

#include <gmock/gmock.h>

#include "ProjectFixture.h"
#include "project/Commit.h"

namespace plant {

namespace {

using kztest::DeviceText;
using kztest::Files;
using kztest::MainText;
using kztest::RefusalOf;
using kztest::Refused;
using testing::ElementsAre;
using testing::IsEmpty;

class ProjectTest : public kztest::ProjectFixture {
protected:
    unsigned RefusedOpening()
    {
        return Refused([this] { Open(); });
    }
};

TEST_F(ProjectTest, OpensItsMainDocumentForTheProcess)
{
    Open();
    EXPECT_EQ(Note(), L"old");
    EXPECT_FALSE(m_project->IsDirty());
    EXPECT_EQ(m_project->Devices().size(), 1U);
    EXPECT_EQ(m_project->DeviceByName(L"Feeder 1"), 0U);
    EXPECT_EQ(m_project->Name(), Shown(m_folder.Path().filename()));
    EXPECT_EQ(KZMainCfg::ProjectFolder().View(), Shown(m_project->Folder()));
    EXPECT_EQ(Documents().size(), 3U);
    EXPECT_EQ(m_folder.Count(), 2U) << "opening writes nothing";
}

TEST_F(ProjectTest, RefusesToOpenWhatIsMissingOrBroken)
{
    EXPECT_EQ(Refused([this] { Project(m_folder.Path() / "nowhere"); }), IDS_PLANT_NO_FOLDER);
    m_folder.Write("main.xml", "<configuration>");
    EXPECT_EQ(RefusedOpening(), IDS_PLANT_BROKEN_DOCUMENT);
    m_folder.Write("main.xml", "<configuration><devices><device/></devices></configuration>");
    EXPECT_EQ(RefusedOpening(), IDS_PLANT_DEVICE_VALUE_MISSING);
    std::filesystem::remove(m_folder.Path() / "main.xml");
    EXPECT_EQ(RefusedOpening(), IDS_PLANT_NO_MAIN);
}

TEST_F(ProjectTest, NamesTheDevicesThatThereAreWhenOneIsMissing)
{
    Open();
    const Message message = RefusalOf([this] { return m_project->DeviceByName(L"Feeder 2"); });
    EXPECT_EQ(message.text, IDS_PLANT_NO_DEVICE);
    EXPECT_THAT(message.arguments, ElementsAre(L"Feeder 2", Shown(m_folder.Path() / "main.xml"), L"Feeder 1"));
    EXPECT_EQ(Refused([this] { return m_project->DeviceByNameOrId(L"Feeder 2"); }), IDS_PLANT_NO_DEVICE);
}

TEST_F(ProjectTest, FindsADeviceByItsNameBeforeAnotherByItsDriverId)
{
    m_folder.Write("main.xml", "<configuration><devices>"
                               "<device><driverId>a</driverId><name>Feeder 1</name></device>"
                               "<device><driverId>b</driverId><name>a</name></device>"
                               "</devices></configuration>");
    Open();
    EXPECT_EQ(m_project->DeviceByNameOrId(L"Feeder 1"), 0U);
    EXPECT_EQ(m_project->DeviceByNameOrId(L"a"), 1U);
    EXPECT_EQ(m_project->DeviceByNameOrId(L"b"), 1U);
    EXPECT_EQ(Refused([this] { return m_project->DeviceByName(L"b"); }), IDS_PLANT_NO_DEVICE);
}

TEST_F(ProjectTest, CarriesOutAtItsOpeningWhatAKilledProcessHasLeft)
{
    for (long dies = 1; !HasJournal(RealDisk(), m_folder.Path()); ++dies) {
        Open();
        ChangeMain(L"new");
        m_disk.DieAt(dies);
        Refused([this] { m_project->Save("window"); });
        m_project.reset();
        m_disk.FailAt(0);
    }
    Open();
    EXPECT_EQ(Note(), L"new");
    EXPECT_FALSE(HasJournal(RealDisk(), m_folder.Path()));
    EXPECT_EQ(CountEntries(), 1U);
}

TEST_F(ProjectTest, SavesWhatIsDirty)
{
    Open();
    ChangeMain(L"new");
    EXPECT_TRUE(m_project->IsDirty());
    EXPECT_EQ(ReadMain(), MainText("old"));
    EXPECT_EQ(m_project->Save("window"), Outcome::Done);
    EXPECT_EQ(ReadMain(), MainText("new"));
    EXPECT_FALSE(m_project->IsDirty());
    const auto entries = m_project->Entries();
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries[0].cause, "window");
    EXPECT_THAT(entries[0].documents, ElementsAre("main.xml"));
}

TEST_F(ProjectTest, MakesNoEntryOfASaveThatChangesNoByte)
{
    Open();
    EXPECT_EQ(m_project->Save("window"), Outcome::Done);
    ChangeMain(L"old");
    EXPECT_EQ(m_project->Save("window"), Outcome::Done);
    EXPECT_FALSE(m_project->IsDirty());
    NoteOf("devices/a.xml");
    EXPECT_EQ(WriteDevice("devices/a.xml", "old a"), Outcome::Done);
    EXPECT_EQ(CountEntries(), 0U);
}

TEST_F(ProjectTest, WritesADeviceDocumentAtOnceAndLeavesTheRestUnsaved)
{
    Open();
    ChangeMain(L"new");
    NoteOf("devices/a.xml");
    EXPECT_EQ(WriteDevice("devices/a.xml", "new a"), Outcome::Done);
    EXPECT_EQ(m_folder.Read("devices/a.xml"), DeviceText("new a"));
    EXPECT_EQ(ReadMain(), MainText("old"));
    EXPECT_TRUE(m_project->IsDirty());
    EXPECT_EQ(Protected(), (Change{{"main.xml", MainText("new")}}));
}

TEST_F(ProjectTest, MakesTheDocumentOfADeviceThatNobodyHasSetUp)
{
    Open();
    EXPECT_EQ(NoteOf("devices/new.xml"), L"none");
    EXPECT_EQ(WriteDevice("devices/new.xml", "new"), Outcome::Done);
    EXPECT_EQ(NoteOf("devices/new.xml"), L"new");
}

TEST_F(ProjectTest, ReadsDeviceDocumentsAsTheyAreNow)
{
    m_folder.Write("devices/empty.xml", "");
    m_folder.Write("devices/broken.xml", "<device>");
    LeaveUnsaved({{"devices/a.xml", DeviceText("unsaved")}, {"devices/b.xml", std::nullopt}});
    Open();
    EXPECT_EQ(NoteOf("devices/a.xml"), L"old a");
    EXPECT_EQ(NoteOf("devices/empty.xml"), L"none");
    EXPECT_EQ(Refused([this] { NoteOf("devices/broken.xml"); }), IDS_PLANT_BROKEN_DOCUMENT);
    RecoverAll();
    EXPECT_EQ(NoteOf("devices/a.xml"), L"unsaved");
    EXPECT_EQ(NoteOf("devices/b.xml"), L"none");
}

TEST_F(ProjectTest, ProtectsTheMainDocumentAfterEveryCommit)
{
    Open();
    KZMainCfg::Get()->Root()->SetValue(L"note", L"not meant yet");
    EXPECT_THAT(Protected(), IsEmpty());
    Open();
    ChangeMain(L"first");
    ChangeMain(L"second");
    EXPECT_EQ(Protected(), (Change{{"main.xml", MainText("second")}}));
}

TEST_F(ProjectTest, NeedsNoProtectionOnceItIsSavedOrDiscarded)
{
    Open();
    ChangeMain(L"new");
    m_project->Save("window");
    EXPECT_THAT(Protected(), IsEmpty());
    Open();
    ChangeMain(L"newer");
    m_project->Discard();
    EXPECT_THAT(Protected(), IsEmpty());
}

TEST_F(ProjectTest, TellsWhatItCannotProtect)
{
    Open();
    m_disk.FailAt(1);
    ChangeMain(L"new");
    EXPECT_EQ(m_user.told, IDS_PLANT_FILE_FAILED);
    m_disk.FailAt(1);
    EXPECT_EQ(Refused([this] { m_project->Protect(); }), IDS_PLANT_FILE_FAILED);
    m_project->Protect();
    EXPECT_EQ(Protected(), (Change{{"main.xml", MainText("new")}}));
}

TEST_F(ProjectTest, TakesOverWhatWasFoundUnsaved)
{
    LeaveUnsaved({{"main.xml", MainText("found")}, {"devices/a.xml", DeviceText("found a")}});
    const Files before = Documents();
    Open();
    ChangeMain(L"mine");
    Recoveries recoveries = m_project->FindUnsaved();
    ASSERT_EQ(recoveries.found.size(), 1U);
    m_project->Recover(recoveries.found[0]);
    EXPECT_FALSE(std::filesystem::exists(recoveries.found[0].file));
    EXPECT_EQ(Note(), L"found");
    EXPECT_EQ(NoteOf("devices/a.xml"), L"found a");
    EXPECT_TRUE(m_project->IsDirty());
    EXPECT_EQ(Documents(), before);
    EXPECT_EQ(Protected().size(), 2U);
    Open();
    RecoverAll();
    EXPECT_EQ(m_project->Save("recover"), Outcome::Done);
    EXPECT_EQ(ReadMain(), MainText("found"));
    EXPECT_EQ(m_folder.Read("devices/a.xml"), DeviceText("found a"));
    EXPECT_FALSE(m_project->IsDirty());
    EXPECT_THAT(Protected(), IsEmpty());
}

TEST_F(ProjectTest, KeepsWhatIsUnsavedInOtherDocumentsThanThoseFound)
{
    LeaveUnsaved({{"devices/a.xml", DeviceText("found a")}});
    Open();
    ChangeMain(L"mine");
    RecoverAll();
    EXPECT_EQ(Note(), L"mine");
    EXPECT_EQ(Protected(), (Change{{"main.xml", MainText("mine")}, {"devices/a.xml", DeviceText("found a")}}));
}

TEST_F(ProjectTest, RefusesToTakeOverWhatIsBroken)
{
    Open();
    for (const Change& documents : {Change{{"main.xml", "<configuration>"}}, Change{{"main.xml", std::nullopt}},
                                    Change{{"main.xml", MainText("found")}, {"devices/a.xml", "<device>"}}}) {
        LeaveUnsaved(documents);
        Recoveries recoveries = m_project->FindUnsaved();
        ASSERT_EQ(recoveries.found.size(), 1U);
        EXPECT_NE(Refused([&] { m_project->Recover(recoveries.found[0]); }), 0U);
        EXPECT_EQ(Note(), L"old");
        EXPECT_FALSE(m_project->IsDirty());
        EXPECT_TRUE(std::filesystem::exists(recoveries.found[0].file));
        plant::Discard(recoveries.found[0]);
    }
}

TEST_F(ProjectTest, RestoresWhatItWas)
{
    Open();
    const Files first = Documents();
    ChangeMain(L"second");
    m_project->Save("window");
    NoteOf("devices/new.xml");
    WriteDevice("devices/new.xml", "new");
    ChangeMain(L"unsaved");
    const Change wanted{{"main.xml", MainText("old")}, {"devices/new.xml", std::nullopt}};
    EXPECT_EQ(m_project->Restore(1, true), wanted);
    EXPECT_EQ(ReadMain(), MainText("second"));
    EXPECT_EQ(Note(), L"unsaved");
    EXPECT_EQ(m_project->Restore(1, false), wanted);
    EXPECT_EQ(Documents(), first);
    EXPECT_EQ(Note(), L"old");
    EXPECT_FALSE(m_project->IsDirty());
    ASSERT_EQ(CountEntries(), 3U);
    EXPECT_EQ(m_project->Entries()[2].cause, "restore");
    m_project->Restore(3, false);
    EXPECT_EQ(Note(), L"second");
    EXPECT_EQ(m_folder.Read("devices/new.xml"), DeviceText("new"));
    EXPECT_THAT(Protected(), IsEmpty());
}

TEST_F(ProjectTest, ReadsTheMainDocumentAnewThoughTheRestoreLeavesItAsItIs)
{
    Open();
    NoteOf("devices/a.xml");
    WriteDevice("devices/a.xml", "new a");
    ChangeMain(L"unsaved");
    m_project->Restore(1, false);
    EXPECT_EQ(Note(), L"old");
    EXPECT_FALSE(m_project->IsDirty());
}

TEST_F(ProjectTest, RefusesToRestoreAMainDocumentThatCannotBeOpened)
{
    Open();
    for (const char* broken : {"<configuration>", ""}) {
        m_folder.Write("main.xml", broken);
        if (!*broken)
            std::filesystem::remove(m_folder.Path() / "main.xml");
        NoteOf("devices/a.xml");
        WriteDevice("devices/a.xml", *broken ? "new a" : "newer a");
        m_folder.Write("main.xml", MainText("mended"));
        m_project->TakeTheirs({"main.xml"});
        const Files before = Documents();
        const int number = static_cast<int>(CountEntries());
        EXPECT_EQ(Refused([&] { m_project->Restore(number, false); }), IDS_PLANT_HISTORY_BROKEN);
        EXPECT_EQ(Documents(), before);
        EXPECT_EQ(Note(), L"mended");
    }
}

TEST_F(ProjectTest, RefusesASaveWithoutHistory)
{
    m_folder.Write("history", "no folder");
    Open();
    ChangeMain(L"new");
    EXPECT_EQ(Refused([this] { m_project->Save("window"); }), IDS_PLANT_NOT_A_FOLDER);
    EXPECT_EQ(ReadMain(), MainText("old"));
    EXPECT_TRUE(m_project->IsDirty());
    std::filesystem::remove(m_folder.Path() / "history");
    EXPECT_EQ(m_project->Save("window"), Outcome::Done);
    EXPECT_EQ(ReadMain(), MainText("new"));
}

TEST_F(ProjectTest, RefusesASaveWhileAnotherProcessSaves)
{
    Open();
    ChangeMain(L"new");
    {
        const ProjectLock lock(RealDisk(), m_folder.Path());
        EXPECT_EQ(Refused([this] { m_project->Save("window"); }), IDS_PLANT_LOCKED);
        EXPECT_TRUE(m_project->IsDirty());
    }
    EXPECT_EQ(m_project->Save("window"), Outcome::Done);
}

// A folder, or a medium, on which nobody may write anything.
class ReadOnlyDisk : public kztest::FaultyDisk {
public:
    ReadOnlyDisk() : FaultyDisk(RealDisk()) {}
    std::unique_ptr<HeldFile> Hold(const Path& file, KZHold) override { Deny(file); }
    void Write(const Path& file, std::string_view) override { Deny(file); }
    void Move(const Path& from, const Path&) override { Deny(from); }
    void Link(const Path& file, const Path&) override { Deny(file); }
    void Remove(const Path& path) override { Deny(path); }
    void MakeFolder(const Path& folder) override { Deny(folder); }

private:
    [[noreturn]] static void Deny(const Path& file) { throw Refusal(IDS_PLANT_FILE_DENIED, {Shown(file), L"denied"}); }
};

TEST_F(ProjectTest, CanBeReadInAFolderThatNobodyMayWriteTo)
{
    ReadOnlyDisk disk;
    m_project.emplace(m_folder.Path(), disk);
    m_project->SetUser(&m_user);
    EXPECT_EQ(NoteOf("devices/a.xml"), L"old a");
    EXPECT_EQ(CountEntries(), 0U);
    EXPECT_EQ(m_project->Save("third"), Outcome::Done) << "there is nothing to save";
    ChangeMain(L"new");
    EXPECT_EQ(m_user.told, IDS_PLANT_FILE_DENIED);
    EXPECT_EQ(Refused([this] { m_project->Save("window"); }), IDS_PLANT_FILE_DENIED);
    EXPECT_TRUE(m_project->IsDirty());
    m_project.reset();
}

}  // namespace

}  // namespace plant
