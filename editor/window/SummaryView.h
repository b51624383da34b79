// What the documents hold of the selected device, in a report list: section, setting, value.
#pragma once

#include "ReportList.h"
#include "summary/SummaryRow.h"

class SummaryView {
public:
    // Takes the list control of a dialog and gives it its columns.
    void Attach(HWND list);

    // Shows the rows. A section is named at its first row only.
    void Show(const SummaryRows& rows);

    void FitColumns() noexcept { m_list.FitColumns(); }

private:
    ReportList m_list;
};
