// The project's devices in a report list: number, name, model, description, state of their module.
#pragma once

#include "ReportList.h"
#include "modules/ModuleLoader.h"
#include "project/Project.h"

class DeviceListView {
public:
    // Takes the list control of a dialog, gives it its columns and fills it. The rows follow the project's order.
    void Fill(HWND list, const Project& project, const ModuleLoader& modules);

    // The selected row, -1 when none is.
    [[nodiscard]] int Selected() const noexcept;
    void Select(int row) noexcept;

    void FitColumns() noexcept { m_list.FitColumns(); }

private:
    void ShowRow(int row, const Device& device, const ModuleStatus& status);

    ReportList m_list;
};
