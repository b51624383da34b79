// Random changes of a project, undone and redone beside a model that keeps every state whole.
#include <gtest/gtest.h>

#include <algorithm>
#include <deque>

#include "ChildOrNew.h"
#include "Endurance.h"
#include "KZMainCfg.h"
#include "KZUtf8.h"
#include "PlantOfFilters.h"
#include "ProjectFiles.h"
#include "ProjectFixture.h"
#include "Random.h"
#include "changes/DeviceEdit.h"
#include "changes/FieldEdit.h"
#include "changes/Review.h"
#include "changes/UndoList.h"
#include "project/ChosenVariables.h"
#ifndef _WIN32
#include "FailingMemory.h"
#endif

namespace plant {

namespace {

class ChangedPlant : public kztest::PlantOfFilters {
protected:
    ChangedPlant()
    {
        WriteDevices(
            {{"zep-1", "Feeder 1"}, {"xyz-2", "Meter 2", "XYZ"}, {"zep-3", "Feeder 3"}},
            "\n  <!-- setups -->\n  <unitSetups>\n    <unitSetup><driverId>zep-1</driverId><unit><name>RP</name>"
            "<decimals>3</decimals></unit></unitSetup>\n  </unitSetups>\n  <selections><selection>"
            "<driverId>zep-3</driverId><variables>Feeder 3.AP</variables></selection></selections>\n");
        WriteInformation(m_folder, "zep-1", "<minCurrent>7</minCurrent>");
        Opened();
        m_user.willProtect = true;
        m_project->SetUser(&m_user);
        m_undo.emplace(*m_project);
    }
    ~ChangedPlant() override
    {
        m_undo.reset();
        m_project->Discard();
    }

    // All that is shown.
    [[nodiscard]] kztest::Files Shown() const
    {
        kztest::Files files{{"main.xml", KZMainCfg::Get()->Serialize()}};
        DocumentFiles shown = m_project->FilesOnDisk();
        m_project->AddPending(shown);
        for (const auto& [name, entry] : shown)
            if (name != MainDocument)
                files.emplace(name, *m_project->Peek(name));
        return files;
    }
    [[nodiscard]] static std::vector<Assignment> Value(const char* key, int value)
    {
        return {{FindField(*FieldsOfType(L"ZEP"), key), std::to_string(value)}};
    }
    void Set(std::size_t device, const char* key, int value)
    {
        FieldEdit edit(*m_project);
        edit.Add(device, Value(key, value));
        edit.Keep();
    }
    bool Do(std::size_t device, const std::function<void()>& change)
    {
        std::vector<KZBasicString> ids;
        if (device < m_project->Devices().size())
            ids.push_back(m_project->Devices()[device].driverId);
        return m_isChanged = m_undo->Do({IDS_PLANT_STEP_OPTIONS, {}}, ids, change);
    }

    bool m_isChanged = false;
    kztest::ScriptedUser m_user;
    std::optional<UndoList> m_undo;
};

class RandomChanges : public ChangedPlant {
protected:
    std::wstring NewName() { return L"T" + std::to_wstring(++m_named) + (m_random.OneIn(3) ? L" ñ" : L""); }
    [[nodiscard]] bool IsFilter(std::size_t device) const
    {
        return m_project->Devices()[device].typeName == KZBasicString(L"ZEP");
    }

