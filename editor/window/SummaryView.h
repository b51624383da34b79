// What the documents hold of the selected device, in a report list: section, setting, value.
#pragma once

#include "ReportList.h"
#include "summary/SummaryRow.h"

class SummaryView : public ReportList {
public:
    // Gives the list its columns.
    void SetUp();

    // Shows the rows. A section is named at its first row only.
    void Show(const SummaryRows& rows);

private:
    // Makes the list have that many rows; new ones are empty. The others keep their texts and the list its place.
    void SetRowCount(int count);
};
