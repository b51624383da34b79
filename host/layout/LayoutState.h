// The plan that a KZLayout holds: its items, borders and box.
#pragma once

#include <memory>
#include <vector>

#include "KZLayout.h"
#include "SizeCodes.h"

struct LayoutItem {
    enum class Kind { Control, Gap, Layout };

    Kind kind = Kind::Gap;
    int size = 0;
    int controlId = 0;
    const KZLayout::State* layout = nullptr;
    std::unique_ptr<KZLayout> owned{};  // a column that AddControlsAndLabel made
};

struct LayoutBox {
    int id = 0;  // 0: no box
    int border = 0;
    bool alignTop = true;
};

struct KZLayout::State {
    LayoutAxis along;
    HWND dialog = nullptr;
    std::vector<LayoutItem> items{};
    LayoutBox box{};
    PerAxis borders{};
};
