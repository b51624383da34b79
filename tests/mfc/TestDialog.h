// The dialog of the template IDD_CONTROLS with what a test wants to happen in it.
#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include <functional>

#include "MfcTestIds.h"

class TestDialog : public CDialog {
public:
    explicit TestDialog(CWnd* parent = nullptr) : CDialog(IDD_CONTROLS, parent) {}
    ~TestDialog() override { DestroyWindow(); }

    // Creates it modeless; throws when that fails.
    void Open(CWnd* parent = nullptr);
    [[nodiscard]] HWND Item(int id) const { return ::GetDlgItem(m_hWnd, id); }

    std::function<void(CDataExchange*)> exchange;
    std::function<void()> initialise;
    std::function<void()> pressed;  // button IDC_BUTTON

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;

    afx_msg void OnPressed();
    DECLARE_MESSAGE_MAP()
};
