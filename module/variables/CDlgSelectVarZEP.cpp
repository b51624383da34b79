#include "CDlgSelectVarZEP.h"

#include <algorithm>

#include "CDlgSelectVarArmonicZEP.h"
#include "CDlgSelectVarGeneralZEP.h"
#include "CDlgSelectVarPowerZEP.h"
#include "CaughtException.h"
#include "DialogSetup.h"
#include "HostText.h"
#include "InitialMarks.h"
#include "KZStringIds.h"
#include "SelectVarControls.h"
#include "SelectVarMessages.h"
#include "SelectionRules.h"

namespace {

// The groups that hold the variables of the three pages. One of them is enough for all three.
constexpr unsigned long long OfferedGroups = 1U << 2 | 1U << 4 | 1U << 5 | 1U << 6;

// Makes a page and its window. A page that cannot be made is left out and the dialog goes on without it.
template <class Page, class... Arguments>
Page* AddPage(std::vector<std::unique_ptr<SelectVarPage>>& pages, CWnd* container, Arguments... arguments)
{
    try {
        auto page = std::make_unique<Page>(arguments...);
        if (!page->Create(container))
            return nullptr;
        Page* const made = page.get();
        pages.push_back(std::move(page));
        return made;
    } catch (...) {
        TakeException();
        return nullptr;
    }
}

void AddTab(TabContainer& container, TabPage* page, unsigned textId, int image)
{
    if (page)
        container.Add(*page, HostText(textId), image);
}

void ShowLimitMessage(int maxVariables)
{
    const KZBasicString text =
        maxVariables == 1 ? HostText(KZS_MAX_ONE_VARIABLE) : FormatHostText(KZS_MAX_VARIABLES, maxVariables);
    AfxMessageBox(text.c_str(), MB_OK, 0);
}

// What the tabs and the frame take of the tab control's height. The display area of an empty rectangle comes out inside
// out by just that much, so it is top minus bottom: the other way round the height would be negative, and the pages
// would lie over the tabs.
int TabHeight(CTabCtrl& tab)
{
    CRect rect(0, 0, 0, 0);
    tab.AdjustRect(FALSE, &rect);
    return rect.top - rect.bottom;
}

}  // namespace

BEGIN_MESSAGE_MAP(CDlgSelectVarZEP, CDialog)
    ON_WM_SIZE()
    ON_NOTIFY(TCN_SELCHANGE, IDC_SELECTVAR_TAB, &CDlgSelectVarZEP::OnSelchangeSelectTab)
    ON_MESSAGE(WM_SELECTVAR_SELECT, &CDlgSelectVarZEP::OnVariableSelect)
    ON_MESSAGE(WM_SELECTVAR_UNSELECT, &CDlgSelectVarZEP::OnVariableUnSelect)
END_MESSAGE_MAP()

CDlgSelectVarZEP::CDlgSelectVarZEP(CWnd* parent, KZDriverDeviceZEP* device, std::list<KZBasicString>* variables,
                                   const KZVariableGroups& groups, int maxVariables, const wchar_t*)
    : CDialog(IDD_SELECTVAR, parent), m_pDevice(device), m_pVariables(variables), m_nMaxVariables(maxVariables),
      m_hIcon(LoadProgramIcon()), m_groups(groups)
{
}

CDlgSelectVarZEP::~CDlgSelectVarZEP() = default;

void CDlgSelectVarZEP::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_SELECTVAR_TAB, m_tab);
    DDX_Control(pDX, IDOK, m_btnOK);
    DDX_Control(pDX, IDCANCEL, m_btnCancel);
}

