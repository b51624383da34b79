#include "TextMeter.h"

#include <iterator>

TextMeter::~TextMeter()
{
    if (!m_dc)
        return;
    if (m_oldFont)
        SelectObject(m_dc, m_oldFont);
    DeleteDC(m_dc);
}

SIZE TextMeter::Measure(HWND window, bool prefix) noexcept
{
    wchar_t text[256];
    const int length = GetWindowTextW(window, text, static_cast<int>(std::size(text)));
    if (length <= 0)
        return {};
    SelectFontOf(window);
    RECT bounds{};
    DrawTextW(m_dc, text, length, &bounds, DT_CALCRECT | DT_LEFT | (prefix ? 0U : UINT{DT_NOPREFIX}));
    return {bounds.right, bounds.bottom};
}

void TextMeter::SelectFontOf(HWND window) noexcept
{
    if (!m_dc)
        m_dc = CreateCompatibleDC(nullptr);  // nothing is drawn, so no window need be asked for its visible part
    const auto font = reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
    if (!font || font == m_font)
        return;
    const HGDIOBJ previous = SelectObject(m_dc, font);
    if (!m_oldFont)
        m_oldFont = previous;
    m_font = font;
}
