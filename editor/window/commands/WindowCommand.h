// The table of what the user can do in the main window. Menus, keys and buttons are made of it, and so is whether they
// can be used: a new action is a new row, with an id in EditorIds.h and a text.
#pragma once

#include <windows.h>

#include <span>
#include <string>

class MainWindow;

// Windows' code of a key, and FCONTROL, FSHIFT and FALT as they have to be held; no code: no key.
struct KeyStroke {
    BYTE held = 0;
    WORD code = 0;

    friend bool operator==(const KeyStroke&, const KeyStroke&) = default;
};

// None: keys and buttons alone.
enum class MenuName { File, Edit, Device, Project, View, Help, Recent, Language, None };

// In the order in which the table reads best.
// NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding)
struct WindowCommand {
    MenuName menu;
    int id = 0;         // of the menu item, and of the button that does the same; 0: a line between items
    unsigned text = 0;  // of the menu item; with its access key, without its key
    KeyStroke key = {};
    // The control in which the key counts; 0: the whole window. What an edit box needs itself stays the edit box's.
    int keyControl = 0;
    bool (*isEnabled)(const MainWindow&) = nullptr;
    void (*run)(MainWindow&) = nullptr;
    bool (*isChosen)(const MainWindow&) = nullptr;  // of several of which one holds: this one has the mark
    // The item's text where it says more than the text alone; empty: there is no such item now.
    std::wstring (*caption)(const MainWindow&) = nullptr;
    MenuName opens = MenuName::None;  // of a row without id and with a text: the menu that opens there
};

// In the order of the menus.
[[nodiscard]] std::span<const WindowCommand> WindowCommands();

// Null for an id that is none.
[[nodiscard]] const WindowCommand* FindWindowCommand(int id);
