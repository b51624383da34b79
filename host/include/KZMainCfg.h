// The host's main configuration document, of which there is one per process.
#pragma once

#include "KZXmlDocument.h"

class KZ_API KZMainCfg {
public:
    // The document, root element "configuration"; never null. Empty until the host loads a project.
    [[nodiscard]] static XmlDocument* Get() noexcept;
};
