// The units and decimals in which a driver's powers are shown.
#pragma once

#include "KZXmlDocument.h"
#include "SummaryRow.h"

// Appends one row for each of the two units; setup is the driver's "unitSetup", null while it has none.
void AddUnits(SummaryRows& rows, const XmlDocument::XmlNode* setup);
