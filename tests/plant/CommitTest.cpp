#include "project/Commit.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "FaultyDisk.h"
#include "ProjectFiles.h"
#include "RefusalOf.h"
#include "project/Journal.h"
#include "project/Sealed.h"
#ifndef _WIN32
#include "FailingMemory.h"
#endif

namespace plant {

namespace {

using kztest::FaultyDisk;
using kztest::Files;
using kztest::FilesIn;
using kztest::Refused;

// A project with one document that a change replaces, one that it takes out, one that it makes and one that it leaves.
class Commits : public testing::Test {
protected:
    Commits() { WriteOld(); }

    void WriteOld()
    {
        for (const auto& [name, bytes] : m_old)
            m_folder.Write(name, bytes);
        std::filesystem::remove(m_folder.Path() / "devices" / "new.xml");
    }
    void Run(Disk& disk)
    {
        const ProjectLock lock(disk, m_folder.Path());
        FinishCommit(disk, m_folder.Path(), lock);
        Commit(disk, m_folder.Path(), lock, m_change);
    }
    void Finish() { FinishCommit(RealDisk(), m_folder.Path(), ProjectLock(RealDisk(), m_folder.Path())); }
    // The documents without what a killed process leaves beside them.
    [[nodiscard]] Files Documents() const
    {
        Files files = FilesIn(m_folder.Path());
        std::erase_if(files, [](const auto& file) { return !IsDocumentName(file.first); });
        return files;
    }
    // Leaves the staged files and the journal of a process that was killed behind its journal. Returns the number of
    // the operation that it did not come to.
    long LeaveJournal()
    {
        for (long dies = 1;; ++dies) {
            FaultyDisk disk(RealDisk());
            disk.DieAt(dies);
            Refused([&] { Run(disk); });
            if (HasJournal(RealDisk(), m_folder.Path())) {
                std::filesystem::remove(m_folder.Path() / "project.lock");
                return dies;
            }
            if (dies == 1000)
                throw std::logic_error("there is never a journal");
        }
    }
    [[nodiscard]] std::string Journal() const { return m_folder.Read("commit/journal"); }
    // What finishing refuses with this journal; nothing may have been touched then.
    unsigned RefusedJournal(const std::string& bytes)
    {
        m_folder.Write("commit/journal", bytes);
        const Files before = FilesIn(m_folder.Path());
        const unsigned text = Refused([this] { Finish(); });
        EXPECT_EQ(FilesIn(m_folder.Path()), before);
        return text;
    }

