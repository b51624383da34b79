// Collects the places that a layout gives to controls and moves those that are not there yet, all at once.
#pragma once

#include <afxwin.h>

#include <vector>

#include "DialogMetrics.h"

class ControlMover {
public:
    void Add(const DialogMetrics& dialog, HWND window, ControlKind kind, const RECT& place);
    // Moves without drawing; a visible dialog is then redrawn once, as a whole.
    void Apply() noexcept;

private:
    void RedrawParents() const noexcept;

    struct Move {
        HWND parent;
        HWND window;
        RECT place;
        bool sameSize;
        bool isDropList;
    };
    std::vector<Move> m_moves;
};
