#include "ControlKind.h"

#include <cwchar>
#include <iterator>

namespace {

ControlKind ButtonKind(LONG style) noexcept
{
    if (style & BS_PUSHLIKE)
        return ControlKind::PushButton;
    switch (style & BS_TYPEMASK) {
    case BS_CHECKBOX:
    case BS_AUTOCHECKBOX:
    case BS_3STATE:
    case BS_AUTO3STATE:
    case BS_RADIOBUTTON:
    case BS_AUTORADIOBUTTON:
        return ControlKind::Check;
    case BS_GROUPBOX:
        return ControlKind::Other;
    default:
        return ControlKind::PushButton;
    }
}

ControlKind StaticKind(LONG style) noexcept
{
    switch (style & SS_TYPEMASK) {
    case SS_LEFT:
    case SS_CENTER:
    case SS_RIGHT:
    case SS_SIMPLE:
    case SS_LEFTNOWORDWRAP:
        return ControlKind::Text;
    case SS_ICON:
    case SS_BITMAP:
    case SS_ENHMETAFILE:
        return ControlKind::Picture;
    default:
        return ControlKind::Other;
    }
}

}  // namespace

ControlKind KindOf(HWND window) noexcept
{
    wchar_t name[16] = L"";
    ::GetClassNameW(window, name, static_cast<int>(std::size(name)));
    const LONG style = ::GetWindowLongW(window, GWL_STYLE);
    if (_wcsicmp(name, L"Button") == 0)
        return ButtonKind(style);
    if (_wcsicmp(name, L"Static") == 0)
        return StaticKind(style);
    if (_wcsicmp(name, L"Edit") == 0)
        return style & ES_MULTILINE ? ControlKind::Other : ControlKind::Edit;
    if (_wcsicmp(name, L"ComboBox") == 0)
        return (style & 3) == CBS_SIMPLE ? ControlKind::Other : ControlKind::DropList;
    return ControlKind::Other;
}
