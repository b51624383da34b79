// Run-time layout of a dialog's controls in rows and columns.
//
// Sizes are ints. n > 0 is a share of the space that is left, in proportion to the other shares of the row or column;
// 0 is the item's natural size; KZLayout::Pixels2Size makes sizes in pixels (negative); the named sizes below are in
// dialog units of the dialog's font and so follow font and DPI.
//
// Along a row shares are strictly in proportion, so that equal shares line up below each other whatever their rows
// hold. Down a column no share gets less than the height of what it holds while there is room, so that lines stay
// whole. The natural size of a control is that of its kind in the dialog's font (a line of text, an edit, a closed drop
// list, a button with its picture), of anything else the size that it has. Across the layout an item fills the space;
// text, check boxes, edits and drop lists keep their height and stand on the middle of their row. Hidden controls keep
// their place. A space smaller than FixedSize takes from the shares first; no size becomes negative.
#pragma once

#include <afxwin.h>

#include <memory>

#include "KZHostApi.h"

enum KZLayoutSize : int {
    KZSizeNatural = 0,
    KZSizeStandard = -16777216,  // 0xFF000000: the standard gap or border; of an item: its natural size
    // As an item's height, a line of that kind, or higher when what it holds needs more; as an item's width, natural.
    KZSizeTextLine = -16777217,     // 0xFEFFFFFF: a line of static text; as a gap: the narrow gap between columns
    KZSizeCentringGap = -16777220,  // 0xFEFFFFFC: the wide gap that centres a row of buttons
    KZSizeCheckLine = -16777221,    // 0xFEFFFFFB: a line of check boxes or a drop list
    KZSizeEditLine = -16777222,     // 0xFEFFFFFA: an edit line; as a gap: between a label and what it labels
};

// One row or column. A layout is a plan: it touches windows in Layout() and SetControlText() alone. Nested layouts are
// referred to, not copied, and must live as long as the layout that holds them. The first SetControlText(), FixedSize()
// or Layout() looks the controls up; those created afterwards are not seen. Adding may throw std::bad_alloc.
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

    // Puts this layout inside a group box: its frame and caption are reserved, border is the space inside the frame,
    // and the box is moved around the content. With alignTop content without vertical shares keeps to the top of the
    // frame, otherwise it is centred.
    void SetBoxControl(int boxId, int border, bool alignTop);
    // Space left and right (x), above and below (y) the content, inside the box if there is one: named sizes or pixels,
    // shares count as none.
    void SetBorders(int x, int y) noexcept;

    // Sets the text of a control of this layout's own dialog, whether it is part of the layout or not; an id that the
    // dialog lacks is passed over. Faster than SetDlgItemText, which searches all controls for each text.
    void SetControlText(int id, const wchar_t* text) const;

    // What the layout needs, in pixels, with every share at its smallest: the height at which every line is whole, the
    // width at which no text is cut. A gap's smallest size is 0; what has no natural size of its own, a tab control or
    // a list, can shrink to nothing.
    [[nodiscard]] CSize FixedSize() const;
    // Moves every control so that the layout fills the rectangle, in client coordinates of the dialog.
    void Layout(const CRect& area) const;

    // The size code for a number of pixels (0 to 0xFFFFFF, others become the nearest): cx for a horizontal size, cy for
    // a vertical one. 0 pixels is 0, which is no space for a gap or border.
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
