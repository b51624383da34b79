// A device's configuration document in the project folder.
#pragma once

#include <filesystem>

#include "KZDriver.h"
#include "KZXmlDocument.h"

// The file of the driver's document, whether there is one or not.
[[nodiscard]] std::filesystem::path DeviceDocumentFile(const KZDriver& driver);

// Reads the driver's document into one with the root element "device". A file that is missing or without content is the
// document of a device that nobody has set up yet: it leaves the document as it is and is no failure.
[[nodiscard]] KZDocumentResult ReadDeviceDocument(const KZDriver& driver, XmlDocument& document);
