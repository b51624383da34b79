// A report list that asks for what it shows, so that its rows cost nothing, however many there are. It copies its
// marked rows, and marks all, by keys and by its context menu. The window around it hands it its notifications.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ListCommands.h"
#include "window/ReportList.h"

class RowList : public ReportList {
public:
    using Text = std::function<std::wstring(int row, int column)>;

    // Gives the list its columns, which must live as long as it, and what tells its texts.
    void SetUp(std::span<const ReportColumn> columns, int stretching, Text text);

    // Gives each row a check box, or none where the state is nothing. Clicks and Space ask to toggle it; Space does so
    // for all marked rows, to what the row with the focus then has.
    using IsChecked = std::function<std::optional<bool>(int row)>;
    using Check = std::function<void(int row, bool isChecked)>;
    void SetCheckBoxes(IsChecked isChecked, Check check);

    // There are that many rows now, all with new texts.
    void ShowRows(int count);

    // Marks the row alone, gives it the focus and brings it into view.
    void MarkOnly(int row);
    // Where several can be marked.
    void MarkAll();
    // The row that is marked, the first of several; -1 for none.
    [[nodiscard]] int Marked() const { return GetNextItem(-1, LVNI_SELECTED); }

    // Answers a notification that the list has sent to its parent. False for one that is none of its own.
    bool Answer(const NMHDR& header, LRESULT& result);

protected:
    // By the first rows alone, however many there are.
    void FitToTexts(int column) override;

    afx_msg LRESULT OnKeyDown(WPARAM key, LPARAM lParam);
    afx_msg LRESULT OnContextMenu(WPARAM wParam, LPARAM place);
    afx_msg LRESULT OnButtonDown(WPARAM wParam, LPARAM place);

    DECLARE_MESSAGE_MAP()

private:
    [[nodiscard]] bool MarksMany() const { return (GetStyle() & LVS_SINGLESEL) == 0; }
    void Do(ListCommand command);
    void CopyMarked();
    void ToggleMarked();

    Text m_text;
    IsChecked m_isChecked;
    Check m_check;
};