    void Add()
    {
        NewDevice device;
        device.name = NewName();
        device.typeName = L"ZEP";
        device.transformerRatio = L"5";
        ASSERT_TRUE(JudgeAdd(*m_project, device).empty());
        Do(m_project->Devices().size(), [&] { AddDevice(*m_project, device); });
    }
    void ChangeDevice(std::size_t device)
    {
        switch (m_random.Below(8)) {
        case 0: {
            const std::vector<DeviceNaming> names{{NewName(), L"", L"copy"}, {NewName(), L"", L""}};
            Do(device, [&] { DuplicateDevice(*m_project, device, names); });
            return;
        }
        case 1: {
            const DeviceNaming naming{NewName(), std::to_wstring(m_random.OneIn(2) ? 0 : m_named), L"renamed"};
            Do(device, [&] { RenameDevice(*m_project, device, naming); });
            return;
        }
        case 2:
        case 3: {
            const std::vector<std::size_t> devices{device};
            Do(device, [&] { RemoveDevices(*m_project, devices); });
            return;
        }
        case 4: {
            const KZDeviceIdentity identity = m_project->Devices()[device];
            Do(device, [&] {
                StoreChosenVariables(*KZMainCfg::Get(), identity.driverId,
                                     {identity.name + L".AP", identity.name + (m_random.OneIn(2) ? L".RP" : L".PF")});
            });
            return;
        }
        case 5:
            WriteAtOnce(device);
            return;
        default:
            if (IsFilter(device))
                Do(device, [&] { Set(device, m_random.Pick(Keys), m_random.Between(1, 3)); });
        }
    }
    // As the device's dialog does.
    void WriteAtOnce(std::size_t device)
    {
        const std::string name = DeviceDocumentName(m_project->Devices()[device].driverId);
        Do(device, [&] {
            XmlDocument document(L"device");
            m_project->ReadDeviceDocument(name, document);
            zep::ChildOrNew(*document.Root(), L"information").SetValue(L"numZEP", m_random.Between(1, 8));
            m_project->WriteDocument(name, document, "window");
        });
    }
    void TakeSomethingBack()
    {
        std::vector<ReviewLine> lines = Review(*m_project);
        std::erase_if(lines, [this](const ReviewLine&) { return m_random.OneIn(2); });
        std::vector<KZBasicString> ids;
        for (const ReviewLine& line : lines)
            ids.push_back(line.driverId);
        try {
            m_isChanged = m_undo->Do({IDS_PLANT_STEP_TAKE_BACK, {}}, ids, [&] { TakeBack(*m_project, lines); });
        } catch (const Refusal& refusal) {
            ASSERT_EQ(refusal.What().text, IDS_PLANT_CANNOT_COME_BACK);
        }
    }
    void ChangeSomething()
    {
        m_isChanged = false;
        const std::size_t count = m_project->Devices().size();
        if (count == 0 || (count < 8 && m_random.OneIn(6)))
            Add();
        else if (m_random.OneIn(8))
            TakeSomethingBack();
        else
            ChangeDevice(m_random.Below(count));
        if (!m_isChanged)
            return;
        m_states.resize(m_at + 1);
        m_states.push_back(Shown());
        ++m_at;
        for (; m_states.size() > m_undo->Count() + 1; --m_at)
            m_states.pop_front();
    }
    void Undo()
    {
        ASSERT_TRUE(m_undo->Undo());
        --m_at;
    }
    void Redo()
    {
        ASSERT_TRUE(m_undo->Redo());
        ++m_at;
    }
    void WalkAllTheWay()
    {
        while (m_undo->CanUndo()) {
            ASSERT_NO_FATAL_FAILURE(Undo());
            ASSERT_EQ(Shown(), m_states[m_at]);
        }
        ASSERT_EQ(m_at, 0u);
        while (m_undo->CanRedo()) {
            ASSERT_NO_FATAL_FAILURE(Redo());
            ASSERT_EQ(Shown(), m_states[m_at]);
        }
    }
    // What is told of the unsaved is one and the same.
    void CheckUnsaved()
    {
        std::set<std::string> reviewed;
        for (const ReviewLine& line : Review(*m_project))
            if (line.what != ReviewLine::What::Other)
                reviewed.insert(ToUtf8(line.driverId.View()));
        std::set<std::string> changed;
        for (const KZBasicString& driverId : m_project->ChangedDevices())
            changed.insert(ToUtf8(driverId.View()));
        ASSERT_EQ(changed, reviewed);
        ASSERT_TRUE(m_project->IsDirty() || reviewed.empty());
        const DeviceList devices = ReadDevices(*KZMainCfg::Get(), L"main.xml");
        const auto isSame = [](const KZDeviceIdentity& a, const KZDeviceIdentity& b) {
            return a.driverId == b.driverId && NamingOf(a) == NamingOf(b) && a.groups == b.groups;
        };
        ASSERT_TRUE(std::equal(devices.begin(), devices.end(), m_project->Devices().begin(), m_project->Devices().end(),
                               isSame));
    }

