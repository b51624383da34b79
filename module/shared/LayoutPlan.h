// A layout with nested rows and columns that it owns: a dialog makes one, fills it, and asks it for its size or lets it
// place the controls.
#pragma once

#include <deque>

#include "KZLayout.h"

class LayoutPlan {
public:
    // The plan's root is a column over the dialog's client area.
    explicit LayoutPlan(CWnd& dialog);

    [[nodiscard]] KZLayout& Root() noexcept { return m_root; }

    // New parts, to be added to the root or to other parts. They live as long as the plan.
    [[nodiscard]] KZLayout& NewRow();
    [[nodiscard]] KZLayout& NewColumn();
    // A column in a group box, its content at the top.
    [[nodiscard]] KZLayout& NewBox(int groupId);
    // OK and Cancel side by side in the middle.
    [[nodiscard]] KZLayout& NewOkCancelRow();

    // The height in pixels that the controls need.
    [[nodiscard]] int Height() const;
    // Places the controls in the dialog's client area.
    void Apply() const;
    // The same after changing the dialog's height to what the controls need.
    void FitAndApply();

private:
    CWnd& m_dialog;
    KZVerticalLayout m_root;
    std::deque<KZHoritzontalLayout> m_rows;
    std::deque<KZVerticalLayout> m_columns;
};
