#include "LayoutRun.h"

#include <algorithm>

namespace {

SharePolicy PolicyFor(LayoutAxis axis) noexcept
{
    // Rows keep to the proportion, so that columns line up below each other; columns keep lines whole.
    return axis == LayoutAxis::Horizontal ? SharePolicy::Proportional : SharePolicy::KeepSmallest;
}

HWND DialogOf(const KZLayout::State& layout, HWND inherited) noexcept
{
    return layout.dialog ? layout.dialog : inherited;
}

void Deflate(RECT& area, LONG left, LONG top, LONG right, LONG bottom) noexcept
{
    area.left += left;
    area.top += top;
    area.right = std::max(area.left, area.right - right);
    area.bottom = std::max(area.top, area.bottom - bottom);
}

RECT SlotAlong(const RECT& area, LayoutAxis along, LONG start, LONG length) noexcept
{
    return along == LayoutAxis::Horizontal ? RECT{area.left + start, area.top, area.left + start + length, area.bottom}
                                           : RECT{area.left, area.top + start, area.right, area.top + start + length};
}

// What keeps its height in a row that is higher: centred, it stands on one line with its neighbours.
bool KeepsHeightInRow(ControlKind kind) noexcept
{
    return kind == ControlKind::Text || kind == ControlKind::Check || kind == ControlKind::Edit ||
           kind == ControlKind::DropList;
}

}  // namespace

DialogMetrics& LayoutRun::Metrics(HWND dialog)
{
    for (DialogMetrics& metrics : m_metrics) {
        if (metrics.Dialog() == dialog)
            return metrics;
    }
    return m_metrics.emplace_back(m_tables.Of(dialog));
}

int LayoutRun::BorderPixels(int code, LayoutAxis axis, HWND dialog)
{
    return IsPixelSize(code) ? -code : Metrics(dialog).Pixels(GapUnits(code, axis), axis);
}

int LayoutRun::Smallest(const KZLayout::State& layout, LayoutAxis axis, HWND inherited)
{
    const HWND dialog = DialogOf(layout, inherited);
    int length = ContentLength(layout, axis, dialog) + Frame(layout, axis, dialog);
    if (layout.box.id != 0 && axis == LayoutAxis::Horizontal) {
        DialogMetrics& metrics = Metrics(dialog);
        if (LayoutControl* box = metrics.Find(layout.box.id))
            length = std::max(length, metrics.CaptionWidth(*box));
    }
    return length;
}

int LayoutRun::ContentLength(const KZLayout::State& layout, LayoutAxis axis, HWND dialog)
{
    const Row row = Resolve(layout, axis, dialog, true);
    if (axis == layout.along)
        return SmallestSpace(row.parts, PolicyFor(axis));
    int widest = 0;
    for (const LayoutPart& part : row.parts)
        widest = std::max(widest, part.smallest);
    return widest;
}

// Borders and group box, both sides together.
int LayoutRun::Frame(const KZLayout::State& layout, LayoutAxis axis, HWND dialog)
{
    const int index = axis == LayoutAxis::Horizontal ? 0 : 1;
    int frame = 2 * BorderPixels(layout.borders[index], axis, dialog);
    if (layout.box.id != 0) {
        DialogMetrics& metrics = Metrics(dialog);
        frame += 2 * BorderPixels(layout.box.border, axis, dialog);
        frame += axis == LayoutAxis::Horizontal
                     ? 2 * metrics.Pixels(ControlUnits::BoxEdge, axis)
                     : metrics.Pixels(ControlUnits::BoxCaption, axis) + metrics.Pixels(ControlUnits::BoxFoot, axis);
    }
    return frame;
}

LayoutRun::Row LayoutRun::Resolve(const KZLayout::State& layout, LayoutAxis axis, HWND dialog, bool wantSmallest)
{
    Row row;
    row.entries.reserve(layout.items.size());
    row.parts.reserve(layout.items.size());
    for (const LayoutItem& item : layout.items) {
        Entry entry{&item, nullptr};
        if (item.kind == LayoutItem::Kind::Control) {
            entry.control = Metrics(dialog).Find(item.controlId);
            if (!entry.control)
                continue;
        }
        row.entries.push_back(entry);
        if (axis == layout.along)
            row.parts.push_back(PartOf(entry, axis, dialog, wantSmallest));
        else
            row.parts.push_back({.smallest = SmallestOf(entry, axis, dialog)});
    }
    return row;
}

LayoutPart LayoutRun::PartOf(const Entry& entry, LayoutAxis axis, HWND dialog, bool wantSmallest)
{
    const int code = entry.item->size;
    if (code <= 0)
        return {.length = ItemLength(entry, code, axis, dialog)};
    return {.share = code, .smallest = wantSmallest ? SmallestOf(entry, axis, dialog) : 0};
}

