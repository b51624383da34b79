#include "CDlgSelectVarGeneralZEP.h"

BEGIN_MESSAGE_MAP(CDlgSelectVarGeneralZEP, SelectVarPage)
    ON_WM_SIZE()
END_MESSAGE_MAP()

CDlgSelectVarGeneralZEP::CDlgSelectVarGeneralZEP(KZDriverDeviceZEP* device, const KZVariableGroups* groups)
    : SelectVarPage(device, zep::Family::General), m_groups(*groups)
{
}

void CDlgSelectVarGeneralZEP::OnSize(UINT type, int cx, int cy)
{
    SelectVarPage::OnSize(type, cx, cy);
    LayoutControls();
}
