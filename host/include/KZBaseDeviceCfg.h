// The base of the dialogs that edit one device's configuration document.
//
// The document is PROJECT/devices/DRIVERID.xml with the root element "device", or what the application's document store
// (KZMainCfg::SetDocumentStore) keeps under that file name. DoModal reads it before the dialog opens; a dialog changes
// it through Document() and commits it with writeCfg.
#pragma once

#include "KZBaseDlg.h"
#include "KZBasicString.h"
#include "KZDriver.h"
#include "KZXmlDocument.h"

class KZ_API KZBaseDeviceCfg : public KZBaseDlg {
    DECLARE_DYNAMIC(KZBaseDeviceCfg)

public:
    // driver is the device whose document this is; not owned, must outlive the dialog.
    KZBaseDeviceCfg(KZDriver* driver, unsigned templateId, CWnd* parent);
    ~KZBaseDeviceCfg() override;

    // Reads the document and runs the dialog. A file that is missing or empty counts as an empty document. One that
    // cannot be read, or is not a device document, is named in a message with the reason; the dialog then opens on an
    // empty document and writeCfg leaves the file alone.
    // Returns what CDialog::DoModal returns.
    INT_PTR DoModal() override;

    // The device given at construction; not owned.
    [[nodiscard]] KZDriver* Driver() const noexcept { return m_pDriver; }
    // The document; never null, root element "device".
    [[nodiscard]] XmlDocument* Document() noexcept { return &m_document; }

    // The file name that a driver id stands for, as KZDocumentFileName makes it.
    [[nodiscard]] static KZBasicString DocumentFileName(const KZBasicString& driverId);

protected:
    // Stores the document: the old one stands untouched until the new one is complete. The document is then clean.
    //   quiet   true: a failure shows no message
    // Returns false, after a message with file and reason, when it could not be stored.
    bool writeCfg(bool quiet);

    // Adds to the name under which the document is stored, for a device that keeps more than one ("?channel=2"). The
    // name starts as the driver's id and becomes a file name as DocumentFileName says. The base adds nothing.
    virtual void addUriParams(KZBasicString& uri) const;

private:
    void ReadDocument();
    bool StoreDocument(bool quiet);
    [[nodiscard]] KZBasicString DocumentName() const;

    KZDriver* m_pDriver;
    XmlDocument m_document;
    KZDocumentResult m_readResult;
};