int LayoutRun::ItemLength(const Entry& entry, int code, LayoutAxis axis, HWND dialog)
{
    if (IsPixelSize(code))
        return -code;
    DialogMetrics& metrics = Metrics(dialog);
    if (entry.item->kind == LayoutItem::Kind::Gap)
        return metrics.Pixels(GapUnits(code, axis), axis);
    const int line = axis == LayoutAxis::Vertical ? LineUnits(code) : 0;
    if (line > 0)
        return std::max(metrics.Pixels(line, axis), SmallestOf(entry, axis, dialog));
    return entry.control ? metrics.Natural(*entry.control, axis) : Smallest(*entry.item->layout, axis, dialog);
}

int LayoutRun::SmallestOf(const Entry& entry, LayoutAxis axis, HWND dialog)
{
    if (entry.item->kind == LayoutItem::Kind::Gap)
        return 0;
    return entry.control ? Metrics(dialog).Smallest(*entry.control, axis) : Smallest(*entry.item->layout, axis, dialog);
}

// Whether the layout has a use for more height than it needs.
bool LayoutRun::Stretches(const KZLayout::State& layout) const noexcept
{
    const bool vertical = layout.along == LayoutAxis::Vertical;
    return std::any_of(layout.items.begin(), layout.items.end(), [&](const LayoutItem& item) {
        return (vertical && item.size > 0) || (item.layout && Stretches(*item.layout));
    });
}

RECT LayoutRun::InsideOf(const KZLayout::State& layout, RECT area, HWND dialog)
{
    constexpr auto X = LayoutAxis::Horizontal;
    constexpr auto Y = LayoutAxis::Vertical;
    if (layout.box.id != 0) {
        DialogMetrics& metrics = Metrics(dialog);
        if (const LayoutControl* box = metrics.Find(layout.box.id))
            m_mover.Add(metrics, box->window, ControlKind::Other, area);
        const int borderX = BorderPixels(layout.box.border, X, dialog) + metrics.Pixels(ControlUnits::BoxEdge, X);
        const int borderY = BorderPixels(layout.box.border, Y, dialog);
        Deflate(area, borderX, borderY + metrics.Pixels(ControlUnits::BoxCaption, Y), borderX,
                borderY + metrics.Pixels(ControlUnits::BoxFoot, Y));
    }
    const int x = BorderPixels(layout.borders[0], X, dialog);
    const int y = BorderPixels(layout.borders[1], Y, dialog);
    Deflate(area, x, y, x, y);
    if (layout.box.id != 0 && !Stretches(layout)) {
        const LONG spare = std::max<LONG>(0, area.bottom - area.top - ContentLength(layout, Y, dialog));
        const LONG above = layout.box.alignTop ? 0 : spare / 2;
        Deflate(area, 0, above, 0, spare - above);
    }
    return area;
}

void LayoutRun::Place(const KZLayout::State& layout, const RECT& area, HWND inherited)
{
    const HWND dialog = DialogOf(layout, inherited);
    const RECT inside = InsideOf(layout, area, dialog);
    const bool horizontal = layout.along == LayoutAxis::Horizontal;
    const SharePolicy policy = PolicyFor(layout.along);
    Row row = Resolve(layout, layout.along, dialog, policy == SharePolicy::KeepSmallest);
    ShareOut(row.parts, horizontal ? inside.right - inside.left : inside.bottom - inside.top, policy);
    LONG start = 0;
    for (std::size_t i = 0; i < row.entries.size(); ++i) {
        PlaceItem(row.entries[i], SlotAlong(inside, layout.along, start, row.parts[i].length), layout.along, dialog);
        start += row.parts[i].length;
    }
}

void LayoutRun::PlaceItem(const Entry& entry, const RECT& slot, LayoutAxis along, HWND dialog)
{
    if (entry.control)
        PlaceControl(*entry.control, slot, along, dialog);
    else if (entry.item->layout)
        Place(*entry.item->layout, slot, dialog);
}

void LayoutRun::PlaceControl(LayoutControl& control, RECT slot, LayoutAxis along, HWND dialog)
{
    DialogMetrics& metrics = Metrics(dialog);
    const ControlKind kind = metrics.Kind(control);
    if (along == LayoutAxis::Horizontal && KeepsHeightInRow(kind)) {
        const LONG spare = std::max<LONG>(0, slot.bottom - slot.top - metrics.Natural(control, LayoutAxis::Vertical));
        Deflate(slot, 0, spare / 2, 0, spare - spare / 2);
    }
    m_mover.Add(metrics, control.window, kind, slot);
}
