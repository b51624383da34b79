#include "CDlgSelectVarArmonicZEP.h"

CDlgSelectVarArmonicZEP::CDlgSelectVarArmonicZEP(KZDriverDeviceZEP* device)
    : SelectVarPage(device, zep::Family::Harmonic)
{
}

void CDlgSelectVarArmonicZEP::MoveTo(const CRect& area)
{
    SelectVarPage::MoveTo(area);
    LayoutControls();
}
