#include "CDlgOptionsZEP.h"

#include "CDlgLimitsZEP.h"
#include "CDlgUnitsZEP.h"
#include "KZDeviceCfgZEP.h"
#include "KZQuorvelantaSetup.h"

BEGIN_MESSAGE_MAP(CDlgOptionsZEP, KZDlgOptions)
END_MESSAGE_MAP()

CDlgOptionsZEP::CDlgOptionsZEP(CWnd* parent, KZDriverDevice* driver) : KZDlgOptions(parent, driver) {}

CDlgOptionsZEP::~CDlgOptionsZEP() = default;

BOOL CDlgOptionsZEP::OnInitDialog()
{
    KZDlgOptions::OnInitDialog();
    SetButtonImage(KZSectionDevice, KZQuorvelantaSetup::Get()->getImageFilePath() + L"ZEP-50.png");
    return TRUE;
}

bool CDlgOptionsZEP::SetupDevice(XmlDocument::XmlNode* node)
{
    KZDeviceCfgZEP dialog(this, Driver(), node);
    return dialog.DoModal() == IDOK;
}

bool CDlgOptionsZEP::SetupLimits(XmlDocument::XmlNode* node)
{
    CDlgLimitsZEP dialog(this, node);
    dialog.SetDriver(Driver());
    return dialog.DoModal() == IDOK;
}

bool CDlgOptionsZEP::SetupUnits()
{
    CDlgUnitsZEP dialog(this, Driver());
    return dialog.DoModal() == IDOK;
}
