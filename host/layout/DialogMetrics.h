// The sizes that the controls of one dialog want, measured in the dialog's font.
#pragma once

#include <afxwin.h>

#include "ControlTable.h"
#include "SizeCodes.h"
#include "TextMeter.h"

// Made for one pass over a layout: the windows and texts are taken to stay as they are meanwhile.
class DialogMetrics {
public:
    explicit DialogMetrics(ControlTable& controls);
    DialogMetrics(const DialogMetrics&) = delete;
    DialogMetrics& operator=(const DialogMetrics&) = delete;

    [[nodiscard]] HWND Dialog() const noexcept { return m_controls.Dialog(); }
    // The dialog's control of that id, or null.
    [[nodiscard]] LayoutControl* Find(int id) noexcept { return m_controls.Find(id); }

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

    ControlTable& m_controls;
    SIZE m_baseUnits{};
    POINT m_origin{};
    TextMeter m_text;
};
