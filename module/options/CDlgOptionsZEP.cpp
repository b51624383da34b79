#include "CDlgOptionsZEP.h"

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
