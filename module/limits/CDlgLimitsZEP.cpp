#include "CDlgLimitsZEP.h"

#include <algorithm>

#include "CDlgLimitsArmonicZEP.h"
#include "CDlgLimitsPowerZEP.h"
#include "DialogSetup.h"
#include "HostText.h"
#include "KZMainCfg.h"
#include "KZQuorvelantaSetup.h"
#include "KZStringIds.h"
#include "LimitsControls.h"

BEGIN_MESSAGE_MAP(CDlgLimitsZEP, CDialog)
    ON_NOTIFY(TCN_SELCHANGE, IDC_LIMITS_TAB, &CDlgLimitsZEP::OnSelchangeTab)
    ON_WM_SIZE()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

CDlgLimitsZEP::CDlgLimitsZEP(CWnd* parent, XmlDocument::XmlNode* viewSetup)
    : CDialog(IDD_LIMITS, parent), m_pViewSetup(viewSetup)
{
}

CDlgLimitsZEP::~CDlgLimitsZEP() = default;

void CDlgLimitsZEP::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_LIMITS_TAB, m_tab);
    DDX_Control(pDX, IDOK, m_btnOK);
    DDX_Control(pDX, IDCANCEL, m_btnCancel);
}

BOOL CDlgLimitsZEP::OnInitDialog()
{
    CDialog::OnInitDialog();
    const KZBasicString model = KZQuorvelantaSetup::Get()->DriverName(m_pDriver->TypeName().c_str());
    SetWindowText(FormatHostText(KZS_LIMITS_TITLE, model.c_str()).c_str());
    SetIcon(LoadProgramIcon(), TRUE);
    SetUpOkCancel(m_btnOK, m_btnCancel);
    MakePages();
    LoadPages();
    if (!CreatePageWindows()) {
        m_container.GiveUp();
        return TRUE;
    }
    CreateTabs();
    // Before the first page is shown, which is then laid out once.
    Layout();
    m_container.ShowSelected();
    UpdateData(FALSE);
    m_container.Attach();
    return TRUE;
}

void CDlgLimitsZEP::MakePages()
{
    m_pages[0] = std::make_unique<CDlgLimitsPowerZEP>(m_pDriver);
    m_pages[1] = std::make_unique<CDlgLimitsArmonicZEP>(zep::Side::Net);
    m_pages[2] = std::make_unique<CDlgLimitsArmonicZEP>(zep::Side::Load);
}

bool CDlgLimitsZEP::CreatePageWindows()
{
    return std::all_of(m_pages.begin(), m_pages.end(), [this](const auto& page) { return page->Create(this); });
}

void CDlgLimitsZEP::CreateTabs()
{
    m_container.SetImages(m_imageList,
                          {L"ZEP-var_power.png", L"SYSTEM-var_armonic_current.png", L"SYSTEM-var_armonic_current.png"});
    const KZBasicString harmonics = HostText(KZS_HARMONIC_CURRENTS) + L" ";
    m_container.Add(*m_pages[0], HostText(KZS_POWERS), 0);
    m_container.Add(*m_pages[1], harmonics + SideText(zep::Side::Net), 1);
    m_container.Add(*m_pages[2], harmonics + SideText(zep::Side::Load), 2);
}

// Before the pages have windows, so that their many boxes get their texts once.
void CDlgLimitsZEP::LoadPages()
{
    if (!m_pViewSetup)
        return;
    for (const auto& page : m_pages)
        page->Load(*m_pViewSetup);
}

void CDlgLimitsZEP::OnSelchangeTab(NMHDR*, LRESULT* pResult)
{
    m_container.ShowSelected();
    *pResult = 0;
}

void CDlgLimitsZEP::OnOK()
{
    if (!ValidatePages())
        return;
    if (ArePagesModified())
        SavePages();
    CDialog::OnOK();
}

bool CDlgLimitsZEP::ValidatePages()
{
    return std::all_of(m_pages.begin(), m_pages.end(), [](const auto& page) { return page->Validate(); });
}

// Every page is asked, even after one has said yes: the harmonic pages remember their answer for their own saving.
bool CDlgLimitsZEP::ArePagesModified()
{
    bool modified = false;
    for (const auto& page : m_pages)
        modified |= page->IsModified();
    return modified;
}

void CDlgLimitsZEP::SavePages()
{
    XmlDocument& configuration = *KZMainCfg::Get();
    XmlDocument::XmlNode* const viewSetup =
        m_pViewSetup ? m_pViewSetup : &zep::AppendSetup(configuration, zep::ViewSetups, m_pDriver->DriverId());
    for (const auto& page : m_pages)
        page->Save(*viewSetup);
    configuration.SetDirty(true);
    // Not before it is whole: a save that fails leaves none.
    m_pViewSetup = viewSetup;
}

void CDlgLimitsZEP::OnSize(UINT type, int cx, int cy)
{
    CDialog::OnSize(type, cx, cy);
    Layout();
}

void CDlgLimitsZEP::OnDestroy()
{
    m_container.Clear();
    for (auto& page : m_pages)
        page.reset();
    CDialog::OnDestroy();
}

int CDlgLimitsZEP::TabItemHeight() const
{
    CRect item(0, 0, 0, 0);
    m_tab.GetItemRect(0, &item);
    return item.Height();
}

void CDlgLimitsZEP::Layout()
{
    if (!m_container.CanLayOut())
        return;
    // The harmonic pages are the higher ones, and both are alike.
    const int tabHeight = TabItemHeight();
    const int pageHeight = m_pages[1]->NeededHeight();

    LayoutPlan plan(*this);
    KZLayout& tab = plan.NewRow();
    tab.AddGap(KZSizeStandard);
    tab.AddControl(IDC_LIMITS_TAB, 100);
    tab.AddGap(KZSizeStandard);

    KZLayout& buttons = plan.NewRow();
    buttons.AddGap(KZSizeStandard);
    buttons.AddGap(15);
    buttons.AddControl(IDOK, 35);
    buttons.AddGap(KZSizeStandard);
    buttons.AddControl(IDCANCEL, 35);
    buttons.AddGap(15);
    buttons.AddGap(KZSizeStandard);

    KZLayout& dialog = plan.Root();
    dialog.AddGap(KZSizeStandard);
    dialog.AddLayout(tab, TabContainer::ControlHeight(tabHeight, pageHeight));
    dialog.AddGap(KZSizeStandard);
    dialog.AddLayout(buttons, KZSizeStandard);
    dialog.AddGap(KZSizeStandard);
    m_container.Layout(plan, tabHeight);
}
