// What a user does in the editor's main window, each time with another allocation failing: the project is then as
// before or as it would be after, whoever misses something was told, and the window works on.
#include <afxwin.h>

#include <commctrl.h>
#include <gmock/gmock.h>

#include <cstdio>

#include "Conditions.h"
#include "Controls.h"
#include "Endurance.h"
#include "EventLog.h"
#include "KZMainCfg.h"
#include "MemoryFaults.h"
#include "ParameterNames.h"
#include "StepLoop.h"
#include "TemporaryFolder.h"
#include "WindowModel.h"
#include "changes/DeviceEdit.h"
#include "changes/FieldEdit.h"
#include "changes/Review.h"
#include "fields/FieldQuery.h"
#include "modules/ModuleLoader.h"
#include "project/ChosenVariables.h"
#include "window/frame/MainWindow.h"

namespace {

struct WindowAction {
    const char* name;
    void (*prepare)(MainWindow&);
    void (*act)(MainWindow&);
};

// Presses Yes or OK in each message box and remembers what it said.
class AgreeingUser {
public:
    AgreeingUser() : m_timer(::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, Agree)) { s_told.clear(); }
    ~AgreeingUser() { ::KillTimer(nullptr, m_timer); }
    AgreeingUser(const AgreeingUser&) = delete;
    AgreeingUser& operator=(const AgreeingUser&) = delete;

    [[nodiscard]] static const std::vector<std::wstring>& Told() noexcept { return s_told; }

private:
    static void CALLBACK Agree(HWND, UINT, UINT_PTR, DWORD)
    {
        constexpr int textId = 0xFFFF;
        const MemoryFaults::Pause pause;
        const HWND box = TopDialogOfThread();
        if (!box || !IsMessageBox(box))
            return;
        s_told.push_back(kztest::TextOf(box, textId));
        ::PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(::GetDlgItem(box, IDYES) ? IDYES : IDOK), 0);
    }

    inline static std::vector<std::wstring> s_told;
    UINT_PTR m_timer;
};

// Runs inside a window procedure, as everything does that a user causes: what it throws is told there.
class Procedure : public CWnd {
public:
    explicit Procedure(std::function<void()> work) : m_work(std::move(work))
    {
        CreateEx(0, AfxRegisterWndClass(0), L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr);
    }
    ~Procedure() override { DestroyWindow(); }
    void Call() const { SendMessage(Work); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != Work)
            return CWnd::WindowProc(message, wParam, lParam);
        m_work();
        return 0;
    }

private:
    static constexpr UINT Work = WM_APP + 1;
    std::function<void()> m_work;
};

void Nothing(MainWindow&) {}

template <int Id>
void Command(MainWindow& window)
{
    window.SendMessage(WM_COMMAND, Id);
}

void Change(MainWindow& window, const std::function<void(plant::Project&)>& change)
{
    plant::Project& project = window.Project();
    window.Change({IDS_PLANT_STEP_OPTIONS, {L"x"}}, {project.Devices().front().driverId}, [&] { change(project); });
}

void Choose(MainWindow& window)
{
    Change(window, [](plant::Project& project) {
        plant::StoreChosenVariables(*KZMainCfg::Get(), project.Devices().front().driverId, {KZBasicString(L"V1")});
    });
}

void SetValue(MainWindow& window)
{
    Change(window, [](plant::Project& project) {
        const plant::Field* const field = plant::FindField(*plant::FieldsOfType(L"ZEP"), "device.minCurrent");
        const std::vector<plant::Assignment> values{{field, "7"}};
        plant::FieldEdit edit(project);
        edit.Add(0, values);
        edit.Keep();
    });
}

void Add(MainWindow& window)
{
    Change(window, [](plant::Project& project) {
        plant::NewDevice device;
        device.name = L"NEW";
        device.number = L"99";
        device.typeName = L"ZEP";
        device.transformerRatio = L"200";
        plant::AddDevice(project, device);
    });
}

void Duplicate(MainWindow& window)
{
    Change(window, [](plant::Project& project) {
        const std::vector<plant::DeviceNaming> names{{L"NEW1", L"98", L""}, {L"NEW2", L"99", L""}};
        plant::DuplicateDevice(project, 0, names);
    });
}

void Rename(MainWindow& window)
{
    Change(window, [](plant::Project& project) {
        plant::DeviceNaming naming = plant::NamingOf(project.Devices().front());
        naming.name = L"NEW";
        plant::RenameDevice(project, 0, naming);
    });
}

void Remove(MainWindow& window)
{
    Change(window, [](plant::Project& project) {
        const std::vector<std::size_t> places{0};
        plant::RemoveDevices(project, places);
    });
}

void TakeBack(MainWindow& window)
{
    Change(window, [](plant::Project& project) { plant::TakeBack(project, plant::Review(project)); });
}

void Restore(MainWindow& window)
{
    window.CarryOut([&] { window.Project().Restore(1, false); });
}

void ChooseAnother(MainWindow& window)
{
    Change(window, [](plant::Project& project) {
        plant::StoreChosenVariables(*KZMainCfg::Get(), project.Devices().front().driverId, {KZBasicString(L"V9")});
    });
}

void SetTwo(MainWindow& window)
{
    Choose(window);
    SetValue(window);
}

