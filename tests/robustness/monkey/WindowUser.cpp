#include "WindowUser.h"

#include <commctrl.h>

#include <algorithm>

#include "Conditions.h"
#include "Controls.h"
#include "HeldKeys.h"
#include "KZMainCfg.h"
#include "StepLoop.h"
#include "changes/FieldEdit.h"
#include "fields/FieldQuery.h"
#include "project/ChosenVariables.h"
#include "window/commands/CommandKeys.h"
#include "window/open/ProjectFolderControls.h"

namespace {

constexpr std::size_t MostDevices = 25;
constexpr long StepsInADialog = 60;

// Commands that the user takes by their keys, or by their numbers where an edit box has the focus and the key.
constexpr int ByKey[] = {
    IDC_CHECK,           IDC_CHECK,        IDC_NEXT_FINDING,  IDC_PREVIOUS_FINDING, IDC_SHOW_VALUES,
    IDC_SHOW_VARIABLES,  IDC_SHOW_OPTIONS, IDC_SHOW_VALUES,   IDC_SHOW_FINDINGS,    IDC_SHOW_FINDING,
    IDC_NEXT_PANE,       IDC_NEXT_PANE,    IDC_PREVIOUS_PANE, IDC_NEXT_DEVICE,      IDC_NEXT_DEVICE,
    IDC_PREVIOUS_DEVICE, IDC_NEXT_PAGE,    IDC_PREVIOUS_PAGE, IDC_MARK_ALL,         IDC_FIND_CLEAR,
    IDC_GO_FIND,         IDC_FIND_DOWN,    IDC_FIND_ENTER,    IDC_FINDINGS_CLOSE,   IDC_CANCEL_CHECK,
};

}  // namespace

WindowUser::WindowUser(std::uint64_t seed, EventLog& log)
    : m_random(seed), m_log(log), m_modules(ProgramFolder().parent_path() / "bin")
{
    std::filesystem::copy(std::filesystem::path(KZ_EXAMPLES) / "plant", m_folder.Path() / "plant",
                          std::filesystem::copy_options::recursive);
    m_window =
        std::make_unique<MainWindow>(m_modules, m_settings, std::make_unique<OpenProject>(m_folder.Path() / "plant"));
    if (!m_window->Create())
        throw std::runtime_error("no window");
    m_model = std::make_unique<WindowModel>(m_window->Project());
}

WindowUser::~WindowUser()
{
    KZMainCfg::Get()->SetDirty(false);
    m_window->DestroyWindow();
    KZQuorvelantaSetup::Get()->SetLanguage(KZLanguage::English);
    AfxGetApp()->m_pMainWnd = nullptr;
}

std::string WindowUser::DoSomething()
{
    const Action& action = m_random.Pick(Actions);
    m_log.Add(action.name);
    (this->*action.run)();
    m_log.Add("messages");
    kztest::DispatchPending();
    AfxGetApp()->OnIdle(0);
    return Difference();
}

std::string WindowUser::GoAllTheWay()
{
    const Documents before = m_model->Now();
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
    m_log.Add("messages");
    kztest::DispatchPending();
    if (difference.empty() && before != m_model->Now())
        difference = "other documents than before";
    return difference.empty() ? Difference() : difference;
}

void WindowUser::Run(int command) const
{
    m_window->SendMessage(WM_COMMAND, static_cast<WPARAM>(command));
}

// As often as one of its dialogs is on top, the user does something with it, and gives up after a while.
void WindowUser::RunWithDialogs(int command)
{
    StepLoop* running = nullptr;
    long left = StepsInADialog;
    StepLoop loop([&] {
        const HWND top = TopDialogOfThread();
        if (top && top != m_window->m_hWnd) {
            // The system's dialog behind it would make folders anywhere.
            if (const HWND browse = ::GetDlgItem(top, IDC_FOLDER_BROWSE))
                ::EnableWindow(browse, FALSE);
            if (IsMessageBox(top))
                m_dialogUser.Answer(top);
            else if (left-- > 0)
                m_dialogUser.Act(top);
            else
                ::PostMessageW(top, WM_COMMAND, IDCANCEL, 0);
        }
        running->Continue();
    });
    running = &loop;
    Run(command);
}

void WindowUser::Changed()
{
    m_counts.changes += m_model->Changed() ? 1 : 0;
}

HWND WindowUser::Control(int id) const
{
    return kztest::ControlIn(m_window->m_hWnd, id);
}

