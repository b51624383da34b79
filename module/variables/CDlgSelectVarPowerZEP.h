// The selection page of powers and power factor.
#pragma once

#include "SelectVarPage.h"

class CDlgSelectVarPowerZEP : public SelectVarPage {
public:
    explicit CDlgSelectVarPowerZEP(KZDriverDeviceZEP* device);

protected:
    afx_msg void OnSize(UINT type, int cx, int cy);
    DECLARE_MESSAGE_MAP()
};
