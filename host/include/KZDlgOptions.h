// The driver options hub: a row of section buttons, each of which calls a hook that a driver's dialog overrides.
#pragma once

#include <afxwin.h>

#include "CImageButton.h"
#include "KZDriver.h"
#include "KZXmlDocument.h"

// The hub's sections in the order of their buttons; the control id of a button is KZSectionButtonBase + section.
enum KZOptionsSection : int {
    KZSectionDriver,
    KZSectionDevice,
    KZSectionLimits,
    KZSectionUnits,
    KZSectionInputsOutputs,
    KZSectionGeneric1,
    KZSectionGeneric2,
    KZSectionGeneric3,
    KZSectionCount
};
inline constexpr int KZSectionButtonBase = 1200;

class KZ_API KZDlgOptions : public CDialog {
    DECLARE_DYNAMIC(KZDlgOptions)

public:
    KZDlgOptions(CWnd* parent, KZDriver* driver);
    ~KZDlgOptions() override;

    // Makes the dialog a child window without frame, OK and Cancel. To be called before Create.
    void SetChild() noexcept;
    // The background of a child; to be called before Create.
    void SetBackgroundColor(COLORREF colour);
    // Creates the window of a child dialog. Returns non-zero on success.
    int Create(CWnd* parent);

    // The driver given at construction; not owned.
    [[nodiscard]] KZDriver* Driver() const noexcept { return m_pDriver; }

    // Shows a picture on a section button (0 to KZSectionCount - 1); other numbers are ignored.
    void SetButtonImage(int button, const KZBasicString& imagePath);

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;

    // One handler per section button; each finds what its hook needs and calls it.
    virtual void OnDriver();
    virtual void OnLimits();
    virtual void OnDevice();
    virtual void OnUnits();
    virtual void OnInputsOutputs();
    virtual void OnGeneric1();
    virtual void OnGeneric2();
    virtual void OnGeneric3();
    virtual void Layout();

    // The hooks. Each returns true when the user changed something. The defaults say in one message that this driver
    // has nothing to set up there, and return false.
    virtual bool SetupDriver(XmlDocument::XmlNode* node);
    virtual bool SetupDevice(XmlDocument::XmlNode* node);
    virtual bool SetupLimits(XmlDocument::XmlNode* node);
    virtual bool SetupUnits();
    virtual bool SetupInputsOutputs(XmlDocument::XmlNode* node);
    virtual bool SetupGeneric1();
    virtual bool SetupGeneric2();
    virtual bool SetupGeneric3();

    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnSection(UINT id);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);

    KZDriver* m_pDriver;
    CImageButton m_btnOK;
    CImageButton m_btnCancel;
    CImageButton m_sections[KZSectionCount];
    bool m_bChild = false;
    COLORREF m_clrBackground = CLR_INVALID;
    CBrush m_brBackground;
};
