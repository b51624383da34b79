#include "CDlgSelectVarPowerZEP.h"

BEGIN_MESSAGE_MAP(CDlgSelectVarPowerZEP, SelectVarPage)
    ON_WM_SIZE()
END_MESSAGE_MAP()

CDlgSelectVarPowerZEP::CDlgSelectVarPowerZEP(KZDriverDeviceZEP* device) : SelectVarPage(device, zep::Family::Power) {}

void CDlgSelectVarPowerZEP::OnSize(UINT type, int cx, int cy)
{
    SelectVarPage::OnSize(type, cx, cy);
    LayoutControls();
}