std::size_t WindowUser::AnyPlace()
{
    return m_random.Below(m_window->Project().Devices().size());
}

void WindowUser::Choose()
{
    if (m_window->Project().Devices().empty())
        return;
    const KZBasicString driverId = m_window->Project().Devices()[AnyPlace()].driverId;
    plant::VariableList variables;
    for (std::size_t count = m_random.Below(5); count > 0; --count)
        variables.push_back(KZBasicString::Format(L"V%d", m_random.Between(0, 8)));
    m_window->Change({IDS_PLANT_STEP_VARIABLES, {driverId.c_str()}}, {driverId},
                     [&] { plant::StoreChosenVariables(*KZMainCfg::Get(), driverId, variables); });
    Changed();
}

void WindowUser::SetValue()
{
    plant::Project& project = m_window->Project();
    if (project.Devices().empty())
        return;
    const std::size_t place = AnyPlace();
    const plant::Field* const field = plant::FindField(*plant::FieldsOfType(L"ZEP"), "device.minCurrent");
    const std::vector<plant::Assignment> values{{field, std::to_string(m_random.Between(0, 200))}};
    m_window->Change({IDS_PLANT_STEP_OPTIONS, {L"x"}}, {project.Devices()[place].driverId}, [&] {
        plant::FieldEdit edit(project);
        edit.Add(place, values);
        edit.Keep();
    });
    Changed();
}

void WindowUser::RemoveVariables()
{
    const LRESULT rows = ::SendMessageW(Control(IDC_CHOSEN), LB_GETCOUNT, 0, 0);
    if (rows == 0)
        return;
    const std::size_t row = m_random.Below(static_cast<std::size_t>(rows));
    ::SendMessageW(Control(IDC_CHOSEN), LB_SETSEL, TRUE, static_cast<LPARAM>(row));
    Run(IDC_REMOVE);
    Changed();
}

void WindowUser::UseDeviceDialog()
{
    constexpr int growing[] = {IDC_ADD_DEVICE, IDC_DUPLICATE_DEVICE, IDC_RENAME_DEVICE, IDC_REMOVE_DEVICE};
    constexpr int shrinking[] = {IDC_RENAME_DEVICE, IDC_REMOVE_DEVICE};
    const bool isFull = m_window->Project().Devices().size() > MostDevices;
    RunWithDialogs(isFull ? m_random.Pick(shrinking) : m_random.Pick(growing));
    Changed();
}

void WindowUser::LookAround()
{
    RunWithDialogs(m_random.OneIn(2) ? IDC_MODULES : IDC_ABOUT);
}

void WindowUser::Review()
{
    RunWithDialogs(IDC_REVIEW);
    Changed();
}

void WindowUser::Undo()
{
    Run(IDC_UNDO);
    m_model->Undone();
}

void WindowUser::Redo()
{
    Run(IDC_REDO);
    m_model->Redone();
}

void WindowUser::Find()
{
    constexpr const wchar_t* words[] = {L"", L"", L"zep", L"norte", L"V1", L"\u00e9 1", L"no such", L"2"};
    ::SetWindowTextW(Control(IDC_FIND), m_random.OneIn(3) ? m_random.Pick(words) : L"");
    for (const wchar_t character : std::wstring(m_random.Pick(words)))
        ::SendMessageW(Control(IDC_FIND), WM_CHAR, character, 1);
}

void WindowUser::Mark()
{
    ListView_SetItemState(Control(IDC_DEVICES), -1, 0, LVIS_SELECTED);
    MarkMore();
}

