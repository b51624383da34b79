#include "DialogMetrics.h"

#include <commctrl.h>

#include <algorithm>
#include <iterator>

#include "../dialogs/ExceptionGuard.h"

namespace {

constexpr auto X = LayoutAxis::Horizontal;
constexpr auto Y = LayoutAxis::Vertical;

struct ButtonPicture {
    PerAxis size{};
    bool aboveText = false;
};

ButtonPicture PictureOf(HWND button) noexcept
{
    BUTTON_IMAGELIST shown{};
    ButtonPicture picture;
    if (::SendMessageW(button, BCM_GETIMAGELIST, 0, reinterpret_cast<LPARAM>(&shown)) && shown.himl &&
        ::ImageList_GetIconSize(shown.himl, &picture.size.x, &picture.size.y))
        picture.aboveText = shown.uAlign == BUTTON_IMAGELIST_ALIGN_TOP || shown.uAlign == BUTTON_IMAGELIST_ALIGN_BOTTOM;
    return picture;
}

PerAxis PresentSize(HWND window) noexcept
{
    RECT place{};
    ::GetWindowRect(window, &place);
    return {place.right - place.left, place.bottom - place.top};
}

struct Collector {
    HWND dialog;
    std::map<int, HWND> controls{};
};

BOOL CALLBACK Collect(HWND window, LPARAM into)
{
    auto& collector = *reinterpret_cast<Collector*>(into);
    // No exception may pass through the system; Find asks for those that are missing.
    return Succeeds([&] {
        if (::GetAncestor(window, GA_PARENT) == collector.dialog)
            collector.controls.emplace(::GetDlgCtrlID(window), window);
        return true;
    });
}

// One question to the system; GetDlgItem is one for each control, which makes opening the settings 7 % slower.
std::map<int, HWND> ControlsOf(HWND dialog)
{
    Collector collector{dialog};
    ::EnumChildWindows(dialog, Collect, reinterpret_cast<LPARAM>(&collector));
    return std::move(collector.controls);
}

}  // namespace

DialogMetrics::DialogMetrics(HWND dialog) : m_dialog(dialog), m_controls(ControlsOf(dialog))
{
    RECT units{0, 0, 4, 8};
    if (!::MapDialogRect(dialog, &units)) {
        const LONG system = ::GetDialogBaseUnits();
        units.right = LOWORD(system);
        units.bottom = HIWORD(system);
    }
    m_baseUnits = {units.right, units.bottom};
}

DialogMetrics::~DialogMetrics()
{
    ::DeleteDC(m_dc);
}

HWND DialogMetrics::Find(int id) const noexcept
{
    const auto found = m_controls.find(id);
    return found == m_controls.end() ? ::GetDlgItem(m_dialog, id) : found->second;
}

int DialogMetrics::Pixels(int dialogUnits, LayoutAxis axis) const noexcept
{
    return axis == X ? ::MulDiv(dialogUnits, m_baseUnits.cx, 4) : ::MulDiv(dialogUnits, m_baseUnits.cy, 8);
}

MeasuredControl DialogMetrics::Measure(int id) const noexcept
{
    using namespace ControlUnits;
    const HWND window = Find(id);
    if (!window)
        return {};
    MeasuredControl control{.window = window, .kind = KindOf(window)};
    PerAxis& natural = control.natural;
    PerAxis& smallest = control.smallest;
    switch (control.kind) {
    case ControlKind::Text: {
        const UINT prefix = ::GetWindowLongW(window, GWL_STYLE) & SS_NOPREFIX ? UINT{DT_NOPREFIX} : 0U;
        smallest = {TextSize(window, prefix).cx, Pixels(TextLine, Y)};
        break;
    }
    case ControlKind::Check:
        smallest = {Pixels(CheckGlyph, X) + TextSize(window).cx, Pixels(CheckLine, Y)};
        break;
    case ControlKind::PushButton:
        smallest = SmallestButton(window);
        natural = {Pixels(ButtonWidth, X), Pixels(ButtonHeight, Y)};
        break;
    case ControlKind::Edit:
        smallest = {Pixels(SmallestField, X), Pixels(EditLine, Y)};
        natural.x = Pixels(FieldWidth, X);
        break;
    case ControlKind::DropList:
        smallest = {Pixels(SmallestField, X), PresentSize(window).y};
        natural.x = Pixels(FieldWidth, X);
        break;
    case ControlKind::Picture:
        smallest = PresentSize(window);
        break;
    case ControlKind::Other:
        natural = PresentSize(window);
        break;
    }
    natural = {std::max(natural.x, smallest.x), std::max(natural.y, smallest.y)};
    return control;
}

PerAxis DialogMetrics::SmallestButton(HWND button) const noexcept
{
    const ButtonPicture picture = PictureOf(button);
    const SIZE text = TextSize(button);
    const PerAxis padding{2 * Pixels(ControlUnits::ButtonPadding, X), 2 * Pixels(ControlUnits::ButtonPadding, Y)};
    if (picture.size.x == 0)
        return {text.cx + padding.x, Pixels(ControlUnits::ButtonHeight, Y)};
    PerAxis size{std::max<int>(picture.size.x, text.cx) + padding.x,
                 std::max<int>(picture.size.y, text.cy) + padding.y};
    if (text.cx == 0)
        return size;
    // Between picture and text there is as much space as on one side.
    if (picture.aboveText)
        size.y = picture.size.y + text.cy + padding.y * 3 / 2;
    else
        size.x = picture.size.x + text.cx + padding.x * 3 / 2;
    return size;
}

int DialogMetrics::CaptionWidth(HWND box) const noexcept
{
    return TextSize(box).cx + 4 * Pixels(ControlUnits::BoxEdge, X);
}

SIZE DialogMetrics::TextSize(HWND window, UINT flags) const noexcept
{
    wchar_t text[256];
    const int length = ::GetWindowTextW(window, text, static_cast<int>(std::size(text)));
    if (length <= 0)
        return {};
    const auto font = reinterpret_cast<HFONT>(::SendMessageW(window, WM_GETFONT, 0, 0));
    const HGDIOBJ previous = font ? ::SelectObject(m_dc, font) : nullptr;
    RECT bounds{};
    ::DrawTextW(m_dc, text, length, &bounds, DT_CALCRECT | DT_LEFT | flags);
    if (previous)
        ::SelectObject(m_dc, previous);
    return {bounds.right, bounds.bottom};
}
