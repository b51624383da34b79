// A project whose disk fails, whose process ends or whose memory runs out at each point of an operation: the documents
// are the old or the new ones, the failure is told, and what was not saved is still there.
#include <algorithm>
#include <functional>

#include "ProjectFixture.h"
#include "project/Commit.h"
#ifndef _WIN32
#include "Endurance.h"
#include "FailingMemory.h"
#endif

namespace plant {

namespace {

using kztest::DeviceText;
using kztest::Files;
using kztest::MainText;

struct Operation {
    const char* name;
    void (*run)(Project& project, FoundRecovery& found);
    Change (*change)();        // of the documents
    Change (*unsaved)();       // before the operation
    Change (*unsavedAfter)();  // when it has succeeded
};

void PrintTo(const Operation& operation, std::ostream* stream)
{
    *stream << operation.name;
}

Change Nothing()
{
    return {};
}
Change Unsaved()
{
    return {{"main.xml", MainText("unsaved")}, {"devices/b.xml", DeviceText("unsaved b")}};
}
Change WrittenAtOnce()
{
    return {{"devices/a.xml", DeviceText("new a")}};
}
Change Restored()
{
    return {{"main.xml", MainText("first")}, {"devices/new.xml", std::nullopt}};
}
Change Found()
{
    return {{"main.xml", MainText("found")}, {"devices/a.xml", DeviceText("found a")}};
}
Change FoundAndUnsaved()
{
    Change documents = Found();
    documents.merge(Unsaved());
    return documents;
}

void RunWriteDocument(Project& project, FoundRecovery&)
{
    XmlDocument document(L"device");
    project.ReadDeviceDocument("devices/a.xml", document);
    document.Root()->SetValue(L"note", L"new a");
    project.WriteDocument("devices/a.xml", document, "window");
}

const Operation Operations[] = {
    {"Save", [](Project& project, FoundRecovery&) { project.Save("window"); }, Unsaved, Unsaved, Nothing},
    {"WriteDocument", RunWriteDocument, WrittenAtOnce, Unsaved, Unsaved},
    {"Restore", [](Project& project, FoundRecovery&) { project.Restore(1, false); }, Restored, Unsaved, Nothing},
    {"Recover", [](Project& project, FoundRecovery& found) { project.Recover(found); }, Nothing, Unsaved,
     FoundAndUnsaved},
    {"Protect", [](Project& project, FoundRecovery&) { project.Protect(); }, Nothing, Unsaved, Unsaved},
    {"TakeTheirs",
     [](Project& project, FoundRecovery&) {
         project.TakeTheirs({"main.xml", "devices/b.xml"});
     },
     Nothing, Unsaved, Nothing},
};

class FaultyProject : public kztest::ProjectFixture, public testing::WithParamInterface<Operation> {
protected:
    FaultyProject()
    {
        m_folder.Write("main.xml", MainText("first"));
        Open();
        ChangeMain(L"old");
        m_project->Save("window");
        NoteOf("devices/new.xml");
        WriteDevice("devices/new.xml", "new");
        m_project.reset();
        m_original = kztest::FilesIn(m_folder.Path());
        m_old = Documents();
        m_new = m_old;
        for (const auto& [name, bytes] : GetParam().change()) {
            m_new.erase(name);
            if (bytes)
                m_new[name] = *bytes;
        }
    }

    // A project with unsaved changes of its own, beside what a process that is gone has left.
    void Prepare()
    {
        m_found = {};
        m_project.reset();
        for (const auto& entry : std::filesystem::directory_iterator(m_folder.Path()))
            std::filesystem::remove_all(entry);
        for (const auto& [name, bytes] : m_original)
            m_folder.Write(name, bytes);
        LeaveUnsaved(GetParam().unsaved());
        m_disk.FailAt(0);
        Open();
        RecoverAll();
        LeaveUnsaved(Found());
        m_found = m_project->FindUnsaved();
        m_user.told = 0;
    }
    // Returns whether the operation has told that it did not succeed.
    bool Fails()
    {
        try {
            GetParam().run(*m_project, m_found.found.at(0));
            return false;
        } catch (const Refusal&) {
            return true;
        } catch (const std::bad_alloc&) {
            return true;
        }
    }
    // Whether one of them holds all of what is wanted.
    static bool OneHolds(const std::vector<Change>& all, const Change& wanted)
    {
        return wanted.empty() || std::any_of(all.begin(), all.end(), [&](const Change& documents) {
                   return std::includes(documents.begin(), documents.end(), wanted.begin(), wanted.end());
               });
    }
    // What can still be had of unsaved changes: of this process's, and of those found before.
    std::vector<Change> Recoverable()
    {
        m_found = {};
        m_project.reset();
        std::vector<Change> all;
        for (FoundRecovery& found : FindRecoveries(RealDisk(), m_folder.Path()).found) {
            all.push_back(std::move(found.unsaved.documents));
            plant::Discard(found);
        }
        return all;
    }

