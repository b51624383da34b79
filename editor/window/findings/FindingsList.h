// What is wrong with the project: device, setting and message in a report list.
#pragma once

#include "check/DeviceCheck.h"
#include "window/dialog/RowList.h"

class FindingsList : public RowList {
public:
    // Gives the list its columns.
    void SetUp();

    // Shows these. The row that is marked stays so while its finding is there.
    void Show(plant::Findings findings);

    [[nodiscard]] const plant::Findings& Findings() const noexcept { return m_findings; }
    // The finding of the marked row; null for none.
    [[nodiscard]] const plant::Finding* Current() const;
    // Marks the row behind the marked one, or before it, from the last one on to the first; null without findings.
    const plant::Finding* GoToNext();
    const plant::Finding* GoToPrevious();

private:
    const plant::Finding* GoTo(int row);

    plant::Findings m_findings;
};
