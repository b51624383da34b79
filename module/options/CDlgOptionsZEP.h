// The ZEP driver's options hub: the host's hub with this driver's sections behind three of its buttons.
#pragma once

#include <afxext.h>

#include "KZDlgOptions.h"
#include "KZDriverDevice.h"

class AFX_EXT_CLASS CDlgOptionsZEP : public KZDlgOptions {
public:
    CDlgOptionsZEP(CWnd* parent, KZDriverDevice* driver);
    ~CDlgOptionsZEP() override;

protected:
    BOOL OnInitDialog() override;

    // Each runs its section's dialog and answers whether it ended with OK.
    bool SetupDevice(XmlDocument::XmlNode* node) override;
    bool SetupLimits(XmlDocument::XmlNode* node) override;
    bool SetupUnits() override;

    DECLARE_MESSAGE_MAP()
};