    // After the end of the process.
    void CheckReopened(bool failed)
    {
        const std::vector<Change> recoverable = Recoverable();
        m_disk.FailAt(0);
        Open();
        const Files documents = Documents();
        EXPECT_TRUE(documents == m_old || documents == m_new);
        EXPECT_TRUE(failed || documents == m_new) << "not done, and not told";
        EXPECT_FALSE(HasJournal(RealDisk(), m_folder.Path()));
        const Change wanted = documents == m_new && !failed ? GetParam().unsavedAfter() : GetParam().unsaved();
        // What a save has carried out, and not told of any more, is not unsaved.
        const bool isSaved = documents == m_new && m_new != m_old;
        EXPECT_TRUE(OneHolds(recoverable, wanted) || isSaved || m_user.told != 0) << "unsaved changes are lost";
        for (const HistoryEntry& entry : m_project->Entries())
            EXPECT_NO_THROW(static_cast<void>(m_project->Restore(entry.number, true)));
    }
    // In the same process, when there is nothing in the way any more.
    void CheckTriedAgain(bool failed)
    {
        const bool succeeds = !failed || !m_found.found.at(0).held || !Fails();
        EXPECT_TRUE(succeeds);
        EXPECT_EQ(Documents(), m_new);
        EXPECT_EQ(m_user.asked.size(), 0U) << "a question about what nobody else has changed";
        EXPECT_EQ(m_project->IsDirty(), !GetParam().unsavedAfter().empty());
        m_project->Protect();
        m_found = {};
        EXPECT_TRUE(OneHolds(Recoverable(), GetParam().unsavedAfter()));
        Open();
        EXPECT_EQ(Documents(), m_new);
    }

    // Arms the fault of a number and returns how many points there were, once disarmed.
    void Walk(const std::function<void(long)>& arm, const std::function<long()>& disarm, bool sameProcess, int step = 1)
    {
        long failures = 0;
        for (long number = 1;; number += step) {
            Prepare();
            ASSERT_TRUE(m_found.found.size() == 1 && m_project->IsDirty());
            arm(number);
            const bool failed = Fails();
            const long count = disarm();
            failures += failed;
            sameProcess ? CheckTriedAgain(failed) : CheckReopened(failed);
            ASSERT_FALSE(HasFailure()) << GetParam().name << ", point " << number << (failed ? ", failed" : ", done");
            if (count < number)
                break;
            ASSERT_LT(number, 20'000);
        }
        EXPECT_GT(failures, 0);
    }

    Files m_original;
    Files m_old;
    Files m_new;
    Recoveries m_found;
};

INSTANTIATE_TEST_SUITE_P(, FaultyProject, testing::ValuesIn(Operations),
                         [](const auto& instance) { return std::string(instance.param.name); });

TEST_P(FaultyProject, IsOldOrNewAfterAnyOperationOfTheDiskHasFailed)
{
    const auto arm = [this](long number) { m_disk.FailAt(number); };
    const auto count = [this] { return m_disk.Count(); };
    Walk(arm, count, false);
}

TEST_P(FaultyProject, GoesOnAfterAnyOperationOfTheDiskHasFailed)
{
    const auto arm = [this](long number) { m_disk.FailAt(number); };
    const auto count = [this] {
        const long operations = m_disk.Count();
        m_disk.FailAt(0);
        return operations;
    };
    Walk(arm, count, true);
}

TEST_P(FaultyProject, IsOldOrNewWhereverItsProcessEnds)
{
    const auto arm = [this](long number) { m_disk.DieAt(number); };
    const auto count = [this] { return m_disk.Count(); };
    Walk(arm, count, false);
}

#ifndef _WIN32

// The test run takes a sample: a full walk takes a minute and more.
int Step()
{
    return endurance::IsLong() ? 1 : 23;
}

long DisarmMemory()
{
    const long allocations = CountAllocations();
    FailAllocation(0);
    return allocations;
}

TEST_P(FaultyProject, IsOldOrNewWhereverMemoryRunsOut)
{
    Walk(FailAllocation, DisarmMemory, false, Step());
}

TEST_P(FaultyProject, GoesOnWhereverMemoryRanOut)
{
    Walk(FailAllocation, DisarmMemory, true, Step());
}

TEST_P(FaultyProject, GoesOnWhereverMemoryRanOutForGood)
{
    Walk(FailAllocationsFrom, DisarmMemory, true, Step());
}

#endif

// Nobody is told: what is left is offered at the next opening.
class DiscardedProject : public kztest::ProjectFixture {};

TEST_F(DiscardedProject, LeavesItsFileOrNoneOnADiskThatFails)
{
    for (const long failing : {0L, 1L}) {
        Open();
        ChangeMain(L"new");
        m_disk.FailAt(failing);
        m_project->Discard();
        m_disk.FailAt(0);
        const Change left = Protected();
        EXPECT_EQ(left.size(), failing == 0 ? 0U : 1U);
    }
}

}  // namespace

}  // namespace plant