void SetAndUndo(MainWindow& window)
{
    SetTwo(window);
    Command<IDC_UNDO>(window);
}

void SetAndSave(MainWindow& window)
{
    SetTwo(window);
    Command<IDC_SAVE>(window);
}

void Find(MainWindow& window)
{
    ::SetWindowTextW(::GetDlgItem(window.m_hWnd, IDC_FIND), L"norte");
}

void Check(MainWindow& window)
{
    Command<IDC_CHECK>(window);
    for (int turn = 0; turn < 50 && window.IsChecking(); ++turn)
        kztest::DispatchPending();
}

constexpr WindowAction Actions[] = {
    {"Choose", Nothing, Choose},
    {"SetValue", Nothing, SetValue},
    {"Add", Nothing, Add},
    {"Duplicate", Nothing, Duplicate},
    {"Rename", Nothing, Rename},
    {"Remove", Nothing, Remove},
    {"Undo", SetTwo, Command<IDC_UNDO>},
    {"Redo", SetAndUndo, Command<IDC_REDO>},
    {"Save", SetTwo, Command<IDC_SAVE>},
    {"TakeBack", SetTwo, TakeBack},
    {"Restore", SetAndSave, Restore},
    {"Check", Nothing, Check},
    {"Find", Nothing, Find},
    {"MarkAll", Nothing, Command<IDC_MARK_ALL>},
    {"ShowVariables", Nothing, Command<IDC_SHOW_VARIABLES>},
    {"ShowOptions", Nothing, Command<IDC_SHOW_OPTIONS>},
    {"Speak", Nothing, Command<IDC_SPANISH>},
};

struct Outcome {
    Documents before;
    Documents after;
    Documents onDisk;
    bool isTold;
    long allocations;
};

class FaultsInTheWindow : public testing::TestWithParam<WindowAction> {
protected:
    ~FaultsInTheWindow() override { AfxGetApp()->m_pMainWnd = nullptr; }

    Outcome Act(long failing);

    ModuleLoader m_modules{ProgramFolder().parent_path() / "bin"};
    MemoryFaults m_memory{{L"KZUsrZEP.dll", L"KZHost.dll", L"KZMfc.dll"}};
    EventLog m_log{0};
};

Outcome FaultsInTheWindow::Act(long failing)
{
    m_log.Add(GetParam().name, 0, failing);
    const AgreeingUser user;
    const kztest::TemporaryFolder folder;
    std::filesystem::copy(std::filesystem::path(KZ_EXAMPLES) / "plant", folder.Path() / "plant",
                          std::filesystem::copy_options::recursive);
    SettingsFile settings(folder.Path() / "settings.xml");
    MainWindow window(m_modules, settings, std::make_unique<OpenProject>(folder.Path() / "plant"));
    EXPECT_TRUE(window.Create());
    GetParam().prepare(window);
    kztest::DispatchPending();
    WindowModel model(window.Project());
    Outcome outcome{model.Shown(), {}, {}, false, 0};
    const std::size_t toldBefore = AgreeingUser::Told().size();

    const Procedure act([&window] { GetParam().act(window); });

    MemoryFaults::Arm(failing);
    act.Call();
    kztest::DispatchPending();
    MemoryFaults::Disarm();

    outcome.allocations = MemoryFaults::Count();
    outcome.isTold = AgreeingUser::Told().size() > toldBefore;
    const auto shown = [&window] {
        WindowModel now(window.Project());
        return now.Shown();
    };
    outcome.after = shown();
    outcome.onDisk = model.OnDisk();
    // The window works on.
    ChooseAnother(window);
    EXPECT_NE(shown(), outcome.after) << failing;
    Command<IDC_UNDO>(window);
    EXPECT_EQ(shown(), outcome.after) << failing;
    KZMainCfg::Get()->SetDirty(false);
    window.Project().Discard();
    window.DestroyWindow();
    KZQuorvelantaSetup::Get()->SetLanguage(KZLanguage::English);
    kztest::DispatchPending();
    return outcome;
}

}  // namespace

TEST_P(FaultsInTheWindow, LeaveTheProjectOldOrNewAndAreTold)
{
    Act(0);  // what is made once and kept is made now
    const Outcome undisturbed = Act(0);
    const long last = undisturbed.allocations;
    ASSERT_GT(last, 0);
    const long stride = std::max(1L, last / std::max(1L, endurance::Rounds(3, last)));
    long calls = 0;
    for (long failing = 1; failing <= last && !HasFailure(); failing += stride, ++calls) {
        const Outcome outcome = Act(failing);
        // A save that is back on disk may be one that could not be read anew; saving over it asks.
        const bool isWhole = outcome.after == undisturbed.after || outcome.after == outcome.before ||
                             (outcome.isTold && outcome.onDisk == undisturbed.onDisk);
        EXPECT_TRUE(isWhole) << "allocation " << failing;
        EXPECT_TRUE(outcome.after == undisturbed.after || outcome.isTold) << "nobody was told, allocation " << failing;
    }
    std::printf("%s: %ld calls, every %ld. of %ld allocations failing\n", GetParam().name, calls, stride, last);
}

INSTANTIATE_TEST_SUITE_P(Actions, FaultsInTheWindow, testing::ValuesIn(Actions), kztest::ByName);
