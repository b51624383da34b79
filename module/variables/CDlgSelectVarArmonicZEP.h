// The selection page of harmonic currents. It has no size handling of its own: its container moves it, and that lays it
// out.
#pragma once

#include "SelectVarPage.h"

class CDlgSelectVarArmonicZEP : public SelectVarPage {
public:
    explicit CDlgSelectVarArmonicZEP(KZDriverDeviceZEP* device) : SelectVarPage(device, zep::Family::Harmonic) {}
};
