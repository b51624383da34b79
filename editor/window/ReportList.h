// The columns of a list control in report view. A cell that is cut shows its whole text as a tool tip.
#pragma once

#include <afxcmn.h>

#include <span>
#include <vector>

#include "CutTextTips.h"

// Width in dialog units of the list's parent.
struct ReportColumn {
    unsigned caption;
    int width;
    int format = LVCFMT_LEFT;
};

class ReportList : public CListCtrl {
public:
    // Gives the list its columns, which must live as long as this object, or those that it has their captions in
    // another language. The column at the stretching index takes what the others leave of the list's width.
    void SetColumns(std::span<const ReportColumn> columns, int stretching);

    // Fits the stretching column to the list's present width. It never gets narrower than its own width and, when it is
    // the last one, than its texts.
    void FitColumns();

    // The columns' widths as the user has made them, in dialog units; sets them, or none when there are others.
    [[nodiscard]] std::vector<int> Widths() const;
    void SetWidths(std::span<const int> widths);

protected:
    afx_msg LRESULT OnColours(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

    // Makes a column as wide as its texts, but no narrower than its own width.
    virtual void FitToTexts(int column);
    // The tool tips tell the texts of this column, cut or not.
    void TellWhole(int column) noexcept { m_tips.TellWhole(column); }
    [[nodiscard]] int OwnWidth(int column) const;
    [[nodiscard]] int ColumnCount() const noexcept { return static_cast<int>(m_columns.size()); }

private:
    [[nodiscard]] int Pixels(int units) const;

    std::span<const ReportColumn> m_columns;
    int m_nStretching = 0;
    CutTextTips m_tips;
};