BOOL CDlgSelectVarZEP::OnInitDialog()
{
    CDialog::OnInitDialog();
    SetWindowText((HostText(KZS_SELECT_VARIABLES) + L" - " + m_pDevice->Name()).c_str());
    SetDlgItemText(IDC_SELECTVAR_SPARE, L"");
    GetDlgItem(IDC_SELECTVAR_SPARE)->ShowWindow(SW_HIDE);
    SetUpOkCancel(m_btnOK, m_btnCancel);

    const bool isOffered = (m_groups.to_ullong() & OfferedGroups) != 0;
    if (isOffered) {
        m_pGeneral = AddPage<CDlgSelectVarGeneralZEP>(m_pages, this, m_pDevice, &m_groups);
        m_pPower = AddPage<CDlgSelectVarPowerZEP>(m_pages, this, m_pDevice);
        m_pArmonic = AddPage<CDlgSelectVarArmonicZEP>(m_pages, this, m_pDevice);
    }
    m_container.SetImages(m_imageList,
                          {L"SYSTEM-var_general.png", L"ZEP-var_power.png", L"SYSTEM-var_armonic_current.png"});
    AddTab(m_container, m_pGeneral, KZS_GENERAL, 0);
    AddTab(m_container, m_pPower, KZS_POWERS, 1);
    AddTab(m_container, m_pArmonic, KZS_HARMONIC_CURRENTS, 2);
    m_container.Attach();
    if (m_pages.empty()) {
        // OK without pages empties the host's list: right when it asked for nothing that they hold, and only then.
        if (isOffered)
            m_container.GiveUp();
        return FALSE;
    }
    // Before the first page is shown, which is then laid out once.
    Layout(0, 0);
    m_pCurrentPage = m_pages.front().get();
    m_pCurrentPage->Show();
    CheckInitialVariables();
    SetIcon(m_hIcon, TRUE);
    return TRUE;
}

// One pass over the host's list serves all pages: it may be long, and no name belongs to two of them.
void CDlgSelectVarZEP::CheckInitialVariables()
{
    const zep::InitialMarks marks(*m_pVariables, m_pDevice->Name());
    for (const auto& page : m_pages)
        page->CheckInitialVariables(marks.Of(page->Family()));
}

// Counts the pages afresh: what was chosen before the dialog opened never passed the running count.
bool CDlgSelectVarZEP::IsValid()
{
    if (m_nMaxVariables == 0)
        return true;
    std::size_t selected = 0;
    for (const auto& page : m_pages)
        selected += page->CountSelected();
    if (zep::FitsMaximum(0, selected, m_nMaxVariables))
        return true;
    ShowLimitMessage(m_nMaxVariables);
    return false;
}

// After OK the host's list holds the new choices alone. The host, which knows what it had, decides what becomes of it.
void CDlgSelectVarZEP::OnOK()
{
    if (!IsValid())
        return;
    // Collected aside: a user who cancels when memory has run out finds the list as it was.
    std::list<KZBasicString> chosen;
    for (const auto& page : m_pages)
        page->CollectSelected(chosen);
    m_pVariables->swap(chosen);
    CDialog::OnOK();
}

BOOL CDlgSelectVarZEP::OnCommand(WPARAM wParam, LPARAM lParam)
{
    return m_container.ForwardCommand(wParam, lParam) || CDialog::OnCommand(wParam, lParam);
}

LRESULT CDlgSelectVarZEP::OnVariableSelect(WPARAM count, LPARAM)
{
    if (!zep::FitsMaximum(m_nSelected, count, m_nMaxVariables)) {
        ShowLimitMessage(m_nMaxVariables);
        return 0;
    }
    m_nSelected += static_cast<unsigned>(count);
    return 1;
}

LRESULT CDlgSelectVarZEP::OnVariableUnSelect(WPARAM count, LPARAM)
{
    m_nSelected = zep::Without(m_nSelected, count);
    return 1;
}

void CDlgSelectVarZEP::OnSelchangeSelectTab(NMHDR*, LRESULT* pResult)
{
    m_container.ShowSelected();
    *pResult = 0;
}

void CDlgSelectVarZEP::OnSize(UINT type, int cx, int cy)
{
    CDialog::OnSize(type, cx, cy);
    if (m_btnOK.GetSafeHwnd())
        Layout(cx, cy);
}

void CDlgSelectVarZEP::Layout(int, int)
{
    if (!m_container.CanLayOut())
        return;
    const int tabHeight = TabHeight(m_tab);
    int pageHeight = 0;
    for (const auto& page : m_pages)
        pageHeight = std::max(pageHeight, page->NeededHeight());

    LayoutPlan plan(*this);
    KZLayout& dialog = plan.Root();
    dialog.SetBorders(KZSizeStandard, KZSizeStandard);
    dialog.AddGap(KZSizeStandard);
    dialog.AddControl(IDC_SELECTVAR_TAB, TabContainer::ControlHeight(tabHeight, pageHeight));
    dialog.AddGap(KZSizeStandard);
    dialog.AddLayout(plan.NewOkCancelRow(), KZSizeStandard);
    dialog.AddGap(KZSizeStandard);
    m_container.Layout(plan, tabHeight);
}
