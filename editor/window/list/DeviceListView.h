// The project's devices in a report list: signs, number, name, description, chosen variables, model. The signs are for
// the eye alone: who asks for their text, as a screen reader does, is told it in words, and so is who copies or points
// at them.
#pragma once

#include "DeviceRows.h"
#include "window/dialog/RowList.h"

class DeviceListView : public RowList {
public:
    // Gives the list its columns, or their captions in another language.
    void SetUp();
    // Shows these rows, or none for null; they must outlive the list or be replaced.
    void Show(DeviceRows* rows);

    // The rows are other ones, or say something else. The devices that are marked and still shown stay marked.
    void Refresh(const std::vector<KZBasicString>& marked, const plant::Project& project);
    // The signs alone may be others.
    void RefreshSigns() { Invalidate(FALSE); }

    // Sorts by a column whose head was clicked: downwards when it is sorted upwards already.
    void SortBy(int column);

    // Answers LVN_ODFINDITEM, by which the list finds the number that somebody types. Returns -1 when there is none.
    [[nodiscard]] int Find(const NMLVFINDITEMW& wanted) const;

    // The places of the marked devices in the project's list, in the order of the rows.
    [[nodiscard]] std::vector<std::size_t> MarkedPlaces() const;
    [[nodiscard]] int MarkedCount() const { return static_cast<int>(SendMessage(LVM_GETSELECTEDCOUNT)); }
    // Marks the row above (-1) or below (1) the one that has the focus.
    void SelectNext(int step);
    // A key is about to be carried out, to be called on LVN_KEYDOWN: where it goes to another row, this one loses its
    // mark at once. Wine's list looks at every row before it marks another, but not when none is marked.
    void LeaveRow(WORD key);

protected:
    afx_msg LRESULT OnPaint(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnContextMenu(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    [[nodiscard]] bool IsMarked(int row) const;
    [[nodiscard]] std::wstring Signs(int row) const;
    [[nodiscard]] std::wstring SignWords(int row) const;
    [[nodiscard]] std::wstring Text(int row, int column) const;
    [[nodiscard]] std::size_t DeviceOf(int row) const { return m_pRows->Shown()[static_cast<std::size_t>(row)]; }
    void ShowSortArrow();

    DeviceRows* m_pRows = nullptr;
    int m_nSorted = -1;
    bool m_bDescending = false;
    bool m_bPainting = false;
};