    static constexpr const char* Keys[] = {"device.minCurrent", "device.numZEP", "units.RP.decimals",
                                           "limits.AP.nominal", "limits.RP.nominal"};
    Random m_random{endurance::Seed()};
    int m_named = 0;
    std::deque<kztest::Files> m_states;
    std::size_t m_at = 0;
};

TEST_F(RandomChanges, AreUndoneAndRedoneToTheSameBytes)
{
    const long steps = endurance::Rounds(600, 100'000);
    const long stepsPerWalk = std::max(200L, steps / 100);  // each goes a thousand steps back and forth
    m_states.push_back(Shown());
    for (long step = 0; step < steps; ++step) {
        SCOPED_TRACE("step " + std::to_string(step));
        if (m_random.OneIn(4) && m_undo->CanUndo())
            ASSERT_NO_FATAL_FAILURE(Undo());
        else if (m_random.OneIn(6) && m_undo->CanRedo())
            ASSERT_NO_FATAL_FAILURE(Redo());
        else if (m_random.OneIn(30))
            m_project->Save("window");
        else
            ASSERT_NO_FATAL_FAILURE(ChangeSomething());
        ASSERT_EQ(Shown(), m_states[m_at]);
        if (step % 10 == 0) {
            ASSERT_NO_FATAL_FAILURE(CheckUnsaved());
        }
        if (step % stepsPerWalk == stepsPerWalk - 1) {
            ASSERT_NO_FATAL_FAILURE(WalkAllTheWay());
        }
    }
}

#ifndef _WIN32

struct DeviceChange {
    const char* name;
    void (*run)(Project& project);
};

class ScarceMemoryForChanges : public ChangedPlant, public testing::WithParamInterface<DeviceChange> {};

// Every allocation fails once: the project is the old one, and the change can then be made.
TEST_P(ScarceMemoryForChanges, LeavesTheProjectOldOrNew)
{
    const long stride = endurance::IsLong() ? 1 : 7;
    const kztest::Files before = Shown();
    const std::vector<KZBasicString> ids{L"zep-1", L"zep-3"};
    const auto change = [&] {
        return m_undo->Do({IDS_PLANT_STEP_OPTIONS, {}}, ids, [this] { GetParam().run(*m_project); });
    };
    ASSERT_TRUE(change());
    const kztest::Files after = Shown();
    ASSERT_NE(before, after);
    ASSERT_TRUE(m_undo->Undo());
    long failures = 0;
    for (long failing = 1;; failing += stride) {
        bool failed = false;
        FailAllocation(failing);
        try {
            change();
        } catch (const std::bad_alloc&) {
            failed = true;
        }
        const long count = CountAllocations();
        FailAllocation(0);
        ASSERT_EQ(Shown(), failed ? before : after) << "allocation " << failing;
        failures += failed;
        if (!failed && !m_undo->Undo()) {
            // The step alone had no memory.
            m_undo.reset();
            m_project->Discard();
            Opened();
            m_project->SetUser(&m_user);
            m_undo.emplace(*m_project);
        }
        ASSERT_EQ(Shown(), before) << "allocation " << failing;
        ASSERT_EQ(m_project->Devices().size(), 3u);
        if (count < failing)
            break;
    }
    EXPECT_GT(failures, 10);
}

INSTANTIATE_TEST_SUITE_P(
    , ScarceMemoryForChanges,
    testing::Values(DeviceChange{"Add",
                                 [](Project& project) {
                                     NewDevice device;
                                     device.name = L"New";
                                     device.typeName = L"ZEP";
                                     device.transformerRatio = L"5";
                                     AddDevice(project, device);
                                 }},
                    DeviceChange{"Duplicate",
                                 [](Project& project) {
                                     const std::vector<DeviceNaming> names{{L"A", L"", L""}, {L"B", L"", L""}};
                                     DuplicateDevice(project, 0, names);
                                 }},
                    DeviceChange{"Rename",
                                 [](Project& project) {
                                     RenameDevice(project, 2, {L"Renamed", L"7", L"d"});
                                 }},
                    DeviceChange{"Remove",
                                 [](Project& project) {
                                     const std::vector<std::size_t> devices{0, 2};
                                     RemoveDevices(project, devices);
                                 }}),
    [](const auto& instance) { return std::string(instance.param.name); });

#endif

}  // namespace

}  // namespace plant
