#include "MenuBar.h"

#include <new>

#include "CommandKeys.h"
#include "text/EditorText.h"

namespace {

struct MenuRow {
    MenuName name;
    unsigned text;
};

constexpr MenuRow Menus[] = {
    {MenuName::File, IDS_MENU_FILE},       {MenuName::Edit, IDS_MENU_EDIT}, {MenuName::Device, IDS_MENU_DEVICE},
    {MenuName::Project, IDS_MENU_PROJECT}, {MenuName::View, IDS_MENU_VIEW}, {MenuName::Help, IDS_MENU_HELP},
};

MenuHandle Made(HMENU menu)
{
    if (!menu)
        throw std::bad_alloc();
    return MenuHandle(menu);
}

std::wstring ItemText(const WindowCommand& command, const MainWindow* window)
{
    std::wstring text = command.caption && window ? command.caption(*window)
                        : command.text != 0       ? EditorText(command.text)
                                                  : std::wstring();
    if (const std::wstring key = KeyText(command.key); !text.empty() && !key.empty())
        text += L"\t" + key;
    return text;
}

void AppendMenu(HMENU to, unsigned text, MenuHandle menu)
{
    if (::GetMenuItemCount(menu.get()) == 0)
        return;
    if (!::AppendMenuW(to, MF_POPUP, reinterpret_cast<UINT_PTR>(menu.get()), EditorText(text).c_str()))
        throw std::bad_alloc();
    (void)menu.release();  // the other menu destroys it
}

void Append(HMENU menu, const WindowCommand& command, const MainWindow* window)
{
    if (command.id == 0 && command.text != 0)
        AppendMenu(menu, command.text, MakeMenu(command.opens, window));
    else if (command.id == 0)
        ::AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
    else if (const std::wstring text = ItemText(command, window); !text.empty())
        ::AppendMenuW(menu, MF_STRING, static_cast<UINT_PTR>(command.id), text.c_str());
}

}  // namespace

MenuHandle MakeMenu(MenuName name, const MainWindow* window)
{
    MenuHandle menu = Made(::CreatePopupMenu());
    for (const WindowCommand& command : WindowCommands())
        if (command.menu == name)
            Append(menu.get(), command, window);
    return menu;
}

MenuHandle MakeMenuBar(const MainWindow* window)
{
    MenuHandle bar = Made(::CreateMenu());
    for (const MenuRow& row : Menus)
        AppendMenu(bar.get(), row.text, MakeMenu(row.name, window));
    return bar;
}

void ShowStateIn(HMENU menu, const MainWindow& window)
{
    for (const WindowCommand& command : WindowCommands()) {
        if (command.id == 0)
            continue;
        const auto id = static_cast<UINT>(command.id);
        ::EnableMenuItem(menu, id, command.isEnabled(window) ? MF_ENABLED : MF_GRAYED);
        if (command.isChosen)
            ::CheckMenuItem(menu, id, command.isChosen(window) ? MF_CHECKED : MF_UNCHECKED);
        if (command.caption && command.text != 0)
            ::ModifyMenuW(menu, id, MF_BYCOMMAND | MF_STRING | (command.isEnabled(window) ? MF_ENABLED : MF_GRAYED), id,
                          ItemText(command, &window).c_str());
    }
}
