// The dialog in which the user picks variables of one device: a tab container of up to three pages.
//
// It knows no variable names; the pages do. It enforces the maximum on every click and again at OK, and on OK rewrites
// the host's list with what the pages hold.
#pragma once

#include <afxext.h>

#include <list>
#include <memory>
#include <vector>

#include "CImageButton.h"
#include "KZDriverDeviceZEP.h"
#include "TabContainer.h"

class SelectVarPage;
class CDlgSelectVarGeneralZEP;
class CDlgSelectVarPowerZEP;
class CDlgSelectVarArmonicZEP;

// Its members are the interface that the library exports: what helps them stands beside them in the source.
class AFX_EXT_CLASS CDlgSelectVarZEP : public CDialog {
public:
    //   device        the device whose variables are offered; not owned
    //   variables     the host's list: read at start, rewritten on OK; not owned
    //   groups        the variable groups that the host asks for
    //   maxVariables  the most variables that may be newly picked, 0 for no limit
    //   text          the host's words for the request; not used
    CDlgSelectVarZEP(CWnd* parent, KZDriverDeviceZEP* device, std::list<KZBasicString>* variables,
                     const KZVariableGroups& groups, int maxVariables, const wchar_t* text = nullptr);
    ~CDlgSelectVarZEP() override;

    // Lets every page check and disable what the host's list already holds of this device.
    void CheckInitialVariables();

    // Whether the variables picked on all pages fit under the maximum; says so in a message when they do not.
    bool IsValid();

    // Places tab, pages and buttons in the client area and fits the dialog's height to the highest page.
    // The arguments are not used: the client area rules.
    void Layout(int cx, int cy);

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnSelchangeSelectTab(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg LRESULT OnVariableSelect(WPARAM count, LPARAM);
    afx_msg LRESULT OnVariableUnSelect(WPARAM count, LPARAM);

    DECLARE_MESSAGE_MAP()

private:
    CTabCtrl m_tab;
    CImageButton m_btnOK;
    CImageButton m_btnCancel;
    KZDriverDeviceZEP* m_pDevice;
    std::list<KZBasicString>* m_pVariables;
    int m_nMaxVariables;
    HICON m_hIcon;
    CDlgSelectVarGeneralZEP* m_pGeneral = nullptr;
    CDlgSelectVarPowerZEP* m_pPower = nullptr;
    CDlgSelectVarArmonicZEP* m_pArmonic = nullptr;
    TabPage* m_pCurrentPage = nullptr;
    std::vector<std::unique_ptr<SelectVarPage>> m_pages;  // in tab order
    CImageList m_imageList;
    KZVariableGroups m_groups;
    unsigned m_nSelected = 0;  // what the user has checked since the dialog opened
    TabContainer m_container{*this, m_tab, m_pCurrentPage};
};
