#include "KZLayout.h"

#include <algorithm>

#include "LayoutState.h"
#include "MeasuredLayout.h"

namespace {

constexpr int LargestPixelSize = 0xFFFFFF;

}  // namespace

KZLayout::KZLayout(Direction direction, CWnd* dialog)
    : m_state(std::make_unique<State>(
          State{.along = direction == Direction::Horizontal ? LayoutAxis::Horizontal : LayoutAxis::Vertical}))
{
    SetParent(dialog);
}

KZLayout::~KZLayout() = default;

KZVerticalLayout::KZVerticalLayout(CWnd* dialog) : KZLayout(Direction::Vertical, dialog) {}

KZHoritzontalLayout::KZHoritzontalLayout(CWnd* dialog) : KZLayout(Direction::Horizontal, dialog) {}

void KZLayout::SetParent(CWnd* dialog) noexcept
{
    m_state->dialog = dialog ? dialog->m_hWnd : nullptr;
}

void KZLayout::AddControl(int id, int size)
{
    m_state->items.push_back({.kind = LayoutItem::Kind::Control, .size = size, .controlId = id});
}

void KZLayout::AddGap(int size)
{
    m_state->items.push_back({.kind = LayoutItem::Kind::Gap, .size = size});
}

void KZLayout::AddLayout(KZLayout& layout, int size)
{
    m_state->items.push_back({.kind = LayoutItem::Kind::Layout, .size = size, .layout = layout.m_state.get()});
}

void KZLayout::AddControlsAndLabel(int labelId, int size, const int* controlIds, int count)
{
    auto column = std::make_unique<KZVerticalLayout>();
    column->AddControl(labelId, KZSizeTextLine);
    for (int i = 0; i < count; ++i) {
        column->AddGap(KZSizeEditLine);
        column->AddControl(controlIds[i], KZSizeNatural);
    }
    AddLayout(*column, size);
    m_state->items.back().owned = std::move(column);
}

void KZLayout::SetBoxControl(int boxId, int border, bool alignTop)
{
    m_state->box = {boxId, border, alignTop};
}

void KZLayout::SetBorders(int x, int y) noexcept
{
    m_state->borders = {x, y};
}

CSize KZLayout::FixedSize() const
{
    const MeasuredLayout layout(*m_state, DialogMetrics(m_state->dialog));
    return {layout.Needed().x, layout.Needed().y};
}

void KZLayout::Layout(const CRect& area) const
{
    MeasuredLayout(*m_state, DialogMetrics(m_state->dialog)).Place(area);
    if (::IsWindowVisible(m_state->dialog))
        ::RedrawWindow(m_state->dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

CSize KZLayout::Pixels2Size(int pixels) noexcept
{
    const int code = -std::clamp(pixels, 0, LargestPixelSize);
    return {code, code};
}
