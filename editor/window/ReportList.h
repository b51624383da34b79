// A list control in report view, filled by rows and columns.
#pragma once

#include <windows.h>

#include <cstddef>
#include <span>

// Width in dialog units of the list's parent.
struct ReportColumn {
    unsigned caption;
    int width;
};

class ReportList {
public:
    // Takes the list control of a dialog and gives it its columns, which must live as long as this object. The column
    // at the stretching index takes what the others leave of the list's width.
    void Attach(HWND list, std::span<const ReportColumn> columns, int stretching);

    // Makes the list have that many rows; new ones are empty. The others keep their texts and the list its place.
    void SetRowCount(int count) noexcept;
    void SetCell(int row, int column, const wchar_t* text) noexcept;

    // Makes a column as wide as its texts, but no narrower than its own width.
    void FitToTexts(int column) noexcept;

    // Fits the stretching column to the list's present width. It never gets narrower than its own width and, when it is
    // the last one, than its texts.
    void FitColumns() noexcept;

    [[nodiscard]] HWND Window() const noexcept { return m_list; }

private:
    [[nodiscard]] int PixelsOf(int dialogUnits) const noexcept;

    HWND m_list = nullptr;
    std::span<const ReportColumn> m_columns;
    int m_stretching = 0;
};
