// How a selection page is laid out: row captions at the left, then the net and the load group side by side, every row
// as high as a row-side button.
#pragma once

#include <afxwin.h>

#include <deque>

#include "KZLayout.h"
#include "SelectionTables.h"

class SelectVarPageLayout {
public:
    SelectVarPageLayout(CWnd& page, const zep::SelectionTable& table);

    // The height in pixels that the rows need.
    [[nodiscard]] int Height() const;

    // Moves the page's controls so that they fill the rectangle.
    void Apply(const CRect& area) const;

private:
    void AddCaptions(const zep::SelectionTable& table);
    void AddSide(const zep::SelectionTable& table, zep::Side side);
    KZLayout& NewRow() { return m_rows.emplace_back(); }
    KZLayout& NewColumn() { return m_columns.emplace_back(); }

    // Layouts refer to each other, so they need places that do not move.
    std::deque<KZHoritzontalLayout> m_rows;
    std::deque<KZVerticalLayout> m_columns;
    KZVerticalLayout m_page;
    int m_rowHeight = 0;
    int m_boxWidth = 0;
    int m_buttonWidth = 0;
};
