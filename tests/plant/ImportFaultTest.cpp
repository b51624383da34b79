// A table that is imported while the disk fails, the process ends or memory runs out at each point: the documents are
// the old or the new ones, and what has failed is told.
#include <functional>

#include "Endurance.h"
#include "FailingMemory.h"
#include "TableFixture.h"
#include "project/Commit.h"
#include "table/Import.h"

namespace plant {

namespace {

using kztest::Files;

class ImportFault : public kztest::TableFixture {
protected:
    ImportFault()
    {
        m_original = kztest::FilesIn(m_folder.Path());
        m_old = Documents();
        EXPECT_FALSE(Fails());
        m_new = Documents();
        EXPECT_EQ(m_new.size(), m_old.size() + 1) << "a document that was not there";
    }

    // Returns whether the import has told that it did not succeed.
    bool Fails()
    {
        try {
            FieldEdit edit(*m_project, FieldEdit::Unsettable::MayStay);
            const auto findings = ImportTable(*m_project, edit,
                                              "device,device.minCurrent,units.RP.scale,limits.AP.maxD\n"
                                              "zep-02,20,kilo,50\n"
                                              "\"Hall 1, \"\"A\"\"\",13,,\n"
                                              "zep-01,0,,40\n",
                                              L"plant.csv");
            if (!findings.empty() || !edit.Findings().empty())
                return true;
            EXPECT_EQ(edit.Changes().size(), 6u);
            return edit.Save("import") != Outcome::Done;
        } catch (const Refusal&) {
            return true;
        } catch (const std::bad_alloc&) {
            return true;
        }
    }

    // As before the import, in a process of its own.
    void Prepare()
    {
        m_project.reset();
        m_disk.FailAt(0);
        for (const auto& entry : std::filesystem::directory_iterator(m_folder.Path()))
            std::filesystem::remove_all(entry);
        for (const auto& [name, bytes] : m_original)
            m_folder.Write(name, bytes);
        Open();
    }

    // Arms the fault of a number and returns how many points there were, once disarmed.
    void Walk(const std::function<void(long)>& arm, const std::function<long()>& disarm, int step = 1)
    {
        long failures = 0;
        for (long number = 1;; number += step) {
            Prepare();
            arm(number);
            const bool failed = Fails();
            const long count = disarm();
            failures += failed;
            m_disk.FailAt(0);
            Open();
            const Files documents = Documents();
            ASSERT_TRUE(documents == m_old || documents == m_new) << "point " << number;
            ASSERT_TRUE(failed || documents == m_new) << "not done and not told, point " << number;
            ASSERT_FALSE(HasJournal(RealDisk(), m_folder.Path())) << "point " << number;
            if (count < number)
                break;
        }
        EXPECT_GT(failures, 5);
    }

    Files m_original;
    Files m_old;
    Files m_new;
};

long DisarmMemory()
{
    const long allocations = CountAllocations();
    FailAllocation(0);
    return allocations;
}

}  // namespace

TEST_F(ImportFault, IsOldOrNewAfterAnyOperationOfTheDiskHasFailed)
{
    Walk([this](long number) { m_disk.FailAt(number); }, [this] { return m_disk.Count(); });
}

TEST_F(ImportFault, IsOldOrNewWhereverItsProcessEnds)
{
    Walk([this](long number) { m_disk.DieAt(number); }, [this] { return m_disk.Count(); });
}

// The test run takes a sample.
TEST_F(ImportFault, IsOldOrNewWhereverMemoryRunsOut)
{
    Walk(FailAllocation, DisarmMemory, endurance::IsLong() ? 1 : 17);
}

}  // namespace plant
