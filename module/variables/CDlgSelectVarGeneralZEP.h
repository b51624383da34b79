// The selection page of voltage, frequency and currents.
#pragma once

#include "SelectVarPage.h"

class CDlgSelectVarGeneralZEP : public SelectVarPage {
public:
    // groups: the variable groups that the host asked for. They are kept for the platform's sake; whoever opens the
    // dialog has checked them, and the page offers all of its variables.
    CDlgSelectVarGeneralZEP(KZDriverDeviceZEP* device, const KZVariableGroups* groups);

protected:
    afx_msg void OnSize(UINT type, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    KZVariableGroups m_groups;
};