    const Files m_old{{"main.xml", "old main"}, {"devices/gone.xml", "gone"}, {"devices/stays.xml", "stays"}};
    const Files m_new{{"main.xml", "new main"}, {"devices/new.xml", "new"}, {"devices/stays.xml", "stays"}};
    const Change m_change{{"main.xml", "new main"}, {"devices/new.xml", "new"}, {"devices/gone.xml", std::nullopt}};
    kztest::TemporaryFolder m_folder;
};

TEST_F(Commits, CarryOutEveryDocumentAndLeaveNothingBesides)
{
    Run(RealDisk());
    EXPECT_EQ(FilesIn(m_folder.Path()), m_new);
    EXPECT_FALSE(std::filesystem::exists(m_folder.Path() / "commit"));
}

TEST_F(Commits, MakeTheFolderOfTheFirstDeviceDocument)
{
    std::filesystem::remove_all(m_folder.Path() / "devices");
    const ProjectLock lock(RealDisk(), m_folder.Path());
    Commit(RealDisk(), m_folder.Path(), lock, {{"devices/first.xml", "first"}});
    EXPECT_EQ(m_folder.Read("devices/first.xml"), "first");
}

TEST_F(Commits, KilledAtAnyOperationLeaveTheOldStateOrAreFinishedAtTheNextOpening)
{
    long newStates = 0;
    for (long dies = 1;; ++dies) {
        WriteOld();
        FaultyDisk disk(RealDisk());
        disk.DieAt(dies);
        const bool done = Refused([&] { Run(disk); }) == 0;
        const bool hasJournal = HasJournal(RealDisk(), m_folder.Path());
        Finish();
        const bool isNew = Documents() == m_new;
        EXPECT_TRUE(isNew || Documents() == m_old) << "killed at operation " << dies;
        EXPECT_EQ(isNew, done || hasJournal) << "killed at operation " << dies;
        EXPECT_FALSE(HasJournal(RealDisk(), m_folder.Path()));
        newStates += isNew;
        if (disk.Count() < dies)
            break;
    }
    EXPECT_GT(newStates, 3);
}

TEST_F(Commits, WithAnyOperationFailingAreTakenBackAndRefusedOrComplete)
{
    for (long failing = 1;; ++failing) {
        WriteOld();
        FaultyDisk disk(RealDisk());
        disk.FailAt(failing);
        const bool done = Refused([&] { Run(disk); }) == 0;
        EXPECT_EQ(Documents(), done ? m_new : m_old) << "operation " << failing << " failed";
        EXPECT_TRUE(done || !HasJournal(RealDisk(), m_folder.Path())) << "operation " << failing << " failed";
        Finish();
        EXPECT_EQ(Documents(), done ? m_new : m_old) << "operation " << failing << " failed";
        if (disk.Count() < failing)
            break;
    }
}

// The way back is walked by a process that may be killed too.
TEST_F(Commits, KilledWhileTheyAreTakenBackLeaveNoMixture)
{
    const long first = LeaveJournal();
    Finish();
    for (long failing = first;; ++failing) {
        bool everDied = false;
        for (long dies = failing + 1;; ++dies) {
            WriteOld();
            FaultyDisk inner(RealDisk());
            inner.FailAt(failing);
            FaultyDisk disk(static_cast<Disk&>(inner));
            disk.DieAt(dies);
            Refused([&] { Run(disk); });
            Finish();
            EXPECT_TRUE(Documents() == m_old || Documents() == m_new)
                << "operation " << failing << " failed, killed at " << dies;
            if (disk.Count() < dies)
                break;
            everDied = true;
        }
        if (!everDied)
            break;
    }
}

TEST_F(Commits, FinishWhatAKilledProcessHasLeftBeforeTheyBegin)
{
    LeaveJournal();
    const ProjectLock lock(RealDisk(), m_folder.Path());
    FinishCommit(RealDisk(), m_folder.Path(), lock);
    Commit(RealDisk(), m_folder.Path(), lock, {{"devices/more.xml", "more"}});
    Files expected = m_new;
    expected["devices/more.xml"] = "more";
    EXPECT_EQ(Documents(), expected);
}

TEST_F(Commits, RefuseAJournalThatIsCutOff)
{
    LeaveJournal();
    const std::string journal = Journal();
    for (std::size_t length = 0; length < journal.size(); ++length)
        EXPECT_EQ(RefusedJournal(journal.substr(0, length)), IDS_PLANT_DAMAGED) << length;
}

TEST_F(Commits, RefuseAJournalOfWhichAnyByteWasChanged)
{
    LeaveJournal();
    const std::string journal = Journal();
    for (std::size_t place = 0; place < journal.size(); ++place) {
        std::string changed = journal;
        changed[place] = static_cast<char>(changed[place] ^ 1);
        EXPECT_EQ(RefusedJournal(changed), IDS_PLANT_DAMAGED) << place;
    }
}

TEST_F(Commits, RefuseAJournalThatNamesAnythingButDocuments)
{
    LeaveJournal();
    for (const char* name :
         {"../main.xml", "devices/../../x.xml", "devices/a/b.xml", "devices\\x.xml", "/etc/x.xml", "C:x.xml",
          "main.xml:s", "devices/CON.xml", "devices/lpt1.a.xml", "devices/x.txt", "history/entry", "history/1/main.xml",
          "history/1/entry", "history/000000/entry", "history/000001/entry/x", ""})
        EXPECT_EQ(RefusedJournal(WriteJournal({{name, "1", 8, HashOf("new main")}})), IDS_PLANT_STRANGE_NAME) << name;
    for (const char* staged : {"../1", "journal", "1.old.old", "x", ".old"})
        EXPECT_EQ(RefusedJournal(WriteJournal({{"main.xml", staged, 8, HashOf("new main")}})), IDS_PLANT_STRANGE_NAME)
            << staged;
}

TEST_F(Commits, RefuseAJournalWhoseStagedFileIsNotWhatItSays)
{
    LeaveJournal();
    m_folder.Write("commit/2", "not what was staged");
    EXPECT_EQ(RefusedJournal(Journal()), IDS_PLANT_DAMAGED);
}

TEST_F(Commits, RefuseAJournalOfWhichStagedFilesAreLost)
{
    LeaveJournal();
    std::filesystem::remove(m_folder.Path() / "commit" / "2");
    EXPECT_EQ(RefusedJournal(Journal()), IDS_PLANT_DAMAGED);
}

TEST_F(Commits, ForgetAJournalThatHasNothingLeftToDo)
{
    LeaveJournal();
    const std::string journal = Journal();
    Finish();
    m_folder.Write("main.xml", "changed since");
    m_folder.Write("commit/journal", WriteJournal({{"main.xml", "1", 8, HashOf("new main")}}));
    Finish();
    EXPECT_EQ(m_folder.Read("main.xml"), "changed since");
    EXPECT_FALSE(HasJournal(RealDisk(), m_folder.Path()));
}

#ifndef _WIN32
TEST_F(Commits, RefuseAJournalThatALinkWouldLeadElsewhere)
{
    LeaveJournal();
    const kztest::TemporaryFolder elsewhere;
    std::filesystem::remove_all(m_folder.Path() / "devices");
    std::filesystem::create_directory_symlink(elsewhere.Path(), m_folder.Path() / "devices");
    EXPECT_EQ(RefusedJournal(Journal()), IDS_PLANT_STRANGE_NAME);
    EXPECT_EQ(elsewhere.Count(), 0U);
}

TEST_F(Commits, WithoutMemoryAtAnyPointLeaveTheOldStateOrTheNew)
{
    for (long failing = 1;; ++failing) {
        WriteOld();
        bool done = false;
        FailAllocation(failing);
        try {
            Run(RealDisk());
            done = true;
        } catch (const std::bad_alloc&) {
        } catch (const Refusal&) {
        }
        const bool all = CountAllocations() < failing;
        FailAllocation(0);
        Finish();
        EXPECT_TRUE(Documents() == m_new || (!done && Documents() == m_old)) << "allocation " << failing;
        if (all)
            break;
    }
}
#endif

TEST_F(Commits, RefuseToReplaceAReadOnlyDocument)
{
    namespace fs = std::filesystem;
    constexpr fs::perms writing = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    fs::permissions(m_folder.Path() / "main.xml", writing, fs::perm_options::remove);
    EXPECT_EQ(Refused([this] { Run(RealDisk()); }), IDS_PLANT_FILE_READ_ONLY);
    EXPECT_EQ(FilesIn(m_folder.Path()), m_old);
}

TEST_F(Commits, RefuseToReplaceAFolder)
{
    std::filesystem::remove(m_folder.Path() / "main.xml");
    std::filesystem::create_directory(m_folder.Path() / "main.xml");
    EXPECT_EQ(Refused([this] { Run(RealDisk()); }), IDS_PLANT_FILE_IS_FOLDER);
    EXPECT_EQ(m_folder.Read("devices/gone.xml"), "gone");
}

#ifdef _WIN32
TEST_F(Commits, RefuseToReplaceADocumentThatAnotherProgramHasOpen)
{
    const KZSystemFile open = KZSystemFile::Hold(m_folder.Path() / "main.xml", KZHold::ExistingFile);
    ASSERT_TRUE(open.IsOpen());
    EXPECT_EQ(Refused([this] { Run(RealDisk()); }), IDS_PLANT_FILE_IN_USE);
    EXPECT_EQ(m_folder.Read("devices/gone.xml"), "gone");
    EXPECT_FALSE(HasJournal(RealDisk(), m_folder.Path()));
}
#endif

TEST_F(Commits, LeaveFilesOfOthersInTheirFolderAlone)
{
    m_folder.Write("commit/notes.txt", "somebody's");
    Run(RealDisk());
    EXPECT_EQ(m_folder.Read("commit/notes.txt"), "somebody's");
}

class ProjectLocks : public Commits {};

TEST_F(ProjectLocks, AreHeldByOneAtATime)
{
    const auto first = std::make_unique<ProjectLock>(RealDisk(), m_folder.Path());
    EXPECT_EQ(Refused([this] { ProjectLock(RealDisk(), m_folder.Path(), 50); }), IDS_PLANT_LOCKED);
}

TEST_F(ProjectLocks, SayThatSomebodyWaitsWhenHeWouldNoticeAndThatHeWaitsNoLonger)
{
    std::vector<bool> told;
    const auto wait = [&](int longest) {
        return Refused([&] {
            ProjectLock(RealDisk(), m_folder.Path(), longest, [&](bool isWaiting) { told.push_back(isWaiting); });
        });
    };
    EXPECT_EQ(wait(ProjectLock::LongestWait), 0U);
    EXPECT_TRUE(told.empty());
    const ProjectLock held(RealDisk(), m_folder.Path());
    EXPECT_EQ(wait(50), IDS_PLANT_LOCKED);
    EXPECT_TRUE(told.empty());
    EXPECT_EQ(wait(ProjectLock::NoticeableWait + 200), IDS_PLANT_LOCKED);
    EXPECT_EQ(told, (std::vector<bool>{true, false}));
}

TEST_F(ProjectLocks, AreFreeAgainWhenTheirOwnerEnds)
{
    ProjectLock(RealDisk(), m_folder.Path());
    EXPECT_EQ(FilesIn(m_folder.Path()), m_old) << "the lock file stays";
    EXPECT_EQ(Refused([this] { ProjectLock(RealDisk(), m_folder.Path(), 0); }), 0U);
}

TEST_F(ProjectLocks, AreTakenOverFromAProcessThatWasKilled)
{
    m_folder.Write("project.lock", "");
    EXPECT_EQ(Refused([this] { ProjectLock(RealDisk(), m_folder.Path(), 0); }), 0U);
}

}  // namespace

}  // namespace plant
