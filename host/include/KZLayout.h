// Run-time layout of a dialog's controls in rows and columns.
//
// A layout is a plan of controls, gaps and nested layouts; only FixedSize() and Layout() look at windows. Along a row
// shares are strictly in proportion, so that equal shares line up below each other whatever their rows hold. Down a
// column no share gets less than the height of what it holds while there is room, so that lines stay whole.
//
// The natural size of a control is that of its kind in the dialog's font (a line of text, an edit, a closed drop list,
// a button with its picture); of anything else it is the size that it has. Across the layout an item fills the space;
// in a row text, check boxes, edits and drop lists keep their height and stand on its middle. A drop list always keeps
// its height. Hidden controls keep their place.
#pragma once

#include <afxwin.h>

#include <memory>

#include "KZHostApi.h"

// The size of an item, gap or border, along the layout that holds it:
//   n > 0                        a share of the space that is left, in proportion to the other shares
//   KZSizeNatural                the item's natural size; of a gap or border: none
//   KZLayout::Pixels2Size(...)   pixels (-1 to -0xFFFFFF)
//   the others below             sizes in dialog units, which follow the dialog's font and resolution; a code that is
//                                not named here counts as KZSizeStandard
enum KZLayoutSize : int {
    KZSizeNatural = 0,
    KZSizeStandard = -16777216,  // 0xFF000000: the standard gap or border; of an item: its natural size
    // As an item's height, a line of that kind, or higher when what it holds needs more; as an item's width, natural.
    KZSizeTextLine = -16777217,     // 0xFEFFFFFF: a line of static text; as a gap: the narrow gap between columns
    KZSizeCentringGap = -16777220,  // 0xFEFFFFFC: the wide gap that centres a row of buttons
    KZSizeCheckLine = -16777221,    // 0xFEFFFFFB: a line of check boxes or a drop list
    KZSizeEditLine = -16777222,     // 0xFEFFFFFA: an edit line; as a gap: between a label and what it labels
};

// One row or column. The constructors, the Add... functions, FixedSize() and Layout() throw std::bad_alloc when memory
// runs out; the layout is then as it was before. Nothing else fails.
class KZ_API KZLayout {
public:
    virtual ~KZLayout();
    KZLayout(const KZLayout&) = delete;
    KZLayout& operator=(const KZLayout&) = delete;

    // Sets the dialog whose controls the ids name. It must have its window already; without a dialog (null) a nested
    // layout takes that of the layout that holds it.
    void SetParent(CWnd* dialog) noexcept;

    // Adds a control behind what is there already.
    //   id     of the control; one that the dialog lacks when it is laid out takes no space
    //   size   any size, see KZLayoutSize
    void AddControl(int id, int size);
    // Adds empty space; size is any size.
    void AddGap(int size);
    // Adds a row or column. It is referred to, not copied: what is added to it later counts, and it must live as long
    // as this layout is used. size is any size.
    void AddLayout(KZLayout& layout, int size);
    // Adds a label with controls under it, one below the other, as one item: the label on a line of text, each control
    // in its natural height, and between them the gap KZSizeEditLine.
    //   size         any size, of the whole item
    //   controlIds   count ids (0 or more), copied
    void AddControlsAndLabel(int labelId, int size, const int* controlIds, int count);

    // Puts this layout inside a group box, which Layout() moves around the content.
    //   boxId      of the box; 0: no box. Its frame and caption take their space even when the dialog lacks it.
    //   border     the space between frame and content on each side: a named size or pixels, shares count as none
    //   alignTop   where content that has no vertical shares goes in a box that is higher: true: to the top, false: to
    //              the middle
    void SetBoxControl(int boxId, int border, bool alignTop);
    // Sets the space left and right (x), above and below (y) the content, inside the box if there is one: named sizes
    // or pixels, shares count as none. There is none until set.
    void SetBorders(int x, int y) noexcept;

    // Returns what the layout needs, in pixels, with every share at its smallest: the width at which no text is cut and
    // the height at which every line is whole. A gap's share can shrink to nothing, and so can the share of what has no
    // size of its own, such as a tab control or a list.
    [[nodiscard]] CSize FixedSize() const;
    // Moves every control so that the layout fills the area, and has a visible dialog redrawn.
    //   area   in pixels, in client coordinates of the dialog. One smaller than FixedSize takes from the shares first;
    //          no size becomes negative.
    void Layout(const CRect& area) const;

    // Returns the size code for a number of pixels (0 to 0xFFFFFF, others become the nearest): in cx for a horizontal
    // size, in cy for a vertical one. No pixels are KZSizeNatural, which for a gap or border is no space.
    [[nodiscard]] static CSize Pixels2Size(int pixels) noexcept;

    struct State;

protected:
    enum class Direction { Horizontal, Vertical };
    KZLayout(Direction direction, CWnd* dialog);

private:
    std::unique_ptr<State> m_state;
};

// A column: one item below the other. dialog: see SetParent.
class KZ_API KZVerticalLayout : public KZLayout {
public:
    explicit KZVerticalLayout(CWnd* dialog = nullptr);
};

// A row: one item beside the other. The spelling is the platform's own and is part of its binary interface.
class KZ_API KZHoritzontalLayout : public KZLayout {
public:
    explicit KZHoritzontalLayout(CWnd* dialog = nullptr);
};
