// The limits of a driver's variables.
#pragma once

#include "KZXmlDocument.h"
#include "SummaryRow.h"

// Appends a row that says what the values are and one for each variable that has limits, in the order in which they are
// edited, or one row that says that there are none. setup is the driver's "viewSetup", null while it has none.
void AddLimits(SummaryRows& rows, const XmlDocument::XmlNode* setup);
