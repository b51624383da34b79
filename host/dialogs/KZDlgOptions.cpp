#include "KZDlgOptions.h"

#include "../strings/StringIds.h"
#include "DialogTemplate.h"
#include "ExceptionGuard.h"
#include "KZDlgOptionsIds.h"
#include "KZLoadString.h"
#include "KZQuorvelantaSetup.h"

static_assert(KZ_IDC_OPTIONS_DRIVER == KZSectionButtonBase + KZSectionDriver);
static_assert(KZ_IDC_OPTIONS_GENERIC3 == KZSectionButtonBase + KZSectionGeneric3);

namespace {

struct Section {
    unsigned caption;
    const wchar_t* picture;
};

constexpr Section Sections[KZSectionCount] = {
    {KZ_IDS_OPTIONS_DRIVER, L"SYSTEM-section_driver.png"},
    {KZ_IDS_OPTIONS_DEVICE, L"SYSTEM-section_device.png"},
    {KZ_IDS_OPTIONS_LIMITS, L"SYSTEM-section_limits.png"},
    {KZ_IDS_OPTIONS_UNITS, L"SYSTEM-section_units.png"},
    {KZ_IDS_OPTIONS_INPUTS_OUTPUTS, L"SYSTEM-section_inputs_outputs.png"},
    {KZ_IDS_OPTIONS_GENERIC1, L"SYSTEM-section_generic.png"},
    {KZ_IDS_OPTIONS_GENERIC2, L"SYSTEM-section_generic.png"},
    {KZ_IDS_OPTIONS_GENERIC3, L"SYSTEM-section_generic.png"},
};

void SetUpButton(CImageButton& button, unsigned text, const wchar_t* picture)
{
    button.SetWindowText(KZLoadString(text).c_str());
    button.SetImage(KZQuorvelantaSetup::Get()->getImageFilePath() + picture, CLR_INVALID, false);
}

HICON LoadProgramIcon()
{
    const wchar_t* icon = MAKEINTRESOURCEW(KZQuorvelantaSetup::Get()->ProgramIDResource());
    return ::LoadIconW(AfxFindResourceHandle(icon, RT_GROUP_ICON), icon);
}

}  // namespace

IMPLEMENT_DYNAMIC(KZDlgOptions, CDialog)

BEGIN_MESSAGE_MAP(KZDlgOptions, CDialog)
    ON_COMMAND_RANGE(KZ_IDC_OPTIONS_DRIVER, KZ_IDC_OPTIONS_GENERIC3, &KZDlgOptions::OnSection)
    ON_WM_SIZE()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

KZDlgOptions::KZDlgOptions(CWnd* parent, KZDriver* driver) : CDialog(KZ_IDD_OPTIONS, parent), m_pDriver(driver) {}

KZDlgOptions::~KZDlgOptions()
{
    DestroyWindow();  // here, while the buttons that its windows are bound to still exist
}

void KZDlgOptions::SetChild() noexcept
{
    m_bChild = true;
}

void KZDlgOptions::SetBackgroundColor(COLORREF colour)
{
    m_brBackground.DeleteObject();
    m_clrBackground = m_brBackground.CreateSolidBrush(colour) ? colour : CLR_INVALID;
    m_bWindowColour = colour == ::GetSysColor(COLOR_WINDOW);
}

int KZDlgOptions::Create(CWnd* parent)
{
    if (m_hWnd || !parent || !::IsWindow(parent->m_hWnd))
        return 0;
    m_bChild = true;
    if (CreateChild(parent))
        return 1;
    // Windows may have refused a window that this object had met already.
    if (m_hWnd && !::IsWindow(m_hWnd))
        Detach();
    DestroyWindow();
    return 0;
}

bool KZDlgOptions::CreateChild(CWnd* parent) noexcept
{
    return Succeeds([&] {
        const std::vector<std::byte> bytes = LoadChildTemplate(KZ_IDD_OPTIONS);
        if (bytes.empty() || !CreateIndirect(reinterpret_cast<LPCDLGTEMPLATE>(bytes.data()), parent))
            return false;
        ShowWindow(SW_SHOWNA);
        return true;
    });
}

