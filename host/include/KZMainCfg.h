// The host's main configuration document, of which there is one per process, and where the device documents are.
#pragma once

#include "KZXmlDocument.h"

class KZDocumentStore;

class KZ_API KZMainCfg {
public:
    // The document, root element "configuration"; never null. Empty until the host loads a project. The first call
    // makes it and throws std::bad_alloc when there is no memory.
    [[nodiscard]] static XmlDocument* Get();

    // The folder of the project that the document belongs to: the device documents are under it. Empty until the host
    // opens a project.
    [[nodiscard]] static KZBasicString ProjectFolder();
    static void SetProjectFolder(const KZBasicString& folder);

    // What device dialogs read their documents from and hand them to. Null, as at the start: the files of the project's
    // folder themselves. Not owned.
    [[nodiscard]] static KZDocumentStore* DocumentStore() noexcept;
    static void SetDocumentStore(KZDocumentStore* store) noexcept;
};
