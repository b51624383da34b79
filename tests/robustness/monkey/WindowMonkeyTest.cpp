// A random user of the main window, beside a model of what is chosen, saved, undone and redone.
#include <afxwin.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <array>
#include <deque>
#include <random>

#include "Conditions.h"
#include "Controls.h"
#include "Endurance.h"
#include "EventLog.h"
#include "KZMainCfg.h"
#include "TemporaryFolder.h"
#include "modules/ModuleLoader.h"
#include "project/ChosenVariables.h"
#include "window/frame/MainWindow.h"

namespace {

// The main configuration, byte for byte, is what every change here is about.
struct Model {
    std::string now;
    std::string saved;
    std::deque<std::string> undo;
    std::deque<std::string> redo;
};

class WindowUser {
public:
    WindowUser(std::uint64_t seed, EventLog& log) : m_random(seed), m_log(log)
    {
        std::filesystem::copy(std::filesystem::path(KZ_EXAMPLES) / "plant", m_folder.Path() / "plant",
                              std::filesystem::copy_options::recursive);
        m_window = std::make_unique<MainWindow>(m_modules, m_settings,
                                                std::make_unique<OpenProject>(m_folder.Path() / "plant"));
        if (!m_window->Create())
            throw std::runtime_error("no window");
        m_model.now = m_model.saved = KZMainCfg::Get()->Serialize();
    }
    ~WindowUser()
    {
        KZMainCfg::Get()->SetDirty(false);
        m_window->DestroyWindow();
        KZQuorvelantaSetup::Get()->SetLanguage(KZLanguage::English);
        AfxGetApp()->m_pMainWnd = nullptr;
    }

    // Returns what is not as it should be; empty when all is.
    std::string DoSomething()
    {
        const std::size_t action = Any(Actions.size());
        m_log.Add(Actions[action].name, 0, static_cast<long long>(action));
        (this->*Actions[action].run)();
        kztest::DispatchPending();
        return Difference();
    }

    // All kept steps back and forth again: the same bytes at both ends and the model's in between.
    std::string GoAllTheWay()
    {
        const std::string before = m_model.now;
        std::string difference;
        std::size_t steps = 0;
        for (; m_window->CanUndo() && difference.empty(); ++steps) {
            m_log.Add("undo all");
            Undo();
            difference = Difference();
        }
        for (; steps > 0 && difference.empty(); --steps) {
            m_log.Add("redo all");
            Redo();
        }
        kztest::DispatchPending();
        return !difference.empty() ? difference : before == m_model.now ? Difference() : "other bytes";
    }

    [[nodiscard]] std::string SavedMain() const { return kztest::BytesOf(m_folder.Path() / "plant" / "main.xml"); }
    [[nodiscard]] const Model& TheModel() const noexcept { return m_model; }

private:
    struct Action {
        const char* name;
        void (WindowUser::*run)();
    };
    static const std::array<Action, 15> Actions;

    std::size_t Any(std::size_t count) { return std::uniform_int_distribution<std::size_t>(0, count - 1)(m_random); }
    void Run(int command) const { m_window->SendMessage(WM_COMMAND, static_cast<WPARAM>(command)); }
    [[nodiscard]] HWND Control(int id) const { return kztest::ControlIn(m_window->m_hWnd, id); }
    [[nodiscard]] const KZBasicString& AnyDevice()
    {
        const plant::DeviceList& devices = m_window->Project().Devices();
        return devices[Any(devices.size())].driverId;
    }

