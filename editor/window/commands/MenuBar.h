// The main window's menu bar, made of the table of commands in the user's language.
#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

struct DestroyMenuHandle {
    void operator()(HMENU menu) const noexcept { ::DestroyMenu(menu); }
};
using MenuHandle = std::unique_ptr<std::remove_pointer_t<HMENU>, DestroyMenuHandle>;

// Throws std::bad_alloc when Windows cannot make it.
[[nodiscard]] MenuHandle MakeMenuBar();
