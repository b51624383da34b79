// CDialog. Part of afxwin.h.
//
// Follows MFC's CDialog. A modal dialog is a modeless window with its owner disabled and a message loop of its own, so
// nested dialogs, PreTranslateMessage and EndDialog at any time work as in MFC. An exception out of OnInitDialog is
// reported and ends the dialog: DoModal returns -1, Create FALSE.
//
// Differences from MFC: no occurrence of OLE controls (RT_DLGINIT data), dialog bars or help.
#pragma once

#include "afxwnd_.h"

class KZMFC_API CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)

public:
    CDialog() noexcept;
    // The template is looked up along the resource chain when the dialog is created. The parent, which may be null,
    // is that of a modal dialog.
    explicit CDialog(LPCWSTR lpszTemplateName, CWnd* pParentWnd = nullptr) noexcept;
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = nullptr) noexcept;
    ~CDialog() override;

    // Modeless. Returns FALSE when there is no such template or the window could not be made.
    virtual BOOL Create(LPCWSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    virtual BOOL CreateIndirect(LPCDLGTEMPLATEW lpDialogTemplate, CWnd* pParentWnd = nullptr,
                                void* lpDialogInit = nullptr, HINSTANCE hInst = nullptr);

    // Runs the dialog. Returns what EndDialog was given, or -1 when the dialog could not be made.
    virtual INT_PTR DoModal();
    void EndDialog(int nResult);

    void NextDlgCtrl() const { ::SendMessageW(m_hWnd, WM_NEXTDLGCTL, 0, 0); }
    void GotoDlgCtrl(CWnd* pWndCtrl);
    void MapDialogRect(LPRECT lpRect) const { ::MapDialogRect(m_hWnd, lpRect); }

    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

    // Fills the controls by UpdateData(FALSE). Return FALSE after setting the focus to a control of one's own choice.
    virtual BOOL OnInitDialog();

protected:
    virtual void OnOK();      // UpdateData(TRUE), then EndDialog(IDOK)
    virtual void OnCancel();  // EndDialog(IDCANCEL)
    BOOL CheckAutoCenter() override;

    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);

    DECLARE_MESSAGE_MAP()

    LPCWSTR m_lpszTemplateName = nullptr;
    LPCDLGTEMPLATEW m_lpDialogTemplate = nullptr;
    CWnd* m_pParentWnd = nullptr;
    HWND m_hWndTop = nullptr;  // the top-level window that DoModal has disabled

private:
    BOOL CreateDlgIndirect(LPCDLGTEMPLATEW lpDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst);
    HWND PreModal();
    void PostModal();
    void RunDialog(LPCDLGTEMPLATEW lpDialogTemplate, HWND hWndParent, HINSTANCE hInst);
};
