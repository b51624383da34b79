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

    // The finding of the marked row; null for none.
    [[nodiscard]] const plant::Finding* Current() const;
    // Marks the row behind the marked one, or before it, from the last one on to the first; null without findings.
    const plant::Finding* GoToNext();
    const plant::Finding* GoToPrevious();

private:
    const plant::Finding* GoTo(int row);

    plant::Findings m_findings;
};

// Where a finding is, in words: the caption of a field, or the name of a document.
[[nodiscard]] std::wstring FindingPlace(const plant::Finding& finding);
