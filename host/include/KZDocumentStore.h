// Where device documents are kept, for an application that does not leave them to the files of the project's folder.
#pragma once

#include "KZBasicString.h"
#include "KZXmlDocument.h"

// A document is known by its file name in the project's "devices" folder, as KZBaseDeviceCfg::DocumentFileName makes
// it. Both operations may throw std::bad_alloc; the dialog that called then tells that there is no memory.
class KZDocumentStore {
public:
    // Reads a document. One that is missing or empty leaves document as it is and is no failure. On failure document
    // is as it was, and the message names the file and the reason.
    virtual KZDocumentResult Read(const KZBasicString& fileName, XmlDocument& document) = 0;

    // Takes a document over, whole or not at all. On failure the message names, in one line, the file, the reason and
    // what to do. A store may ask the user and answer success although he has decided against it.
    virtual KZDocumentResult Write(const KZBasicString& fileName, const XmlDocument& document) = 0;

protected:
    ~KZDocumentStore() = default;
};
