// What the selected device is set to, in a report list: section, setting, unit, value. The value stands
// last, where it may be as long as it is.
#pragma once

#include "DeviceSummary.h"
#include "ReportList.h"

class SummaryView : public ReportList {
public:
    // Gives the list its columns.
    void SetUp();

    // Shows the rows. A section is named at its first row only.
    void Show(SummaryRows rows);

private:
    // Makes the list have that many rows; new ones are empty. The others keep their texts and the list its place.
    void SetRowCount(int count);
    void SetTexts(const SummaryRows& rows, int column);

    SummaryRows m_rows;  // as shown
};
