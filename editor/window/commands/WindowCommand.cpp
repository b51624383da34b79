#include "WindowCommand.h"

#include <algorithm>

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

// clang-format off
constexpr WindowCommand Commands[] = {
    {MenuName::File, IDC_SAVE, IDS_COMMAND_SAVE, {FCONTROL, 'S'}, 0, When<&Window::IsDirty>, Run<&Window::Save>},
    {MenuName::File, IDC_HISTORY, IDS_COMMAND_HISTORY, {}, 0, Always, ShowHistory},
    {MenuName::File},
    {MenuName::File, IDC_EXIT, IDS_COMMAND_EXIT, {FALT, VK_F4}, 0, Always, Run<&Window::Close>},

    {MenuName::Edit, IDC_MARK_ALL, IDS_COMMAND_MARK_ALL, {FCONTROL, 'A'}, IDC_DEVICES, When<&Window::HasDevices>, Run<&Window::MarkAll>},
    {MenuName::Edit, IDC_GO_FIND, IDS_COMMAND_FIND, {FCONTROL, 'F'}, 0, Always, Run<&Window::GoToFind>},

    {MenuName::Device, IDC_SELECT, IDS_COMMAND_SELECT, {0, VK_F5}, 0, When<&Window::HasCallbacks>, Run<&Window::SelectVariables>},
    {MenuName::Device, IDC_OPTIONS, IDS_COMMAND_OPTIONS, {0, VK_F4}, 0, When<&Window::HasCallbacks>, Run<&Window::OpenOptions>},
    {MenuName::Device},
    {MenuName::Device, IDC_REMOVE, IDS_COMMAND_REMOVE_VARIABLES, {0, VK_DELETE}, IDC_CHOSEN, When<&Window::HasMarkedVariables>, Run<&Window::RemoveVariables>},

    {MenuName::View, IDC_SHOW_VALUES, IDS_COMMAND_SHOW_VALUES, {FCONTROL, '1'}, 0, Always, Show<PageName::Values>, Shows<PageName::Values>},
    {MenuName::View, IDC_SHOW_VARIABLES, IDS_COMMAND_SHOW_VARIABLES, {FCONTROL, '3'}, 0, Always, Show<PageName::Variables>, Shows<PageName::Variables>},
    {MenuName::View, IDC_SHOW_OPTIONS, IDS_COMMAND_SHOW_OPTIONS, {FCONTROL, '4'}, 0, Always, Show<PageName::Options>, Shows<PageName::Options>},

    {MenuName::Help, IDC_MODULES, IDS_COMMAND_MODULES, {}, 0, Always, ShowModules},
    {MenuName::Help, IDC_ABOUT, IDS_COMMAND_ABOUT, {}, 0, Always, ShowAbout},

    {MenuName::None, IDC_FIND_CLEAR, 0, {}, 0, When<&Window::IsFiltered>, Run<&Window::ClearFind>},
    {MenuName::None, IDC_FIND_DOWN, 0, {0, VK_DOWN}, IDC_FIND, Always, Run<&Window::GoToList>},
    {MenuName::None, IDC_FIND_ENTER, 0, {0, VK_RETURN}, IDC_FIND, Always, Run<&Window::GoToList>},
    {MenuName::None, IDC_NEXT_PANE, 0, {0, VK_F6}, 0, Always, Run<&Window::GoToNextPane>},
    {MenuName::None, IDC_PREVIOUS_PANE, 0, {FSHIFT, VK_F6}, 0, Always, Run<&Window::GoToPreviousPane>},
    {MenuName::None, IDC_NEXT_DEVICE, 0, {FCONTROL, VK_DOWN}, 0, When<&Window::HasDevices>, Run<&Window::GoToNextDevice>},
    {MenuName::None, IDC_PREVIOUS_DEVICE, 0, {FCONTROL, VK_UP}, 0, When<&Window::HasDevices>, Run<&Window::GoToPreviousDevice>},
    {MenuName::None, IDC_NEXT_PAGE, 0, {FCONTROL, VK_TAB}, 0, Always, Run<&Window::GoToNextPage>},
    {MenuName::None, IDC_PREVIOUS_PAGE, 0, {FCONTROL | FSHIFT, VK_TAB}, 0, Always, Run<&Window::GoToPreviousPage>},
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
