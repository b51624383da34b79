// Checking the open project in slices, beside the check of its files.
#include "check/ProjectChecker.h"

#include <gmock/gmock.h>

#include "KZMainCfg.h"
#include "PlantOfFilters.h"
#include "changes/DeviceEdit.h"
#include "changes/UndoList.h"
#include "project/ChosenVariables.h"

namespace plant {

namespace {

using std::chrono::milliseconds;

class ProjectCheckerTest : public kztest::PlantOfFilters {
protected:
    ProjectCheckerTest()
    {
        WriteDevices({{"zep-1", "Feeder 1"}, {"xyz-2", "Meter 2", "XYZ"}, {"zep-3", "Feeder 3"}},
                     "<viewSetups><viewSetup><driverId>gone</driverId></viewSetup><viewSetup><driverId>zep-3</driverId>"
                     "<check><var>PF</var><maxW>7</maxW></check></viewSetup></viewSetups>");
        WriteInformation(m_folder, "zep-1", "<minCurrent>x</minCurrent>");
        m_folder.Write("devices/zep-3.xml", "<device>");
        m_folder.Write("devices/stray.xml", "<device/>");
        Opened();
        m_undo.emplace(*m_project);
        m_checker.emplace(*m_project);
    }
    void CheckAll()
    {
        while (m_checker->Work(milliseconds(1000))) {
        }
        EXPECT_TRUE(m_checker->IsComplete());
        EXPECT_EQ(m_checker->Percent(), 100);
    }
    void Change(const std::function<void()>& change)
    {
        const std::vector<KZBasicString> ids{L"zep-1", L"xyz-2"};
        EXPECT_TRUE(m_undo->Do({}, ids, change));
        m_checker->Restart({.driverIds = ids});
    }
    // Saved, the project has the same findings.
    void ExpectTheSameAsOfTheFiles()
    {
        CheckAll();
        const Findings findings = m_checker->All();
        EXPECT_FALSE(findings.empty());
        m_project->Save("window");
        EXPECT_EQ(findings, CheckProject(StoredProject(m_folder.Path()), {}));
    }

    std::optional<UndoList> m_undo;
    std::optional<ProjectChecker> m_checker;
};

TEST_F(ProjectCheckerTest, FindsNothingBeforeItIsAsked)
{
    EXPECT_FALSE(m_checker->IsWorking());
    EXPECT_FALSE(m_checker->IsComplete());
    EXPECT_TRUE(m_checker->All().empty());
}

TEST_F(ProjectCheckerTest, FindsWhatTheCheckOfTheFilesFinds)
{
    m_checker->Restart();
    CheckAll();
    ExpectTheSameAsOfTheFiles();
}

TEST_F(ProjectCheckerTest, SeesWhatIsUnsaved)
{
    m_checker->Restart();
    CheckAll();
    Change([&] {
        StoreChosenVariables(*KZMainCfg::Get(), L"zep-1", {KZBasicString(L"Other.AP")});
        m_project->KeepUnsaved({{"devices/zep-1.xml", "<device/>"}, {"devices/xyz-2.xml", "<device/>"}}, true);
    });
    ExpectTheSameAsOfTheFiles();
}

TEST_F(ProjectCheckerTest, FollowsDevicesThatComeAndGo)
{
    m_checker->Restart();
    CheckAll();
    const std::vector<std::size_t> places{0, 1};
    Change([&] { RemoveDevices(*m_project, places); });
    m_checker->Restart({.isListChanged = true});
    ExpectTheSameAsOfTheFiles();
    const std::vector<DeviceNaming> names{{L"A", L"", L""}, {L"B", L"", L""}};
    std::vector<KZBasicString> added;
    EXPECT_EQ(m_project->Content("devices/zep-3.xml"), "<device>");
    m_project->KeepUnsaved({{"devices/zep-3.xml", "<device/>"}}, false);
    EXPECT_TRUE(m_undo->Do({}, {}, [&] { added = DuplicateDevice(*m_project, 0, names); }));
    added.push_back(L"zep-3");
    m_checker->Restart({.isListChanged = true, .driverIds = added});
    ExpectTheSameAsOfTheFiles();
}

TEST_F(ProjectCheckerTest, WorksInSlicesAndCanBeLeftOff)
{
    m_checker->Restart();
    int slices = 0;
    int percent = 0;
    while (m_checker->Work(milliseconds(0))) {
        ++slices;
        EXPECT_GE(m_checker->Percent(), percent);
        percent = m_checker->Percent();
        EXPECT_FALSE(m_checker->IsComplete());
    }
    constexpr int all = 3 + 3 + 5 + 1 + 3 + 1;
    EXPECT_EQ(slices, all - 1) << "devices, lists of setups, entries of folders and their end, owners and what is left";
    const std::size_t found = m_checker->All().size();
    m_checker->Restart();
    m_checker->Work(milliseconds(0));
    EXPECT_EQ(m_checker->All().size(), found) << "what was found before is still there";
    m_checker->Cancel();
    EXPECT_FALSE(m_checker->IsWorking());
    EXPECT_FALSE(m_checker->IsComplete());
    const KZBasicString one[] = {L"zep-1"};
    m_checker->Restart({.driverIds = one});
    slices = 1;
    while (m_checker->Work(milliseconds(0)))
        ++slices;
    EXPECT_EQ(slices, all) << "what was left off is begun anew";
}

}  // namespace

}  // namespace plant
