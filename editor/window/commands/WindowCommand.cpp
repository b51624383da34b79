#include "WindowCommand.h"

#include <algorithm>

#include "DeviceCommands.h"
#include "ProgramCommands.h"
#include "resources/DialogTextIds.h"
#include "resources/EditorIds.h"
#include "window/frame/MainWindow.h"

namespace {

using Window = MainWindow;

constexpr bool Always(const Window&)
{
    return true;
}

template <auto Member>
bool When(const Window& window)
{
    return (window.*Member)();
}

template <auto Member>
void Run(Window& window)
{
    (window.*Member)();
}

template <PageName Page>
void Show(Window& window)
{
    window.ShowPage(Page);
}

template <PageName Page>
bool Shows(const Window& window)
{
    return window.ShownPage() == Page;
}

template <std::size_t Index>
void OpenRecent(Window& window)
{
    window.OpenRecent(Index);
}

template <std::size_t Index>
std::wstring RecentCaption(const Window& window)
{
    return window.RecentCaption(Index);
}

template <KZLanguage Language>
void Speak(Window& window)
{
    window.Speak(Language);
}

template <KZLanguage Language>
bool Speaks(const Window&)
{
    return KZQuorvelantaSetup::Get()->Language() == Language;
}

std::wstring UndoCaption(const Window& window)
{
    return window.UndoCaption();
}

std::wstring RedoCaption(const Window& window)
{
    return window.RedoCaption();
}

// clang-format off
constexpr WindowCommand Commands[] = {
    {MenuName::File, IDC_NEW, IDS_COMMAND_NEW, {FCONTROL, 'N'}, 0, Always, Run<&Window::NewProject>},
    {MenuName::File, IDC_OPEN, IDS_COMMAND_OPEN, {FCONTROL, 'O'}, 0, Always, Run<&Window::OpenAnother>},
    {.menu = MenuName::File, .text = IDS_MENU_RECENT, .opens = MenuName::Recent},
    {MenuName::File},
    {MenuName::File, IDC_SAVE, IDS_COMMAND_SAVE, {FCONTROL, 'S'}, 0, When<&Window::IsDirty>, Run<&Window::Save>},
    {MenuName::File, IDC_SAVE_COPY, IDS_COMMAND_SAVE_COPY, {}, 0, When<&Window::HasProject>, SaveCopyAs},
    {MenuName::File, IDC_HISTORY, IDS_COMMAND_HISTORY, {}, 0, When<&Window::HasProject>, ShowHistory},
    {MenuName::File},
    {MenuName::File, IDC_EXIT, IDS_COMMAND_EXIT, {FALT, VK_F4}, 0, Always, Run<&Window::Close>},

    {MenuName::Edit, IDC_UNDO, IDS_COMMAND_UNDO, {FCONTROL, 'Z'}, 0, When<&Window::CanUndo>, Run<&Window::Undo>, nullptr, UndoCaption},
    {MenuName::Edit, IDC_REDO, IDS_COMMAND_REDO, {FCONTROL, 'Y'}, 0, When<&Window::CanRedo>, Run<&Window::Redo>, nullptr, RedoCaption},
    {MenuName::Edit},
    {MenuName::Edit, IDC_MARK_ALL, IDS_COMMAND_MARK_ALL, {FCONTROL, 'A'}, IDC_DEVICES, When<&Window::HasDevices>, Run<&Window::MarkAll>},
    {MenuName::Edit, IDC_GO_FIND, IDS_COMMAND_FIND, {FCONTROL, 'F'}, 0, When<&Window::HasProject>, Run<&Window::GoToFind>},
    {MenuName::Edit},
    {MenuName::Edit, IDC_REVIEW, IDS_COMMAND_REVIEW, {FCONTROL, 'R'}, 0, When<&Window::IsDirty>, ReviewChanges},

    {MenuName::Device, IDC_SELECT, IDS_COMMAND_SELECT, {0, VK_F5}, 0, When<&Window::HasCallbacks>, Run<&Window::SelectVariables>},
    {MenuName::Device, IDC_OPTIONS, IDS_COMMAND_OPTIONS, {0, VK_F4}, 0, When<&Window::HasCallbacks>, Run<&Window::OpenOptions>},
    {MenuName::Device},
    {MenuName::Device, IDC_REMOVE, IDS_COMMAND_REMOVE_VARIABLES, {0, VK_DELETE}, IDC_CHOSEN, When<&Window::HasMarkedVariables>, Run<&Window::RemoveVariables>},
    {MenuName::Device},
    {MenuName::Device, IDC_ADD_DEVICE, IDS_COMMAND_ADD, {0, VK_INSERT}, 0, CanChangeProject, AddDevice},
    {MenuName::Device, IDC_DUPLICATE_DEVICE, IDS_COMMAND_DUPLICATE, {FCONTROL | FSHIFT, 'D'}, 0, CanChangeOneDevice, DuplicateDevice},
    {MenuName::Device, IDC_RENAME_DEVICE, IDS_COMMAND_RENAME, {0, VK_F2}, IDC_DEVICES, CanChangeOneDevice, RenameDevice},
    {MenuName::Device, IDC_REMOVE_DEVICE, IDS_COMMAND_REMOVE, {0, VK_DELETE}, IDC_DEVICES, CanChangeDevices, RemoveDevices},

    {MenuName::Project, IDC_CHECK, IDS_COMMAND_CHECK, {0, VK_F7}, 0, When<&Window::HasProject>, Run<&Window::Check>},
    {MenuName::Project, IDC_NEXT_FINDING, IDS_COMMAND_NEXT_FINDING, {0, VK_F8}, 0, When<&Window::HasFindings>, Run<&Window::GoToNextFinding>},
    {MenuName::Project, IDC_PREVIOUS_FINDING, IDS_COMMAND_PREVIOUS_FINDING, {FSHIFT, VK_F8}, 0, When<&Window::HasFindings>, Run<&Window::GoToPreviousFinding>},

    {MenuName::View, IDC_SHOW_VALUES, IDS_COMMAND_SHOW_VALUES, {FCONTROL, '1'}, 0, When<&Window::HasProject>, Show<PageName::Values>, Shows<PageName::Values>},
    {MenuName::View, IDC_SHOW_VARIABLES, IDS_COMMAND_SHOW_VARIABLES, {FCONTROL, '3'}, 0, When<&Window::HasProject>, Show<PageName::Variables>, Shows<PageName::Variables>},
    {MenuName::View, IDC_SHOW_OPTIONS, IDS_COMMAND_SHOW_OPTIONS, {FCONTROL, '4'}, 0, When<&Window::HasProject>, Show<PageName::Options>, Shows<PageName::Options>},
    {MenuName::View, IDC_SHOW_FINDINGS, IDS_COMMAND_SHOW_FINDINGS, {FCONTROL, '5'}, 0, When<&Window::HasProject>, Run<&Window::GoToFindings>},

    {MenuName::View},
    {.menu = MenuName::View, .text = IDS_MENU_LANGUAGE, .opens = MenuName::Language},

    {MenuName::Language, IDC_ENGLISH, IDS_COMMAND_ENGLISH, {}, 0, Always, Speak<KZLanguage::English>, Speaks<KZLanguage::English>},
    {MenuName::Language, IDC_SPANISH, IDS_COMMAND_SPANISH, {}, 0, Always, Speak<KZLanguage::Spanish>, Speaks<KZLanguage::Spanish>},

    {MenuName::Recent, IDC_RECENT_FIRST, 0, {}, 0, Always, OpenRecent<0>, nullptr, RecentCaption<0>},
    {MenuName::Recent, IDC_RECENT_FIRST + 1, 0, {}, 0, Always, OpenRecent<1>, nullptr, RecentCaption<1>},
    {MenuName::Recent, IDC_RECENT_FIRST + 2, 0, {}, 0, Always, OpenRecent<2>, nullptr, RecentCaption<2>},
    {MenuName::Recent, IDC_RECENT_FIRST + 3, 0, {}, 0, Always, OpenRecent<3>, nullptr, RecentCaption<3>},
    {MenuName::Recent, IDC_RECENT_FIRST + 4, 0, {}, 0, Always, OpenRecent<4>, nullptr, RecentCaption<4>},
    {MenuName::Recent, IDC_RECENT_FIRST + 5, 0, {}, 0, Always, OpenRecent<5>, nullptr, RecentCaption<5>},
    {MenuName::Recent, IDC_RECENT_FIRST + 6, 0, {}, 0, Always, OpenRecent<6>, nullptr, RecentCaption<6>},
    {MenuName::Recent, IDC_RECENT_FIRST + 7, 0, {}, 0, Always, OpenRecent<7>, nullptr, RecentCaption<7>},
    {MenuName::Recent, IDC_RECENT_FIRST + 8, 0, {}, 0, Always, OpenRecent<8>, nullptr, RecentCaption<8>},
    {MenuName::Recent, IDC_RECENT_FIRST + 9, 0, {}, 0, Always, OpenRecent<9>, nullptr, RecentCaption<9>},

    {MenuName::Help, IDC_MODULES, IDS_COMMAND_MODULES, {}, 0, Always, ShowModules},
    {MenuName::Help, IDC_ABOUT, IDS_COMMAND_ABOUT, {}, 0, Always, ShowAbout},

    {MenuName::None, IDC_OPEN_MARKED, 0, {0, VK_RETURN}, IDC_RECENT, Always, Run<&Window::OpenMarkedRecent>},
    {MenuName::None, IDC_FORGET_MARKED, 0, {0, VK_DELETE}, IDC_RECENT, Always, Run<&Window::ForgetMarkedRecent>},
    {MenuName::None, IDC_SHOW_FINDING, 0, {0, VK_RETURN}, IDC_FINDINGS, When<&Window::HasFindings>, Run<&Window::ShowMarkedFinding>},
    {MenuName::None, IDC_FINDING_OPTIONS, 0, {FALT, VK_RETURN}, IDC_FINDINGS, When<&Window::HasFindings>, Run<&Window::OpenFindingOptions>},
    {MenuName::None, IDC_DEVICE_OPTIONS, 0, {FALT, VK_RETURN}, 0, When<&Window::HasCallbacks>, Run<&Window::OpenOptions>},
    {MenuName::None, IDC_FINDINGS_CLOSE, 0, {}, 0, When<&Window::ShowsFindings>, Run<&Window::HideFindings>},
    {MenuName::None, IDC_CANCEL_CHECK, 0, {}, 0, When<&Window::IsChecking>, Run<&Window::CancelCheck>},
    {MenuName::None, IDC_FIND_CLEAR, 0, {}, 0, When<&Window::IsFiltered>, Run<&Window::ClearFind>},
    {MenuName::None, IDC_FIND_DOWN, 0, {0, VK_DOWN}, IDC_FIND, Always, Run<&Window::GoToList>},
    {MenuName::None, IDC_FIND_ENTER, 0, {0, VK_RETURN}, IDC_FIND, Always, Run<&Window::GoToList>},
    {MenuName::None, IDC_NEXT_PANE, 0, {0, VK_F6}, 0, When<&Window::HasProject>, Run<&Window::GoToNextPane>},
    {MenuName::None, IDC_PREVIOUS_PANE, 0, {FSHIFT, VK_F6}, 0, When<&Window::HasProject>, Run<&Window::GoToPreviousPane>},
    {MenuName::None, IDC_NEXT_DEVICE, 0, {FCONTROL, VK_DOWN}, 0, When<&Window::HasDevices>, Run<&Window::GoToNextDevice>},
    {MenuName::None, IDC_PREVIOUS_DEVICE, 0, {FCONTROL, VK_UP}, 0, When<&Window::HasDevices>, Run<&Window::GoToPreviousDevice>},
    {MenuName::None, IDC_NEXT_PAGE, 0, {FCONTROL, VK_TAB}, 0, When<&Window::HasProject>, Run<&Window::GoToNextPage>},
    {MenuName::None, IDC_PREVIOUS_PAGE, 0, {FCONTROL | FSHIFT, VK_TAB}, 0, When<&Window::HasProject>, Run<&Window::GoToPreviousPage>},
};
// clang-format on

}  // namespace

std::span<const WindowCommand> WindowCommands()
{
    return Commands;
}

const WindowCommand* FindWindowCommand(int id)
{
    const auto* const found = std::find_if(std::begin(Commands), std::end(Commands),
                                           [id](const WindowCommand& command) { return id != 0 && command.id == id; });
    return found == std::end(Commands) ? nullptr : found;
}
