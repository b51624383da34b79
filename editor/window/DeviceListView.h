// The project's devices in a report list: number, name, model, description, state of their module.
#pragma once

#include "ReportList.h"
#include "modules/ModuleLoader.h"
#include "project/Project.h"

class DeviceListView : public ReportList {
public:
    // Gives the list its columns and fills it. The rows follow the project's order.
    void Fill(const Project& project, const ModuleLoader& modules);

    // The selected row, -1 when none is.
    [[nodiscard]] int Selected() const { return GetNextItem(-1, LVNI_SELECTED); }
    void Select(int row);

private:
    void ShowRow(int row, const Device& device, const ModuleStatus& status);
};