void KZDlgOptions::SetButtonImage(int button, const KZBasicString& imagePath)
{
    if (button >= 0 && button < KZSectionCount)
        m_sections[button].SetImage(imagePath, CLR_INVALID, true);
}

void KZDlgOptions::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDOK, m_btnOK);
    DDX_Control(pDX, IDCANCEL, m_btnCancel);
    for (int section = 0; section < KZSectionCount; ++section)
        DDX_Control(pDX, KZSectionButtonBase + section, m_sections[section]);
}

BOOL KZDlgOptions::OnInitDialog()
{
    CDialog::OnInitDialog();
    SetTexts();
    SetPictures();
    SetUpButton(m_btnOK, KZS_OK, L"OK-16.png");
    SetUpButton(m_btnCancel, KZS_CANCEL, L"CANCEL-16.png");
    if (m_bChild)
        AdaptToChild();
    else
        AdaptToFrame();
    Layout();
    SetIcon(LoadProgramIcon(), TRUE);
    return TRUE;
}

void KZDlgOptions::SetTexts()
{
    const KZBasicString device = m_pDriver ? m_pDriver->Name() : KZBasicString();
    const KZBasicString model = ModelName();
    SetWindowTextW(
        KZBasicString::Format(KZLoadString(KZ_IDS_OPTIONS_TITLE).c_str(), model.c_str(), device.c_str()).c_str());
    SetDlgItemTextW(KZ_IDC_OPTIONS_DEVICE_NAME, device.c_str());
    SetDlgItemTextW(KZ_IDC_OPTIONS_MODEL_NAME, model.c_str());
    for (int section = 0; section < KZSectionCount; ++section)
        m_sections[section].SetWindowTextW(KZLoadString(Sections[section].caption).c_str());

    LOGFONTW font{};
    if (::GetObjectW(reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)), sizeof(font), &font) != 0) {
        font.lfWeight = FW_BOLD;
        m_fontHeading.DeleteObject();
        if (m_fontHeading.CreateFontIndirectW(&font))
            GetDlgItem(KZ_IDC_OPTIONS_DEVICE_NAME)->SetFont(&m_fontHeading);
    }
}

void KZDlgOptions::SetPictures()
{
    const KZBasicString folder = KZQuorvelantaSetup::Get()->getImageFilePath();
    for (int section = 0; section < KZSectionCount; ++section)
        SetButtonImage(section, folder + Sections[section].picture);
}

void KZDlgOptions::AdaptToChild()
{
    // A hidden default button would still answer Enter.
    for (CImageButton* button : {&m_btnOK, &m_btnCancel}) {
        button->SetButtonStyle(BS_PUSHBUTTON, FALSE);
        button->EnableWindow(FALSE);
        button->ShowWindow(SW_HIDE);
    }
}

void KZDlgOptions::AdaptToFrame()
{
    // The caption says it already.
    for (const int id : {KZ_IDC_OPTIONS_DEVICE_NAME, KZ_IDC_OPTIONS_MODEL_NAME})
        GetDlgItem(id)->ShowWindow(SW_HIDE);
}

void KZDlgOptions::OnOK()
{
    if (!m_bChild)
        CDialog::OnOK();
}

void KZDlgOptions::OnCancel()
{
    if (!m_bChild)
        CDialog::OnCancel();
}

void KZDlgOptions::OnSize(UINT type, int cx, int cy)
{
    CDialog::OnSize(type, cx, cy);
    // A modal hub has no sizing border: it changes its own height, while it is laid out.
    if (m_bChild && m_btnOK.m_hWnd)
        Layout();
}

void KZDlgOptions::OnSysColorChange()
{
    CDialog::OnSysColorChange();
    if (m_bWindowColour)
        SetBackgroundColor(::GetSysColor(COLOR_WINDOW));
    Invalidate();
}

HBRUSH KZDlgOptions::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
{
    const HBRUSH standard = CDialog::OnCtlColor(pDC, pWnd, nCtlColor);
    if (!m_bChild || m_clrBackground == CLR_INVALID)
        return standard;
    pDC->SetBkColor(m_clrBackground);
    return m_brBackground;
}
