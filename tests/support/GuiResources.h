// Counts of what a leak would leave behind. Wine does not implement GetGuiResources, so they are counted one by one.
#pragma once

#include <ostream>

namespace kztest {

struct GuiResources {
    int windows = 0;
    int menus = 0;
    int gdiObjects = 0;

    friend bool operator==(const GuiResources&, const GuiResources&) = default;
    friend std::ostream& operator<<(std::ostream& out, const GuiResources& counts)
    {
        return out << counts.windows << " windows, " << counts.menus << " menus, " << counts.gdiObjects
                   << " GDI objects";
    }
};

// Windows and menus of this process, and its GDI objects. The first dialog of a process makes some that stay.
[[nodiscard]] GuiResources CountGuiResources();

}  // namespace kztest
