// The units dialog: how this driver's powers are shown, in kilo-units or plain units and with how many decimals.
//
// The record behind it is UnitsRecord.h.
#pragma once

#include <afxwin.h>

#include "CImageButton.h"
#include "DialogAccess.h"
#include "KZDriver.h"
#include "UnitsRecord.h"

class CDlgUnitsZEP : public CDialog {
public:
    // The driver is not owned.
    CDlgUnitsZEP(CWnd* parent, KZDriver* driver);
    ~CDlgUnitsZEP() override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    // Ends with IDCANCEL when nothing was changed, so that the caller records no change.
    void OnOK() override;

    DECLARE_MESSAGE_MAP()

private:
    void KeepDecimalsReachable();
    void SetTexts();
    void LayoutControls();
    void NameControls(AccessibleNames& names) const;

    CImageButton m_btnCancel;
    CImageButton m_btnOK;
    HICON m_hIcon;
    zep::UnitsRecord m_record;
    zep::UnitChoices m_initial;  // when the dialog opened
    zep::UnitChoices m_choices;  // as the radio buttons stand
    KZDriver* m_pDriver;
    DialogAccess m_access;
};
