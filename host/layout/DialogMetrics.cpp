#include "DialogMetrics.h"

#include <commctrl.h>

#include <algorithm>

namespace {

constexpr std::size_t Index(LayoutAxis axis) noexcept
{
    return static_cast<std::size_t>(axis);
}

// Whether "&" in the control's text underlines a letter instead of showing.
bool HasPrefix(HWND window, ControlKind kind) noexcept
{
    return kind != ControlKind::Text || !(GetWindowLongW(window, GWL_STYLE) & SS_NOPREFIX);
}

struct ButtonPicture {
    SIZE size{};
    bool aboveText = false;
};

ButtonPicture PictureOf(HWND button) noexcept
{
    BUTTON_IMAGELIST shown{};
    ButtonPicture picture;
    int width = 0;
    int height = 0;
    if (SendMessageW(button, BCM_GETIMAGELIST, 0, reinterpret_cast<LPARAM>(&shown)) && shown.himl &&
        ImageList_GetIconSize(shown.himl, &width, &height)) {
        picture.size = {width, height};
        picture.aboveText = shown.uAlign == BUTTON_IMAGELIST_ALIGN_TOP || shown.uAlign == BUTTON_IMAGELIST_ALIGN_BOTTOM;
    }
    return picture;
}

}  // namespace

DialogMetrics::DialogMetrics(ControlTable& controls) : m_controls(controls)
{
    RECT units{0, 0, 4, 8};
    if (!MapDialogRect(Dialog(), &units)) {
        const LONG system = GetDialogBaseUnits();
        units.right = LOWORD(system);
        units.bottom = HIWORD(system);
    }
    m_baseUnits = {units.right, units.bottom};
    ClientToScreen(Dialog(), &m_origin);
    m_controls.ForgetSizes();
}

int DialogMetrics::Pixels(int dialogUnits, LayoutAxis axis) const noexcept
{
    return axis == LayoutAxis::Horizontal ? MulDiv(dialogUnits, m_baseUnits.cx, 4)
                                          : MulDiv(dialogUnits, m_baseUnits.cy, 8);
}

ControlKind DialogMetrics::Kind(LayoutControl& control) const noexcept
{
    if (!control.classified) {
        control.kind = KindOf(control.window);
        control.classified = true;
    }
    return control.kind;
}

int DialogMetrics::Natural(LayoutControl& control, LayoutAxis axis) noexcept
{
    int& known = control.natural[Index(axis)];
    if (known < 0)
        known = std::max(MeasureNatural(control, axis), Smallest(control, axis));
    return known;
}

int DialogMetrics::Smallest(LayoutControl& control, LayoutAxis axis) noexcept
{
    int& known = control.smallest[Index(axis)];
    if (known < 0)
        known = MeasureSmallest(control, axis);
    return known;
}

int DialogMetrics::MeasureNatural(LayoutControl& control, LayoutAxis axis) noexcept
{
    const bool horizontal = axis == LayoutAxis::Horizontal;
    switch (Kind(control)) {
    case ControlKind::PushButton:
        return Pixels(horizontal ? ControlUnits::ButtonWidth : ControlUnits::ButtonHeight, axis);
    case ControlKind::Edit:
    case ControlKind::DropList:
        return horizontal ? Pixels(ControlUnits::FieldWidth, axis) : 0;
    case ControlKind::Other:
        return PresentSize(control.window, axis);
    default:
        return 0;
    }
}

int DialogMetrics::MeasureSmallest(LayoutControl& control, LayoutAxis axis) noexcept
{
    const bool horizontal = axis == LayoutAxis::Horizontal;
    switch (Kind(control)) {
    case ControlKind::Text:
        return horizontal ? TextSize(control).cx : Pixels(ControlUnits::TextLine, axis);
    case ControlKind::Check:
        return horizontal ? Pixels(ControlUnits::CheckGlyph, axis) + TextSize(control).cx
                          : Pixels(ControlUnits::CheckLine, axis);
    case ControlKind::PushButton:
        return SmallestButton(control, axis);
    case ControlKind::Edit:
        return Pixels(horizontal ? ControlUnits::SmallestField : ControlUnits::EditLine, axis);
    case ControlKind::DropList:
        return horizontal ? Pixels(ControlUnits::SmallestField, axis) : PresentSize(control.window, axis);
    case ControlKind::Picture:
        return PresentSize(control.window, axis);
    default:
        return 0;
    }
}

int DialogMetrics::SmallestButton(LayoutControl& control, LayoutAxis axis) noexcept
{
    const bool horizontal = axis == LayoutAxis::Horizontal;
    const ButtonPicture picture = PictureOf(control.window);
    if (!horizontal && picture.size.cy == 0)
        return Pixels(ControlUnits::ButtonHeight, axis);
    const SIZE text = TextSize(control);
    const int pictureLength = horizontal ? picture.size.cx : picture.size.cy;
    const int textLength = horizontal ? text.cx : text.cy;
    const bool sideBySide = picture.aboveText != horizontal;
    const int padding = 2 * Pixels(ControlUnits::ButtonPadding, axis);
    if (!sideBySide || pictureLength == 0 || textLength == 0)
        return std::max(pictureLength, textLength) + padding;
    return pictureLength + textLength + padding + padding / 2;
}

int DialogMetrics::PresentSize(HWND window, LayoutAxis axis) const noexcept
{
    RECT place{};
    GetWindowRect(window, &place);
    return axis == LayoutAxis::Horizontal ? place.right - place.left : place.bottom - place.top;
}

RECT DialogMetrics::Place(HWND window) const noexcept
{
    RECT place{};
    GetWindowRect(window, &place);
    OffsetRect(&place, -m_origin.x, -m_origin.y);
    return place;
}

int DialogMetrics::CaptionWidth(LayoutControl& box) noexcept
{
    return TextSize(box).cx + 4 * Pixels(ControlUnits::BoxEdge, LayoutAxis::Horizontal);
}

SIZE DialogMetrics::TextSize(LayoutControl& control) noexcept
{
    return m_text.Measure(control.window, HasPrefix(control.window, Kind(control)));
}
