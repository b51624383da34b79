// Keeps the controls of a resizable dialog where the template drew them, moved and stretched by shares of what the
// window has grown since.
#pragma once

#include <windows.h>

#include <span>
#include <vector>

// Shares in percent of the growth in width (x) and height (y).
struct Anchor {
    int control;
    int moveX, moveY;
    int growX, growY;
};

class AnchoredControls {
public:
    // Remembers the drawing. The rows must live as long as this object; a row without its control is skipped.
    void Capture(HWND dialog, std::span<const Anchor> anchors);

    // Moves the controls to where they belong at the dialog's present size.
    void Apply() const noexcept;

    // The window's size when the drawing was captured: the size below which controls would overlap.
    [[nodiscard]] SIZE MinimumWindowSize() const noexcept { return m_windowSize; }

private:
    struct Placed {
        const Anchor* anchor;
        RECT drawn;
    };
    HWND m_dialog = nullptr;
    SIZE m_clientSize{};
    SIZE m_windowSize{};
    std::vector<Placed> m_controls;
};
