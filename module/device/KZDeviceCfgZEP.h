// The device configuration dialog: shows the device's identity and edits its working settings.
//
// The record behind it is InformationRecord.h; the host's base class holds the document and commits it.
#pragma once

#include <afxwin.h>

#include <array>

#include "CImageButton.h"
#include "DialogAccess.h"
#include "InformationRecord.h"
#include "KZBaseDeviceCfg.h"

class KZDeviceCfgZEP : public KZBaseDeviceCfg {
public:
    // driver and node are not owned; node, the device's element of the host's list, is only kept.
    KZDeviceCfgZEP(CWnd* parent, KZDriver* driver, XmlDocument::XmlNode* node);
    ~KZDeviceCfgZEP() override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    void OnOK() override;

    DECLARE_MESSAGE_MAP()

private:
    struct Field;

    void SetTexts();
    void ShowIdentity();
    void ShowRecord(const zep::InformationRecord& record);
    void LayoutControls();
    void NameControls(AccessibleNames& names) const;

    [[nodiscard]] zep::InformationEntries Entries();
    // Checks the entries; the first that is refused is shown in a message and focused.
    [[nodiscard]] bool Validate();
    [[nodiscard]] bool IsConfirmed() const;
    [[nodiscard]] bool WriteRecord();

    CImageButton m_btnCancel;
    CImageButton m_btnOK;
    std::array<CButton, zep::ModeCount> m_btnModes;
    std::array<CButton, zep::FilterCount> m_btnFilters;
    CEdit m_edtRatio;
    CEdit m_edtCurrent;
    CComboBox m_cmbAlgorithm;
    CEdit m_edtUnits;
    CComboBox m_cmbStatus;
    CStatic m_stcVersion;
    CStatic m_stcModel;
    CStatic m_stcSerialNumber;
    CStatic m_stcGamma;

    XmlDocument::XmlNode* m_pNode;
    zep::InformationSettings m_settings;  // as accepted by the last validation
    zep::InformationSettings m_initial;   // as read when the dialog opened

    DialogAccess m_access;
};
