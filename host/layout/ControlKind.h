// What a control is, as far as its size is concerned.
#pragma once

#include <afxwin.h>

enum class ControlKind {
    Text,
    Check,  // and radio buttons
    PushButton,
    Edit,  // of a single line
    DropList,
    Picture,  // a static that shows an icon or bitmap
    Other,    // what can take any size: tab controls, lists, frames
};

[[nodiscard]] ControlKind KindOf(HWND window) noexcept;
