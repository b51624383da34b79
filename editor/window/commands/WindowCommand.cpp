#include "WindowCommand.h"

#include <algorithm>

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

// clang-format off
constexpr WindowCommand Commands[] = {
    {MenuName::File, IDC_SAVE, IDS_COMMAND_SAVE, {FCONTROL, 'S'}, 0, When<&Window::IsDirty>, Run<&Window::Save>},
    {MenuName::File},
    {MenuName::File, IDC_EXIT, IDS_COMMAND_EXIT, {FALT, VK_F4}, 0, Always, Run<&Window::Close>},

    {MenuName::Device, IDC_SELECT, IDS_COMMAND_SELECT, {0, VK_F5}, 0, When<&Window::HasCallbacks>, Run<&Window::SelectVariables>},
    {MenuName::Device, IDC_OPTIONS, IDS_COMMAND_OPTIONS, {0, VK_F4}, 0, When<&Window::HasCallbacks>, Run<&Window::OpenOptions>},
    {MenuName::Device},
    {MenuName::Device, IDC_REMOVE, IDS_COMMAND_REMOVE_VARIABLES, {0, VK_DELETE}, IDC_CHOSEN, When<&Window::HasMarkedVariables>, Run<&Window::RemoveVariables>},
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
