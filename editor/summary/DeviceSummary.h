// What the project's documents hold of a device: its settings, its units and its limits, in the user's language and
// number format.
#pragma once

#include "KZDriver.h"
#include "KZXmlDocument.h"
#include "SummaryRow.h"

// configuration: the main configuration document. The device's own document is read from the project folder; when that
// fails, one row gives the reason in place of the settings.
[[nodiscard]] SummaryRows DeviceSummary(const XmlDocument& configuration, const KZDriver& driver);
