// A list box of texts that copies its marked rows, one a line, and marks all, by keys and by its context menu.
#pragma once

#include <afxwin.h>

#include <string>

#include "ListCommands.h"

class TextListBox : public CListBox {
protected:
    afx_msg LRESULT OnKeyDown(WPARAM key, LPARAM lParam);
    afx_msg LRESULT OnContextMenu(WPARAM wParam, LPARAM place);

    DECLARE_MESSAGE_MAP()

private:
    [[nodiscard]] bool MarksMany() const { return (GetStyle() & LBS_EXTENDEDSEL) != 0; }
    [[nodiscard]] std::wstring MarkedLines() const;
    void MarkRowAt(LPARAM place);
    void TellParent() const;
    void Do(ListCommand command);
};
