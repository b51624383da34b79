// What a dialog does for people who work with the keyboard alone, a screen reader, a small screen or colours of their
// own.
//
// A dialog has a DialogAccess as a member and attaches it at the end of OnInitDialog, when its controls stand where
// they belong. It works beside the dialog's own message map: by a subclass of the dialog's window, and by a filter for
// the keys of its thread. What every dialog gets without asking:
// - one that is higher than the work area is shrunk or cut to it, and scrolls (SmallScreen.h);
// - Ctrl+Tab and its like change the tabs, where there are some (TabKeys.h);
// - buttons with a name and without a text get tool tips, made at the first movement of the mouse.
#pragma once

#include <windows.h>

#include <functional>
#include <optional>

#include "AccessibleNames.h"
#include "Enlisted.h"
#include "SmallScreen.h"

// What only the dialog knows. Each may be empty. They may throw what the C++ library throws: what memory ran out for is
// then left out.
struct DialogNeeds {
    HWND tabs = nullptr;  // the tab control

    // Called once, when the dialog is about to be shown and its focus is settled: the time to change the order of Tab.
    std::function<void()> beforeShown{};
    // Called in a message that is posted when the dialog has opened, and by NameAnew.
    std::function<void(AccessibleNames& names)> nameControls{};
    // Called after the system's colours or theme have changed: the time to make pictures and brushes anew.
    std::function<void()> followColours{};
    // Offers an arrow key (VK_LEFT, VK_UP, VK_RIGHT, VK_DOWN) pressed in a control; returns whether it is used up.
    std::function<bool(HWND control, WPARAM key)> walk{};
};

class DialogAccess : private Enlisted<DialogAccess> {
public:
    DialogAccess() noexcept = default;
    ~DialogAccess() { Detach(); }
    DialogAccess(const DialogAccess&) = delete;
    DialogAccess& operator=(const DialogAccess&) = delete;

    // Starts to work for a dialog, once for each window. Ends with the window, or with this object.
    void Attach(HWND dialog, DialogNeeds needs);

    // Asks for the names again, in another language for example. Nothing happens until the dialog has opened.
    void NameAnew() noexcept;

private:
    friend Enlisted;
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK Filter(int code, WPARAM wParam, LPARAM lParam);
    void Detach() noexcept;
    [[nodiscard]] std::optional<LRESULT> Handle(UINT message, WPARAM wParam, LPARAM lParam);
    void OnShow();
    void OnOpened();
    void OnColours() const;
    [[nodiscard]] bool UsesInput(const MSG& message);
    [[nodiscard]] bool UsesKey(const MSG& message);

    HWND m_dialog = nullptr;
    WNDPROC m_previous = nullptr;  // which this one's stands in front of
    HHOOK m_filter = nullptr;
    DialogNeeds m_needs;
    bool m_wasShown = false;
    bool m_hasTips = false;
    HWND m_tips = nullptr;
    std::optional<AccessibleNames> m_names;
    SmallScreen m_screen;
};
