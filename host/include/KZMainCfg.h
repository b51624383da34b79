// The host's main configuration document, of which there is one per process.
#pragma once

#include "KZXmlDocument.h"

class KZ_API KZMainCfg {
public:
    // The document, root element "configuration"; never null. Empty until the host loads a project. The first call
    // makes it and throws std::bad_alloc when there is no memory.
    [[nodiscard]] static XmlDocument* Get();

    // The folder of the project that the document belongs to: the device documents are under it. Empty until the host
    // opens a project.
    [[nodiscard]] static KZBasicString ProjectFolder();
    static void SetProjectFolder(const KZBasicString& folder);
};
