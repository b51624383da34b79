#include "MeasuredLayout.h"

#include <algorithm>

#include "MoveControl.h"

namespace {

constexpr auto X = LayoutAxis::Horizontal;
constexpr auto Y = LayoutAxis::Vertical;

SharePolicy PolicyFor(LayoutAxis axis) noexcept
{
    // Rows keep to the proportion, so that columns line up below each other; columns keep lines whole.
    return axis == X ? SharePolicy::Proportional : SharePolicy::KeepSmallest;
}

// Leaves of the area no more than the height, in its middle or at its top.
void LimitHeight(RECT& area, int height, bool inTheMiddle) noexcept
{
    const LONG spare = std::max<LONG>(0, area.bottom - area.top - height);
    area.top += inTheMiddle ? spare / 2 : 0;
    area.bottom = std::min(area.bottom, area.top + height);
}

// What keeps its height in a row that is higher: in the middle it stands on one line with its neighbours.
bool KeepsHeightInRow(ControlKind kind) noexcept
{
    return kind == ControlKind::Text || kind == ControlKind::Check || kind == ControlKind::Edit ||
           kind == ControlKind::DropList;
}

int GapLength(int code, LayoutAxis axis, const DialogMetrics& metrics) noexcept
{
    return IsPixelSize(code) ? -code : metrics.Pixels(GapUnits(code, axis), axis);
}

int ItemLength(int code, int natural, int smallest, LayoutAxis axis, const DialogMetrics& metrics) noexcept
{
    if (IsPixelSize(code))
        return -code;
    const int line = axis == Y ? LineUnits(code) : 0;
    return line > 0 ? std::max(metrics.Pixels(line, axis), smallest) : natural;
}

}  // namespace

MeasuredLayout::MeasuredLayout(const KZLayout::State& plan, const DialogMetrics& holder) : m_plan(plan)
{
    if (plan.dialog && plan.dialog != holder.Dialog())
        Measure(DialogMetrics(plan.dialog));
    else
        Measure(holder);
}

void MeasuredLayout::Measure(const DialogMetrics& metrics)
{
    for (const LayoutItem& planned : m_plan.items) {
        Item item;
        if (planned.kind == LayoutItem::Kind::Layout)
            item.layout = std::make_unique<MeasuredLayout>(*planned.layout, metrics);
        else if (planned.kind == LayoutItem::Kind::Control)
            item.control = metrics.Measure(planned.controlId);
        if (planned.kind != LayoutItem::Kind::Control || item.control.window)
            Add(planned, std::move(item), metrics);
    }
    m_content[m_plan.along] = SmallestSpace(m_parts, PolicyFor(m_plan.along));
    AddFrame(metrics);
}

void MeasuredLayout::Add(const LayoutItem& planned, Item item, const DialogMetrics& metrics)
{
    const LayoutAxis along = m_plan.along;
    const LayoutAxis across = Across(along);
    const PerAxis& natural = item.layout ? item.layout->m_needed : item.control.natural;
    const PerAxis& smallest = item.layout ? item.layout->m_needed : item.control.smallest;
    LayoutPart part;
    if (planned.size > 0)
        part = {.share = planned.size, .smallest = smallest[along]};
    else if (planned.kind == LayoutItem::Kind::Gap)
        part.length = GapLength(planned.size, along, metrics);
    else
        part.length = ItemLength(planned.size, natural[along], smallest[along], along, metrics);
    m_content[across] = std::max(m_content[across], smallest[across]);
    m_stretches = m_stretches || (along == Y && planned.size > 0) || (item.layout && item.layout->m_stretches);
    m_parts.push_back(part);
    m_items.push_back(std::move(item));
}

void MeasuredLayout::AddFrame(const DialogMetrics& metrics) noexcept
{
    const LayoutBox& box = m_plan.box;
    const int x = GapLength(m_plan.borders.x, X, metrics);
    const int y = GapLength(m_plan.borders.y, Y, metrics);
    m_frame = {x, y, x, y};
    if (box.id != 0) {
        m_box = metrics.Find(box.id);
        const int boxX = GapLength(box.border, X, metrics) + metrics.Pixels(ControlUnits::BoxEdge, X);
        const int boxY = GapLength(box.border, Y, metrics);
        m_frame.left += boxX;
        m_frame.right += boxX;
        m_frame.top += boxY + metrics.Pixels(ControlUnits::BoxCaption, Y);
        m_frame.bottom += boxY + metrics.Pixels(ControlUnits::BoxFoot, Y);
    }
    m_needed = {m_content.x + m_frame.left + m_frame.right, m_content.y + m_frame.top + m_frame.bottom};
    if (m_box)
        m_needed.x = std::max(m_needed.x, metrics.CaptionWidth(m_box));
}

void MeasuredLayout::Place(const RECT& area) noexcept
{
    if (m_box)
        MoveControl(m_box, ControlKind::Other, area);
    RECT slot = ContentArea(area);
    LONG& start = m_plan.along == X ? slot.left : slot.top;
    LONG& end = m_plan.along == X ? slot.right : slot.bottom;
    ShareOut(m_parts, end - start, PolicyFor(m_plan.along));
    for (std::size_t i = 0; i < m_items.size(); ++i) {
        end = start + m_parts[i].length;
        PlaceItem(m_items[i], slot);
        start = end;
    }
}

RECT MeasuredLayout::ContentArea(RECT area) const noexcept
{
    area.left += m_frame.left;
    area.top += m_frame.top;
    area.right = std::max(area.left, area.right - m_frame.right);
    area.bottom = std::max(area.top, area.bottom - m_frame.bottom);
    if (m_plan.box.id != 0 && !m_stretches)
        LimitHeight(area, m_content.y, !m_plan.box.alignTop);
    return area;
}

void MeasuredLayout::PlaceItem(const Item& item, RECT slot) const noexcept
{
    if (item.layout)
        item.layout->Place(slot);
    if (!item.control.window)
        return;
    if (m_plan.along == X && KeepsHeightInRow(item.control.kind))
        LimitHeight(slot, item.control.natural.y, true);
    MoveControl(item.control.window, item.control.kind, slot);
}
