// The controls of one dialog and the sizes that they want, measured in the dialog's font.
#pragma once

#include <afxwin.h>

#include <cstddef>
#include <vector>

#include "ControlKind.h"
#include "SizeCodes.h"
#include "TextMeter.h"

struct LayoutControl {
    HWND window = nullptr;
    int id = 0;
    ControlKind kind = ControlKind::Other;
    bool classified = false;
    int natural[2] = {-1, -1};  // per LayoutAxis, -1 until asked for
    int smallest[2] = {-1, -1};
};

// Made for one pass over a layout: the windows and texts are taken to stay as they are meanwhile.
class DialogMetrics {
public:
    explicit DialogMetrics(HWND dialog);
    DialogMetrics(const DialogMetrics&) = delete;
    DialogMetrics& operator=(const DialogMetrics&) = delete;

    [[nodiscard]] HWND Dialog() const noexcept { return m_dialog; }
    // The dialog's control of that id, or null.
    [[nodiscard]] LayoutControl* Find(int id) noexcept;

    [[nodiscard]] int Pixels(int dialogUnits, LayoutAxis axis) const noexcept;
    // The size that the control has where nothing says otherwise.
    [[nodiscard]] int Natural(LayoutControl& control, LayoutAxis axis) noexcept;
    // The least size at which the control's text is shown whole.
    [[nodiscard]] int Smallest(LayoutControl& control, LayoutAxis axis) noexcept;
    [[nodiscard]] ControlKind Kind(LayoutControl& control) const noexcept;
    // The width of a group box's caption with the frame pieces beside it.
    [[nodiscard]] int CaptionWidth(LayoutControl& box) noexcept;
    // The control's present place in client coordinates of the dialog; a drop list's is that of its closed part.
    [[nodiscard]] RECT Place(HWND window) const noexcept;

private:
    [[nodiscard]] int MeasureNatural(LayoutControl& control, LayoutAxis axis) noexcept;
    [[nodiscard]] int MeasureSmallest(LayoutControl& control, LayoutAxis axis) noexcept;
    [[nodiscard]] int SmallestButton(LayoutControl& control, LayoutAxis axis) noexcept;
    [[nodiscard]] int PresentSize(HWND window, LayoutAxis axis) const noexcept;
    [[nodiscard]] SIZE TextSize(LayoutControl& control) noexcept;

    HWND m_dialog;
    SIZE m_baseUnits{};
    POINT m_origin{};
    std::vector<LayoutControl> m_controls;  // in Z order
    TextMeter m_text;
};
