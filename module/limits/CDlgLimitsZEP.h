// The limits dialog: a tab container of the power page and one harmonic page for each side.
//
// It decides when the pages load, validate and save; what they hold is their own business.
#pragma once

#include <array>
#include <memory>

#include "CImageButton.h"
#include "KZDriver.h"
#include "KZXmlDocument.h"
#include "TabContainer.h"

class LimitsPage;

class CDlgLimitsZEP : public CDialog {
public:
    // viewSetup is the driver's element of the main configuration, null while it has none; not owned.
    CDlgLimitsZEP(CWnd* parent, XmlDocument::XmlNode* viewSetup);
    ~CDlgLimitsZEP() override;

    // The driver whose limits these are; not owned. To be called before DoModal.
    void SetDriver(KZDriver* driver) noexcept { m_pDriver = driver; }

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    void OnOK() override;

    afx_msg void OnSelchangeTab(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnDestroy();

    DECLARE_MESSAGE_MAP()

private:
    static constexpr std::size_t PageCount = 3;

    void MakePages();
    // Returns false when one cannot be created.
    [[nodiscard]] bool CreatePageWindows();
    void CreateTabs();
    void LoadPages();
    [[nodiscard]] bool ValidatePages();
    [[nodiscard]] bool ArePagesModified();
    void SavePages();
    void Layout();
    [[nodiscard]] int TabItemHeight() const;

    CTabCtrl m_tab;
    CImageButton m_btnOK;
    CImageButton m_btnCancel;
    XmlDocument::XmlNode* m_pViewSetup;
    KZDriver* m_pDriver = nullptr;
    std::array<std::unique_ptr<LimitsPage>, PageCount> m_pages;  // in tab order
    TabPage* m_pCurrentPage = nullptr;
    CImageList m_imageList;
    TabContainer m_container{*this, m_tab, m_pCurrentPage};
};
