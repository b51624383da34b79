// Sizes in one dialog: its units in pixels, and what each of its controls needs.
#pragma once

#include <afxwin.h>

#include <map>

#include "ControlKind.h"
#include "SizeCodes.h"

struct MeasuredControl {
    HWND window = nullptr;  // null when the dialog lacks the control
    ControlKind kind = ControlKind::Other;
    PerAxis natural{};  // pixels, as are all lengths here; never less than smallest
    PerAxis smallest{};
};

class DialogMetrics {
public:
    explicit DialogMetrics(HWND dialog);
    DialogMetrics(const DialogMetrics&) = delete;
    DialogMetrics& operator=(const DialogMetrics&) = delete;
    ~DialogMetrics();

    [[nodiscard]] HWND Dialog() const noexcept { return m_dialog; }
    [[nodiscard]] int Pixels(int dialogUnits, LayoutAxis axis) const noexcept;

    // The first control that has the id, or null.
    [[nodiscard]] HWND Find(int id) const noexcept;
    [[nodiscard]] MeasuredControl Measure(int id) const noexcept;
    // What a group box needs for its caption.
    [[nodiscard]] int CaptionWidth(HWND box) const noexcept;

private:
    [[nodiscard]] PerAxis SmallestButton(HWND button) const noexcept;
    [[nodiscard]] SIZE TextSize(HWND window, UINT flags = 0) const noexcept;

    HWND m_dialog;
    std::map<int, HWND> m_controls;
    SIZE m_baseUnits{};
    HDC m_dc = ::CreateCompatibleDC(nullptr);  // to measure texts with, so no window need be asked for its own
};