    void Choose()
    {
        const KZBasicString driverId = AnyDevice();
        plant::VariableList variables;
        for (std::size_t count = Any(5); count > 0; --count)
            variables.push_back(KZBasicString::Format(L"V%d", static_cast<int>(Any(9))));
        m_window->Change({IDS_PLANT_STEP_VARIABLES, {driverId.c_str()}}, {driverId},
                         [&] { plant::StoreChosenVariables(*KZMainCfg::Get(), driverId, variables); });
        Changed();
    }
    void RemoveMarked()
    {
        const LRESULT rows = ::SendMessageW(Control(IDC_CHOSEN), LB_GETCOUNT, 0, 0);
        if (rows == 0)
            return;
        ::SendMessageW(Control(IDC_CHOSEN), LB_SETSEL, TRUE, static_cast<LPARAM>(Any(static_cast<std::size_t>(rows))));
        Run(IDC_REMOVE);
        Changed();
    }
    // What the window did, as the model has it.
    void Changed()
    {
        std::string bytes = KZMainCfg::Get()->Serialize();
        if (bytes == m_model.now)
            return;
        m_model.undo.push_back(std::exchange(m_model.now, std::move(bytes)));
        if (m_model.undo.size() > plant::UndoList::MostSteps)
            m_model.undo.pop_front();
        m_model.redo.clear();
    }
    void Undo()
    {
        Run(IDC_UNDO);
        if (m_model.undo.empty())
            return;
        m_model.redo.push_back(std::exchange(m_model.now, m_model.undo.back()));
        m_model.undo.pop_back();
    }
    void Redo()
    {
        Run(IDC_REDO);
        if (m_model.redo.empty())
            return;
        m_model.undo.push_back(std::exchange(m_model.now, m_model.redo.back()));
        m_model.redo.pop_back();
    }
    void Save()
    {
        Run(IDC_SAVE);
        m_model.saved = m_model.now;
    }
    void Find()
    {
        constexpr const wchar_t* words[] = {L"", L"", L"zep", L"norte", L"V1", L"é 1", L"no such"};
        ::SetWindowTextW(Control(IDC_FIND), words[Any(std::size(words))]);
    }
    void Mark()
    {
        const int rows = ListView_GetItemCount(Control(IDC_DEVICES));
        if (rows == 0)
            return;
        if (Any(3) != 0)
            ListView_SetItemState(Control(IDC_DEVICES), -1, 0, LVIS_SELECTED);
        ListView_SetItemState(Control(IDC_DEVICES), static_cast<int>(Any(static_cast<std::size_t>(rows))),
                              LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    }
    void Sort()
    {
        NMLISTVIEW click{};
        click.hdr = {Control(IDC_DEVICES), IDC_DEVICES, static_cast<UINT>(LVN_COLUMNCLICK)};
        click.iSubItem = static_cast<int>(Any(DeviceColumnCount));
        m_window->SendMessage(WM_NOTIFY, IDC_DEVICES, reinterpret_cast<LPARAM>(&click));
    }
    void Walk()
    {
        constexpr int commands[] = {IDC_MARK_ALL,    IDC_NEXT_PANE,       IDC_PREVIOUS_PANE, IDC_NEXT_DEVICE,
                                    IDC_NEXT_DEVICE, IDC_PREVIOUS_DEVICE, IDC_NEXT_PAGE,     IDC_PREVIOUS_PAGE,
                                    IDC_FIND_CLEAR,  IDC_GO_FIND,         IDC_FIND_DOWN};
        Run(commands[Any(std::size(commands))]);
    }
    void Speak() { Run(Any(2) == 0 ? IDC_SPANISH : IDC_ENGLISH); }
    void MoveBar() { ::SendMessageW(Control(IDC_LIST_BAR), WM_KEYDOWN, Any(2) == 0 ? VK_LEFT : VK_RIGHT, 0); }
    void Resize() { m_window->MoveWindow(0, 0, 300 + static_cast<int>(Any(1200)), 200 + static_cast<int>(Any(900))); }

    [[nodiscard]] std::string Difference() const
    {
        if (KZMainCfg::Get()->Serialize() != m_model.now)
            return "the document is not the model's";
        if (m_window->CanUndo() != !m_model.undo.empty() || m_window->CanRedo() != !m_model.redo.empty())
            return "undo or redo is offered wrongly";
        // What happens to be what the file holds may count as unsaved when it came about in another way.
        if (m_model.now != m_model.saved && !m_window->IsDirty())
            return "what is unsaved counts as saved";
        if (kztest::TextOf(m_window->m_hWnd).ends_with(L"*") != m_window->IsDirty())
            return "the title is wrong";
        const auto& marked = m_window->MarkedDevices();
        const LRESULT shown = ::SendMessageW(Control(IDC_CHOSEN), LB_GETCOUNT, 0, 0);
        const std::size_t chosen =
            marked.size() == 1 ? plant::ChosenVariables(*KZMainCfg::Get(), marked.front()).size() : 0;
        if (shown != static_cast<LRESULT>(chosen))
            return "other variables are shown";
        return marked.size() == static_cast<std::size_t>(ListView_GetSelectedCount(Control(IDC_DEVICES)))
                   ? ""
                   : "other devices are marked";
    }

    std::mt19937_64 m_random;
    EventLog& m_log;
    kztest::TemporaryFolder m_folder;
    SettingsFile m_settings{m_folder.Path() / "settings.xml"};
    ModuleLoader m_modules{ProgramFolder().parent_path() / "bin"};
    std::unique_ptr<MainWindow> m_window;
    Model m_model;
};

const std::array<WindowUser::Action, 15> WindowUser::Actions = {{
    {"choose", &WindowUser::Choose},
    {"choose", &WindowUser::Choose},
    {"remove", &WindowUser::RemoveMarked},
    {"undo", &WindowUser::Undo},
    {"redo", &WindowUser::Redo},
    {"save", &WindowUser::Save},
    {"find", &WindowUser::Find},
    {"mark", &WindowUser::Mark},
    {"mark", &WindowUser::Mark},
    {"sort", &WindowUser::Sort},
    {"walk", &WindowUser::Walk},
    {"walk", &WindowUser::Walk},
    {"speak", &WindowUser::Speak},
    {"bar", &WindowUser::MoveBar},
    {"size", &WindowUser::Resize},
}};

TEST(RandomUser, FindsTheMainWindowShowingWhatTheModelHas)
{
    constexpr long allTheWay = 200;
    const long events = endurance::Rounds(250, 500'000);
    const std::uint64_t seed = endurance::Seed();
    EventLog log(seed);
    WindowUser user(seed, log);
    for (long event = 1; event <= events; ++event) {
        const bool goes = event % allTheWay == 0;
        const std::string difference = goes ? user.GoAllTheWay() : user.DoSomething();
        ASSERT_EQ(difference, "") << log.Describe();
        AfxGetApp()->OnIdle(0);
    }
    EXPECT_EQ(user.SavedMain(), user.TheModel().saved);
    std::printf("%ld events; the slowest took %ld ms; seed %llu\n", log.Count(), log.SlowestMilliseconds(),
                static_cast<unsigned long long>(seed));
}

}  // namespace
