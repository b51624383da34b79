#include "ControlTable.h"

#include <algorithm>

ControlTable::ControlTable(HWND dialog) : m_dialog(dialog)
{
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        m_controls.push_back({.window = child, .id = GetDlgCtrlID(child)});
    std::stable_sort(m_controls.begin(), m_controls.end(),
                     [](const LayoutControl& left, const LayoutControl& right) { return left.id < right.id; });
}

LayoutControl* ControlTable::Find(int id) noexcept
{
    const auto found = std::lower_bound(m_controls.begin(), m_controls.end(), id,
                                        [](const LayoutControl& control, int wanted) { return control.id < wanted; });
    return found != m_controls.end() && found->id == id && IsWindow(found->window) ? &*found : nullptr;
}

void ControlTable::ForgetSizes() noexcept
{
    for (LayoutControl& control : m_controls) {
        std::fill(std::begin(control.natural), std::end(control.natural), -1);
        std::fill(std::begin(control.smallest), std::end(control.smallest), -1);
    }
}

ControlTable& ControlTables::Of(HWND dialog)
{
    for (ControlTable& table : m_tables) {
        if (table.Dialog() == dialog)
            return table;
    }
    return m_tables.emplace_back(dialog);
}
