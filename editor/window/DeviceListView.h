// The project's devices in a report list: number, name, model, description, state of their module.
#pragma once

#include <windows.h>

#include "modules/ModuleLoader.h"
#include "project/Project.h"

class DeviceListView {
public:
    // Takes the list control of a dialog, gives it its columns and fills it. The rows follow the project's order.
    void Fill(HWND list, const Project& project, const ModuleLoader& modules);

    // The selected row, -1 when none is.
    [[nodiscard]] int Selected() const noexcept;
    void Select(int row) noexcept;

    // Gives the description what the other columns leave of the list's width.
    void FitColumns() noexcept;

private:
    void AddColumns();
    void AddRow(int row, const Device& device, const ModuleStatus& status);
    void SetText(int row, int column, const wchar_t* text) noexcept;

    HWND m_list = nullptr;
};
