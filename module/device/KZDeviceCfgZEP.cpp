#include "KZDeviceCfgZEP.h"

#include "ControlText.h"
#include "DeviceControls.h"
#include "DialogSetup.h"
#include "HostText.h"
#include "KZQuorvelantaSetup.h"
#include "KZStringIds.h"

using zep::InformationField;

namespace {

struct Label {
    int control;
    unsigned text;
};

constexpr Label Labels[] = {
    {IDC_IDENTITY_GROUP, KZS_DEVICE_INFORMATION},
    {IDC_NUMBER_LABEL, KZS_DEVICE_NUMBER},
    {IDC_IDENTIFIER_LABEL, KZS_DEVICE_IDENTIFIER},
    {IDC_DESCRIPTION_LABEL, KZS_DEVICE_DESCRIPTION},
    {IDC_MODEL_LABEL, KZS_DEVICE_MODEL},
    {IDC_VERSION_LABEL, KZS_DEVICE_VERSION},
    {IDC_SERIAL_NUMBER_LABEL, KZS_DEVICE_SERIAL_NUMBER},
    {IDC_GAMMA_LABEL, KZS_DEVICE_RANGE},
    {IDC_MODE_GROUP, KZS_WORKING_MODE},
    {IDC_FILTERS_GROUP, KZS_FILTERED_HARMONICS},
    {IDC_RATIO_GROUP, KZS_TRANSFORMER_RATIO},
    {IDC_ALGORITHM_GROUP, KZS_ALGORITHM},
    {IDC_UNITS_GROUP, KZS_NUMBER_OF_UNITS},
    {IDC_STATUS_GROUP, KZS_STATUS},
    {IDC_MODE + 0, KZS_MODE_FIRST},
    {IDC_MODE + 1, KZS_MODE_SECOND},
    {IDC_MODE + 2, KZS_MODE_THIRD},
    {IDC_MODE + 3, KZS_MODE_FOURTH},
};

// "Off" has the higher id and still comes first: the item's index is the record's value.
constexpr unsigned StatusItems[] = {KZS_STATUS_OFF, KZS_STATUS_ON};
constexpr unsigned AlgorithmItems[] = {KZS_ALGORITHM_FIRST, KZS_ALGORITHM_SECOND, KZS_ALGORITHM_THIRD};
static_assert(std::size(StatusItems) == zep::StatusCount && std::size(AlgorithmItems) == zep::AlgorithmCount);

template <std::size_t Count>
void CheckBits(std::array<CButton, Count>& boxes, int bits)
{
    for (std::size_t i = 0; i < Count; ++i)
        boxes[i].SetCheck((bits >> i & 1) != 0 ? BST_CHECKED : BST_UNCHECKED);
}

template <std::size_t Count>
int CheckedBits(const std::array<CButton, Count>& boxes)
{
    int bits = 0;
    for (std::size_t i = 0; i < Count; ++i)
        bits |= boxes[i].GetCheck() == BST_CHECKED ? 1 << i : 0;
    return bits;
}

template <std::size_t Count>
void FillList(CComboBox& list, const unsigned (&items)[Count], int choice)
{
    for (const unsigned item : items)
        list.AddString(HostText(item).c_str());
    if (choice >= 0)
        list.SetCurSel(choice);
}

KZBasicString MessageOf(const zep::InformationFailure& failure)
{
    return failure.bounds ? FormatHostText(failure.textId, failure.bounds->lowest, failure.bounds->highest)
                          : HostText(failure.textId);
}

// The wait cursor while a device is written, the arrow afterwards.
class WaitCursor {
public:
    WaitCursor() noexcept { ::SetCursor(::LoadCursorW(nullptr, IDC_WAIT)); }
    ~WaitCursor() { ::SetCursor(::LoadCursorW(nullptr, IDC_ARROW)); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

}  // namespace

BEGIN_MESSAGE_MAP(KZDeviceCfgZEP, KZBaseDeviceCfg)
END_MESSAGE_MAP()

KZDeviceCfgZEP::KZDeviceCfgZEP(CWnd* parent, KZDriver* driver, XmlDocument::XmlNode* node)
    : KZBaseDeviceCfg(driver, IDD_DEVICE_CONFIGURATION, parent), m_pNode(node)
{
}

KZDeviceCfgZEP::~KZDeviceCfgZEP() = default;

void KZDeviceCfgZEP::DoDataExchange(CDataExchange* pDX)
{
    KZBaseDeviceCfg::DoDataExchange(pDX);
    DDX_Control(pDX, IDCANCEL, m_btnCancel);
    DDX_Control(pDX, IDOK, m_btnOK);
    for (int i = 0; i < zep::ModeCount; ++i)
        DDX_Control(pDX, IDC_MODE + i, m_btnModes[static_cast<std::size_t>(i)]);
    for (int i = 0; i < zep::FilterCount; ++i)
        DDX_Control(pDX, IDC_FILTER + i, m_btnFilters[static_cast<std::size_t>(i)]);
    DDX_Control(pDX, IDC_VERSION, m_stcVersion);
    DDX_Control(pDX, IDC_MODEL, m_stcModel);
    DDX_Control(pDX, IDC_SERIAL_NUMBER, m_stcSerialNumber);
    DDX_Control(pDX, IDC_GAMMA, m_stcGamma);
    DDX_Control(pDX, IDC_RATIO, m_edtRatio);
    DDX_Control(pDX, IDC_CURRENT, m_edtCurrent);
    DDX_Control(pDX, IDC_ALGORITHM, m_cmbAlgorithm);
    DDX_Control(pDX, IDC_UNITS, m_edtUnits);
    DDX_Control(pDX, IDC_STATUS, m_cmbStatus);
}

BOOL KZDeviceCfgZEP::OnInitDialog()
{
    CDialog::OnInitDialog();
    SetIcon(LoadProgramIcon(), TRUE);
    SetTexts();
    SetUpOkCancel(m_btnOK, m_btnCancel);
    m_edtRatio.LimitText(4);
    m_edtCurrent.LimitText(3);
    m_edtUnits.LimitText(1);
    const zep::InformationRecord record(*Document()->Root());
    m_initial = record.Settings();
    ShowIdentity(record);
    ShowSettings(record);
    LayoutControls();
    UpdateData(FALSE);
    return TRUE;
}

void KZDeviceCfgZEP::SetTexts()
{
    const KZBasicString model = KZQuorvelantaSetup::Get()->DriverName(Driver()->TypeName().c_str());
    SetWindowText(FormatHostText(KZS_DEVICE_TITLE, model.c_str()).c_str());
    for (const Label& label : Labels)
        SetDlgItemText(label.control, HostText(label.text).c_str());
    for (int i = 0; i < zep::FilterCount; ++i)
        SetDlgItemText(IDC_FILTER + i, FormatHostText(KZS_HARMONIC_ORDER, zep::FilteredOrder(i)).c_str());
    SetDlgItemText(IDC_CURRENT_GROUP, HostText(KZS_MINIMUM_CURRENT).c_str());
}

void KZDeviceCfgZEP::ShowIdentity(const zep::InformationRecord& record)
{
    const KZDriver& driver = *Driver();
    SetDlgItemText(IDC_NUMBER, KZBasicString::Format(L"%d", driver.Number()).c_str());
    SetDlgItemText(IDC_IDENTIFIER, driver.Name().c_str());
    m_stcModel.SetWindowText(KZQuorvelantaSetup::Get()->DriverName(driver.TypeName().c_str()).c_str());
    SetDlgItemText(IDC_DESCRIPTION, driver.Description().c_str());
    m_stcVersion.SetWindowText(record.Text(InformationField::Version).c_str());
    m_stcSerialNumber.SetWindowText(record.Text(InformationField::SerialNumber).c_str());
    m_stcGamma.SetWindowText(record.Text(InformationField::Gamma).c_str());
}

void KZDeviceCfgZEP::ShowSettings(const zep::InformationRecord& record)
{
    CheckBits(m_btnModes, m_initial.modes);
    CheckBits(m_btnFilters, m_initial.filters);
    m_edtRatio.SetWindowText(record.Text(InformationField::TransformerRatio).c_str());
    m_edtCurrent.SetWindowText(record.Text(InformationField::MinimumCurrent).c_str());
    FillList(m_cmbAlgorithm, AlgorithmItems, record.AlgorithmChoice());
    m_edtUnits.SetWindowText(record.Text(InformationField::UnitCount).c_str());
    FillList(m_cmbStatus, StatusItems, record.StatusChoice());
    // The device decides these three; here they are only shown.
    m_edtRatio.EnableWindow(FALSE);
    m_cmbAlgorithm.EnableWindow(FALSE);
    m_cmbStatus.EnableWindow(FALSE);
}

void KZDeviceCfgZEP::OnOK()
{
    UpdateData(TRUE);
    if (!Validate())
        return;
    // The caller must not record a change when there is none.
    if (m_settings == m_initial) {
        CDialog::OnCancel();
        return;
    }
    if (IsConfirmed() && WriteRecord())
        CDialog::OnOK();
}

zep::InformationEntries KZDeviceCfgZEP::Entries() const
{
    return {CheckedBits(m_btnModes), CheckedBits(m_btnFilters), ControlText(m_edtRatio), ControlText(m_edtCurrent),
            ControlText(m_edtUnits)};
}

bool KZDeviceCfgZEP::Validate()
{
    const auto failure = zep::CheckInformation(Entries(), m_settings);
    if (failure)
        ShowMessageAndFocus(MessageOf(*failure), EditOf(failure->field));
    return !failure;
}

CEdit& KZDeviceCfgZEP::EditOf(InformationField field) noexcept
{
    switch (field) {
    case InformationField::MinimumCurrent:
        return m_edtCurrent;
    case InformationField::UnitCount:
        return m_edtUnits;
    default:
        return m_edtRatio;
    }
}

bool KZDeviceCfgZEP::IsConfirmed() const
{
    return AfxMessageBox(HostText(KZS_CONFIRM_WRITE).c_str(), MB_YESNO | MB_ICONQUESTION) == IDYES;
}

bool KZDeviceCfgZEP::WriteRecord()
{
    const WaitCursor cursor;
    m_settings.modes = CheckedBits(m_btnModes);
    m_settings.filters = CheckedBits(m_btnFilters);
    zep::WriteInformation(*Document()->Root(), m_settings);
    return writeCfg(false);
}
