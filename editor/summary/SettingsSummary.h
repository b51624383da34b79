// The settings in a device's document, its element "information".
#pragma once

#include "KZXmlDocument.h"
#include "SummaryRow.h"

// Appends a row for each setting, for further lines of it rows without a name; root is the document's root element.
void AddSettings(SummaryRows& rows, const XmlDocument::XmlNode& root);
