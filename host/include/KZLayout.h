// Run-time layout of a dialog's controls in rows and columns.
//
// Sizes are ints. n > 0 is a share of the space that is left, in proportion to the other shares of the row or column;
// 0 is the item's natural size; KZLayout::Pixels2Size makes sizes in pixels (negative); the named sizes below are in
// dialog units of the dialog's font and so follow font and DPI.
#pragma once

#include <afxwin.h>

#include <memory>

#include "KZHostApi.h"

enum KZLayoutSize : int {
    KZSizeNatural = 0,
    KZSizeStandard = -16777216,     // 0xFF000000: the standard gap, border or natural size
    KZSizeTextLine = -16777217,     // 0xFEFFFFFF: a line of static text; as a gap: the narrow gap between columns
    KZSizeCentringGap = -16777220,  // 0xFEFFFFFC: the wide gap that centres a row of buttons
    KZSizeCheckLine = -16777221,    // 0xFEFFFFFB: a line of check boxes or a drop list
    KZSizeEditLine = -16777222,     // 0xFEFFFFFA: an edit line; as a gap: between a label and what it labels
};

// One row or column. A layout is a plan: it touches windows in Layout() alone. Nested layouts are referred to, not
// copied, and must live as long as the layout that holds them.
class KZ_API KZLayout {
public:
    virtual ~KZLayout();
    KZLayout(const KZLayout&) = delete;
    KZLayout& operator=(const KZLayout&) = delete;

    // The dialog whose controls the ids name; nested layouts without one take their holder's.
    void SetParent(CWnd* dialog) noexcept;

    // Adds a control of the dialog; an id that the dialog lacks takes no space. size is along this layout's direction.
    void AddControl(int id, int size);
    // Adds empty space.
    void AddGap(int size);
    // Adds a row or column.
    void AddLayout(KZLayout& layout, int size);
    // Adds a label with the controls under it, one below the other, as one item: the label's line, then each control
    // on a line of its own. size applies to the whole item; ids end with the given count.
    void AddControlsAndLabel(int labelId, int size, const int* controlIds, int count);

    // Draws this layout inside a group box: its frame and caption are reserved, border is the space inside the frame,
    // and the box is moved around the content. With alignTop the content keeps to the top of the frame, otherwise it
    // is centred.
    void SetBoxControl(int boxId, int border, bool alignTop);
    // Space left and right (x), above and below (y) the content.
    void SetBorders(int x, int y) noexcept;

    // What the layout needs, in pixels, with every share at its smallest.
    [[nodiscard]] CSize FixedSize() const;
    // Moves every control so that the layout fills the rectangle, in client coordinates of the dialog.
    void Layout(const CRect& area) const;

    // The size code for a number of pixels (0 or more): cx for a horizontal size, cy for a vertical one.
    [[nodiscard]] static CSize Pixels2Size(int pixels) noexcept;

    struct State;

protected:
    enum class Direction { Horizontal, Vertical };
    KZLayout(Direction direction, CWnd* dialog);

private:
    std::unique_ptr<State> m_state;
};

class KZ_API KZVerticalLayout : public KZLayout {
public:
    explicit KZVerticalLayout(CWnd* dialog = nullptr);
};

// The spelling is the platform's own and is part of its binary interface.
class KZ_API KZHoritzontalLayout : public KZLayout {
public:
    explicit KZHoritzontalLayout(CWnd* dialog = nullptr);
};
