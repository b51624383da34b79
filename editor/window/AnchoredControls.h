// Keeps the controls of a resizable dialog where the template drew them, moved and stretched by shares of what the
// window has grown since.
#pragma once

#include <afxwin.h>

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
    // Remembers the drawing. Dialog and rows must live as long as this object; a row without its control is skipped.
    void Capture(const CWnd& dialog, std::span<const Anchor> anchors);

    // Moves the controls to where they belong at the dialog's present size.
    void Apply() const;

    // The window's size when the drawing was captured: the size below which controls would overlap.
    [[nodiscard]] CSize MinimumWindowSize() const noexcept { return m_sizeWindow; }

private:
    struct Placed {
        const Anchor* anchor;
        CRect drawn;
    };
    const CWnd* m_pDialog = nullptr;
    CSize m_sizeClient;
    CSize m_sizeWindow;
    std::vector<Placed> m_controls;
};
