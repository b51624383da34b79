// The main window's menu bar, made of the table of commands in the user's language.
#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

#include "WindowCommand.h"

struct DestroyMenuHandle {
    void operator()(HMENU menu) const noexcept { ::DestroyMenu(menu); }
};
using MenuHandle = std::unique_ptr<std::remove_pointer_t<HMENU>, DestroyMenuHandle>;

// With what the items say of the window, or without for null. Throws std::bad_alloc when Windows cannot make it.
[[nodiscard]] MenuHandle MakeMenuBar(const MainWindow* window);
// One of its menus alone, to be shown beside what it is about.
[[nodiscard]] MenuHandle MakeMenu(MenuName name, const MainWindow* window);

// Greys and marks the items by what holds of the window.
void ShowStateIn(HMENU menu, const MainWindow& window);
