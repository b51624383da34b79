// A layout with the sizes of everything in it found out: what it needs, and where everything goes in a given area.
#pragma once

#include <memory>
#include <vector>

#include "DialogMetrics.h"
#include "LayoutState.h"
#include "ShareOut.h"

class MeasuredLayout {
public:
    // The controls are those of the plan's own dialog or, when it has none, of the holder's. The plan must live as
    // long.
    MeasuredLayout(const KZLayout::State& plan, const DialogMetrics& holder);

    // The pixels that the layout needs with every share at its smallest.
    [[nodiscard]] const PerAxis& Needed() const noexcept { return m_needed; }
    // Moves the controls, without drawing, so that the layout fills the area.
    void Place(const RECT& area) noexcept;

private:
    // A control, a nested layout or, with neither, a gap.
    struct Item {
        MeasuredControl control{};
        std::unique_ptr<MeasuredLayout> layout{};
    };

    void Measure(const DialogMetrics& metrics);
    void Add(const LayoutItem& planned, Item item, const DialogMetrics& metrics);
    void AddFrame(const DialogMetrics& metrics) noexcept;
    [[nodiscard]] RECT ContentArea(RECT area) const noexcept;
    void PlaceItem(const Item& item, RECT slot) const noexcept;

    const KZLayout::State& m_plan;
    std::vector<Item> m_items{};
    std::vector<LayoutPart> m_parts{};  // the items' lengths along the layout
    bool m_stretches = false;           // whether it has a use for more height than it needs
    PerAxis m_content{};
    HWND m_box = nullptr;
    RECT m_frame{};  // what box and borders take from each side
    PerAxis m_needed{};
};
