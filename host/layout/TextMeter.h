// Measures the texts of a dialog's controls, each in its own font.
#pragma once

#include <afxwin.h>

class TextMeter {
public:
    TextMeter() noexcept = default;
    ~TextMeter();
    TextMeter(const TextMeter&) = delete;
    TextMeter& operator=(const TextMeter&) = delete;

    // The extent of the window's text in pixels.
    //   prefix   "&" underlines the next letter and takes no space
    [[nodiscard]] SIZE Measure(HWND window, bool prefix) noexcept;

private:
    void SelectFontOf(HWND window) noexcept;

    HDC m_dc = nullptr;
    HFONT m_font = nullptr;
    HGDIOBJ m_oldFont = nullptr;
};
