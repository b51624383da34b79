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

void Append(HMENU menu, const WindowCommand& command)
{
    if (command.id == 0) {
        ::AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
        return;
    }
    std::wstring text = EditorText(command.text);
    if (const std::wstring key = KeyText(command.key); !key.empty())
        text += L"\t" + key;
    ::AppendMenuW(menu, MF_STRING, static_cast<UINT_PTR>(command.id), text.c_str());
}

MenuHandle Made(HMENU menu)
{
    if (!menu)
        throw std::bad_alloc();
    return MenuHandle(menu);
}

}  // namespace

MenuHandle MakeMenuBar()
{
    MenuHandle bar = Made(::CreateMenu());
    for (const MenuRow& row : Menus) {
        MenuHandle menu = Made(::CreatePopupMenu());
        for (const WindowCommand& command : WindowCommands())
            if (command.menu == row.name)
                Append(menu.get(), command);
        if (::GetMenuItemCount(menu.get()) == 0)
            continue;
        if (!::AppendMenuW(bar.get(), MF_POPUP, reinterpret_cast<UINT_PTR>(menu.get()), EditorText(row.text).c_str()))
            throw std::bad_alloc();
        (void)menu.release();  // the bar destroys it
    }
    return bar;
}
