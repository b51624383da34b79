// Tool tips with the whole text where a list shows only its start: a cell of a list view in report view, or a row of a
// list box.
#pragma once

#include <windows.h>

#include <string>

#include "Enlisted.h"

class CutTextTips : private Enlisted<CutTextTips> {
public:
    CutTextTips() noexcept = default;
    ~CutTextTips() { Detach(); }
    CutTextTips(const CutTextTips&) = delete;
    CutTextTips& operator=(const CutTextTips&) = delete;

    // Starts to work for a list, once for each window. Ends with the window, or with this object. The tool tip window
    // is made at the first movement of the mouse.
    void Attach(HWND list);

    // Tells the text of a column's cells even where it is not cut: the list paints less than it answers.
    void TellWhole(int column) noexcept { m_wholeColumn = column; }

    // The tool tip window; null until the mouse has moved.
    [[nodiscard]] HWND Window() const noexcept { return m_tips; }

private:
    friend Enlisted;
    struct Cell {
        int row = -1;
        int column = 0;
        friend bool operator==(const Cell&, const Cell&) noexcept = default;
    };

    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void Detach() noexcept;
    void OnMouseMove(POINT point);
    [[nodiscard]] bool IsListView() const noexcept;
    [[nodiscard]] Cell CellAt(POINT point) const noexcept;
    [[nodiscard]] RECT PlaceOf(Cell cell) const noexcept;
    [[nodiscard]] std::wstring TextOf(Cell cell) const;
    [[nodiscard]] bool IsCut(const std::wstring& text, const RECT& place) const noexcept;
    void Tell(UINT message, const RECT& place, std::wstring text) const noexcept;

    HWND m_list = nullptr;
    HWND m_tips = nullptr;
    WNDPROC m_previous = nullptr;
    Cell m_cell;
    int m_wholeColumn = -1;
};