// As Ctrl does, or Shift.
void WindowUser::MarkMore()
{
    const HWND list = Control(IDC_DEVICES);
    const int rows = ListView_GetItemCount(list);
    if (rows == 0)
        return;
    int row = m_random.Between(0, rows - 1);
    ListView_SetItemState(list, row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    if (m_random.OneIn(3))
        for (; row < rows && !m_random.OneIn(4); ++row)
            ListView_SetItemState(list, row, LVIS_SELECTED, LVIS_SELECTED);
}

void WindowUser::Sort()
{
    NMLISTVIEW click{};
    click.hdr = {Control(IDC_DEVICES), IDC_DEVICES, static_cast<UINT>(LVN_COLUMNCLICK)};
    click.iSubItem = m_random.Between(0, 5);
    m_window->SendMessage(WM_NOTIFY, IDC_DEVICES, reinterpret_cast<LPARAM>(&click));
}

void WindowUser::Press()
{
    const WindowCommand& command = *FindWindowCommand(m_random.Pick(ByKey));
    // 0 is no key.
    const auto keyFor = [&command](int held, int key) { return (command.key.held & held) != 0 ? key : 0; };
    const kztest::HeldKeys held({keyFor(FCONTROL, VK_CONTROL), keyFor(FSHIFT, VK_SHIFT), keyFor(FALT, VK_MENU)});
    MSG key{};
    key.hwnd = ::GetFocus();
    key.message = WM_KEYDOWN;
    key.wParam = command.key.code;
    m_log.Add("key", command.id, command.key.code);
    if (command.key.code == 0 || CommandOfKey(key) != &command || !m_window->TranslateKey(key))
        Run(command.id);
}

void WindowUser::Speak()
{
    Run(m_random.OneIn(2) ? IDC_SPANISH : IDC_ENGLISH);
}

void WindowUser::MoveBar()
{
    const int bar = m_random.OneIn(2) ? IDC_LIST_BAR : IDC_FINDINGS_BAR;
    constexpr WORD keys[] = {VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN};
    ::SendMessageW(Control(bar), WM_KEYDOWN, m_random.Pick(keys), 0);
}

void WindowUser::Resize()
{
    m_window->MoveWindow(0, 0, m_random.Between(300, 1500), m_random.Between(200, 1100));
}

std::string WindowUser::Difference()
{
    if (!m_fault.empty())
        return m_fault;
    if (std::string difference = m_model->Difference(); !difference.empty())
        return difference;
    if (m_window->CanUndo() != m_model->CanUndo() || m_window->CanRedo() != m_model->CanRedo())
        return "undo or redo is offered wrongly";
    // What happens to be what the files hold may count as unsaved when it came about in another way.
    if (m_model->IsUnsaved() && !m_window->IsDirty())
        return "what is unsaved counts as saved";
    if (!m_window->IsDirty() && m_model->OnDisk() != m_model->LastSaved())
        return "other documents were saved";
    if (kztest::TextOf(m_window->m_hWnd).ends_with(L"*") != m_window->IsDirty())
        return "the title is wrong";
    const auto& marked = m_window->MarkedDevices();
    const LRESULT shown = ::SendMessageW(Control(IDC_CHOSEN), LB_GETCOUNT, 0, 0);
    const std::size_t chosen =
        marked.size() == 1 ? plant::ChosenVariables(*KZMainCfg::Get(), marked.front()).size() : 0;
    if (shown != static_cast<LRESULT>(chosen))
        return "other variables are shown";
    if (!m_window->IsFiltered() &&
        ListView_GetItemCount(Control(IDC_DEVICES)) != static_cast<int>(m_window->Project().Devices().size()))
        return "other devices are shown";
    return marked.size() == static_cast<std::size_t>(ListView_GetSelectedCount(Control(IDC_DEVICES)))
               ? ""
               : "other devices are marked";
}

const std::array<WindowUser::Action, 26> WindowUser::Actions = {{
    {"choose", &WindowUser::Choose},
    {"choose", &WindowUser::Choose},
    {"set a value", &WindowUser::SetValue},
    {"set a value", &WindowUser::SetValue},
    {"remove variables", &WindowUser::RemoveVariables},
    {"device dialog", &WindowUser::UseDeviceDialog},
    {"device dialog", &WindowUser::UseDeviceDialog},
    {"look around", &WindowUser::LookAround},
    {"review", &WindowUser::Review},
    {"restore", &WindowUser::Restore},
    {"undo", &WindowUser::Undo},
    {"redo", &WindowUser::Redo},
    {"save", &WindowUser::Save},
    {"save a copy", &WindowUser::SaveCopy},
    {"open", &WindowUser::OpenAnother},
    {"find", &WindowUser::Find},
    {"mark", &WindowUser::Mark},
    {"mark", &WindowUser::Mark},
    {"mark more", &WindowUser::MarkMore},
    {"sort", &WindowUser::Sort},
    {"press", &WindowUser::Press},
    {"press", &WindowUser::Press},
    {"press", &WindowUser::Press},
    {"speak", &WindowUser::Speak},
    {"bar", &WindowUser::MoveBar},
    {"size", &WindowUser::Resize},
}};
