// The project's devices in a report list: number, name, model, description, state of their module. The list asks for
// what it shows, so that its rows cost nothing, however many there are.
#pragma once

#include "ReportList.h"
#include "modules/ModuleLoader.h"
#include "project/Project.h"

class DeviceListView : public ReportList {
public:
    // Gives the list its columns and one row for each device, in the project's order. Both must outlive the list.
    void Fill(const plant::Project& project, const ModuleLoader& modules);

    // The project's devices have changed.
    void Refresh();

    // Answers LVN_GETDISPINFO.
    void GiveText(LVITEMW& item) const;
    // Answers LVN_ODFINDITEM, by which the list finds the number that somebody types. Returns -1 when there is none.
    [[nodiscard]] int Find(const NMLVFINDITEMW& wanted) const;

    // The selected row, -1 when none is.
    [[nodiscard]] int Selected() const { return GetNextItem(-1, LVNI_SELECTED); }
    void Select(int row);
    // A key is about to be carried out, to be called on LVN_KEYDOWN: where it goes to another row, this one loses its
    // mark at once. Wine's list looks at every row before it marks another, but not when none is marked.
    void LeaveRow(WORD key);

private:
    [[nodiscard]] std::wstring Text(int row, int column) const;

    const plant::Project* m_pProject = nullptr;
    const ModuleLoader* m_pModules = nullptr;
};
