// The driver options hub: a row of section buttons, each of which calls a hook that a driver's dialog overrides.
//
// Modal: construct, DoModal; OK closes with IDOK, Cancel with IDCANCEL; what a section has committed stays committed.
// Child: construct, SetChild, SetBackgroundColor, Create; Enter and Escape then do nothing. The caller owns the object
// and deletes it after or before the window is gone.
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

// Sent to the hub's parent (the owner, when the hub is modal) after a section has changed something, so that it can
// show the new state. WPARAM: the KZOptionsSection; LPARAM: 0; the answer is ignored. The receiver must not destroy the
// hub.
inline constexpr UINT WM_KZ_OPTIONS_CHANGED = WM_APP + 0x120;

class KZ_API KZDlgOptions : public CDialog {
    DECLARE_DYNAMIC(KZDlgOptions)

public:
    KZDlgOptions(CWnd* parent, KZDriver* driver);
    ~KZDlgOptions() override;

    // Makes the dialog a child window without frame, OK and Cancel. To be called before Create.
    void SetChild() noexcept;
    // The background of a child; to be called before Create. The system's window colour is followed when that changes.
    void SetBackgroundColor(COLORREF colour);
    // Creates the window of a child dialog, visible, in the parent's client area; the parent moves it where it wants
    // it. Returns non-zero on success, 0 when the parent has no window or the dialog could not be made: the object then
    // has no window and can be deleted.
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
    afx_msg void OnSysColorChange();
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);

    bool CreateChild(CWnd* parent) noexcept;
    void SetTexts();
    void SetPictures();
    void AdaptToChild();
    void AdaptToFrame();
    bool LayOut(int columns, bool evenIfTooNarrow);
    void TellOwner(KZOptionsSection section, bool changed);
    bool NothingToSetUp(KZOptionsSection section);
    [[nodiscard]] KZBasicString ModelName() const;
    [[nodiscard]] XmlDocument::XmlNode* DeviceNode() const;
    [[nodiscard]] XmlDocument::XmlNode* FindRecord(const wchar_t* query) const;

    KZDriver* m_pDriver;
    CImageButton m_btnOK;
    CImageButton m_btnCancel;
    CImageButton m_sections[KZSectionCount];
    bool m_bChild = false;
    COLORREF m_clrBackground = CLR_INVALID;
    bool m_bWindowColour = false;  // whether the background is the system's
    CBrush m_brBackground;
    CFont m_fontHeading;
};
