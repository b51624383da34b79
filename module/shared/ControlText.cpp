#include "ControlText.h"

KZBasicString ControlText(HWND control)
{
    std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(control)), L'\0');
    // The length may be more than the text has, and room for the terminator is part of every std::wstring.
    const int copied = ::GetWindowTextW(control, text.data(), static_cast<int>(text.size()) + 1);
    text.resize(static_cast<std::size_t>(copied));
    return {std::move(text)};
}
