// One pass over a layout: what it needs, and where everything goes.
#pragma once

#include <list>

#include "ControlMover.h"
#include "DialogMetrics.h"
#include "LayoutState.h"
#include "ShareOut.h"

class LayoutRun {
public:
    // tables keeps what is found out about the dialogs' controls for the next run.
    explicit LayoutRun(ControlTables& tables) noexcept : m_tables(tables) {}

    // The length that the layout needs along the axis with every share at its smallest.
    [[nodiscard]] int Smallest(const KZLayout::State& layout, LayoutAxis axis, HWND inherited);
    // Notes the places of everything in the layout for Apply.
    void Place(const KZLayout::State& layout, const RECT& area, HWND inherited);
    void Apply() noexcept { m_mover.Apply(); }

private:
    // An item with its window looked up; a control that the dialog lacks is left out.
    struct Entry {
        const LayoutItem* item;
        LayoutControl* control;
    };
    struct Row {
        std::vector<Entry> entries;
        std::vector<LayoutPart> parts;
    };

    [[nodiscard]] Row Resolve(const KZLayout::State& layout, LayoutAxis axis, HWND dialog, bool wantSmallest);
    [[nodiscard]] LayoutPart PartOf(const Entry& entry, LayoutAxis axis, HWND dialog, bool wantSmallest);
    [[nodiscard]] int ItemLength(const Entry& entry, int code, LayoutAxis axis, HWND dialog);
    [[nodiscard]] int SmallestOf(const Entry& entry, LayoutAxis axis, HWND dialog);
    [[nodiscard]] int Frame(const KZLayout::State& layout, LayoutAxis axis, HWND dialog);
    [[nodiscard]] int ContentLength(const KZLayout::State& layout, LayoutAxis axis, HWND dialog);
    [[nodiscard]] bool Stretches(const KZLayout::State& layout) const noexcept;
    [[nodiscard]] RECT InsideOf(const KZLayout::State& layout, RECT area, HWND dialog);
    void PlaceItem(const Entry& entry, const RECT& slot, LayoutAxis along, HWND dialog);
    void PlaceControl(LayoutControl& control, RECT slot, LayoutAxis along, HWND dialog);

    [[nodiscard]] DialogMetrics& Metrics(HWND dialog);
    [[nodiscard]] int BorderPixels(int code, LayoutAxis axis, HWND dialog);

    ControlTables& m_tables;
    std::list<DialogMetrics> m_metrics;  // one for each dialog
    ControlMover m_mover;
};
