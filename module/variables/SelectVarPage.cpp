#include "SelectVarPage.h"

#include "ChildPage.h"
#include "HostText.h"
#include "KZQuorvelantaSetup.h"
#include "KZStringIds.h"
#include "SelectVarControls.h"
#include "SelectVarMessages.h"
#include "SelectVarPageLayout.h"
#include "SelectionRules.h"

using zep::PhaseCount;
using zep::Side;
using zep::Sides;
using zep::VariablePosition;

namespace {

constexpr COLORREF FileTransparency = 0xFFFFFFFF;

bool IsSelectable(const CButton& box)
{
    return box.GetSafeHwnd() && box.IsWindowEnabled();
}

bool IsSelected(const CButton& box)
{
    return IsSelectable(box) && box.GetCheck() == BST_CHECKED;
}

}  // namespace

class SelectVarPage::Group {
public:
    // Boxes that the template lacks and boxes that were chosen before take no part.
    void Add(CButton& box)
    {
        if (!IsSelectable(box))
            return;
        m_boxes[m_count++] = &box;
        m_state.Add(box.GetCheck() == BST_CHECKED);
    }

    [[nodiscard]] const zep::GroupState& State() const noexcept { return m_state; }

    void SetChecks(bool checked) const
    {
        for (std::size_t index = 0; index < m_count; ++index)
            m_boxes[index]->SetCheck(checked ? BST_CHECKED : BST_UNCHECKED);
    }

private:
    std::array<CButton*, zep::HarmonicRowCount * PhaseCount> m_boxes{};
    std::size_t m_count = 0;
    zep::GroupState m_state;
};

BEGIN_MESSAGE_MAP(SelectVarPage, CDialog)
    ON_COMMAND_RANGE(IDC_SELECTION_FIRST, IDC_SELECTION_LAST, &SelectVarPage::OnSelectionCommand)
END_MESSAGE_MAP()

SelectVarPage::SelectVarPage(KZDriverDeviceZEP* device, zep::Family family)
    : m_pDevice(device), m_table(zep::TableOf(family)), m_rows(m_table.rows.size())
{
}

bool SelectVarPage::Create(CWnd* container)
{
    return CDialog::Create(m_table.templateId, container) != FALSE;
}

CButton& SelectVarPage::Box(const VariablePosition& position)
{
    Row& row = m_rows[static_cast<std::size_t>(position.row)];
    return row.boxes[static_cast<std::size_t>(position.side)][static_cast<std::size_t>(position.phase)];
}

const CButton& SelectVarPage::Box(const VariablePosition& position) const
{
    return const_cast<SelectVarPage*>(this)->Box(position);
}

// The order of this walk is the order of the names in the host's list.
template <class Visitor>
void SelectVarPage::ForEachBox(Visitor visit) const
{
    for (int row = 0; row < m_table.RowCount(); ++row) {
        for (const Side side : Sides) {
            for (int phase = 0; phase < PhaseCount; ++phase) {
                if (const VariablePosition position{row, phase, side}; m_table.HasBox(position))
                    visit(position);
            }
        }
    }
}

void SelectVarPage::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    for (int row = 0; row < m_table.RowCount(); ++row) {
        for (const Side side : Sides) {
            if (m_table.HasRowButton(row, side))
                DDX_Control(pDX, m_table.RowButtonId(row, side),
                            m_rows[static_cast<std::size_t>(row)].buttons[static_cast<std::size_t>(side)]);
        }
    }
    ForEachBox([&](const VariablePosition& position) { DDX_Control(pDX, m_table.BoxId(position), Box(position)); });
}

BOOL SelectVarPage::OnInitDialog()
{
    CDialog::OnInitDialog();
    LoadTexts();

    const KZBasicString picture = KZQuorvelantaSetup::Get()->getImageFilePath() + L"SYSTEM-uncheck.png";
    for (Row& row : m_rows) {
        for (CImageButton& button : row.buttons) {
            if (button.GetSafeHwnd())
                button.SetImage(picture, FileTransparency, false);
        }
    }
    return TRUE;
}

void SelectVarPage::LoadTexts()
{
    SetDlgItemText(IDC_NET_GROUP, HostText(KZS_NET_SIDE).c_str());
    SetDlgItemText(IDC_LOAD_GROUP, HostText(KZS_LOAD_SIDE).c_str());
    SetDlgItemText(IDC_NET_COLUMN, HostText(KZS_ALL).c_str());
    if (m_table.loadAllFromHost)
        SetDlgItemText(IDC_LOAD_COLUMN, HostText(KZS_ALL).c_str());

    int id = m_table.caption;
    for (const zep::SelectionRow& row : m_table.rows) {
        const auto& [textId, order] = row.caption;
        SetDlgItemText(id++, (order == 0 ? HostText(textId) : FormatHostText(textId, order)).c_str());
    }
}

void SelectVarPage::OnOK()
{
    PostToContainer(*this, IDOK);
}

void SelectVarPage::OnCancel()
{
    PostToContainer(*this, IDCANCEL);
}

void SelectVarPage::CheckInitialVariables(const zep::PositionSet& chosen)
{
    ForEachBox([&](const VariablePosition& position) {
        if (!chosen.test(PositionIndex(position)))
            return;
        Box(position).SetCheck(BST_CHECKED);
        Box(position).EnableWindow(FALSE);
    });
}

std::size_t SelectVarPage::CountSelected() const
{
    std::size_t count = 0;
    ForEachBox([&](const VariablePosition& position) { count += IsSelected(Box(position)) ? 1U : 0U; });
    return count;
}

void SelectVarPage::CollectSelected(std::list<KZBasicString>& fullNames) const
{
    std::wstring prefix(m_pDevice->Name().View());
    prefix += L'.';
    ForEachBox([&](const VariablePosition& position) {
        if (!IsSelected(Box(position)))
            return;
        std::wstring fullName = prefix;
        AppendVariableName(fullName, m_table.family, position);
        fullNames.emplace_back(std::move(fullName));
    });
}

void SelectVarPage::OnSelectionCommand(UINT id)
{
    using Kind = zep::SelectionCommand::Kind;
    const auto command = CommandOf(m_table, static_cast<int>(id));
    if (!command)
        return;
    switch (command->kind) {
    case Kind::Box:
        OnBox({command->row, command->phase.value_or(0), command->side});
        break;
    case Kind::Row:
        OnRow(command->row);
        break;
    case Kind::RowSide:
        OnRowSide(command->row, command->side);
        break;
    case Kind::Column:
        OnColumn(command->side, command->phase);
        break;
    }
}

// The box is an automatic one: Windows has flipped it already, so a refused mark is taken back.
void SelectVarPage::OnBox(const VariablePosition& position)
{
    CButton& box = Box(position);
    if (box.GetCheck() != BST_CHECKED)
        SendToContainer(WM_SELECTVAR_UNSELECT, 1);
    else if (SendToContainer(WM_SELECTVAR_SELECT, 1) == 0)
        box.SetCheck(BST_UNCHECKED);
    RefreshRowImages(position.row, 1, position.side);
}

void SelectVarPage::OnRow(int row)
{
    Group group;
    for (const Side side : Sides) {
        for (int phase = 0; phase < PhaseCount; ++phase)
            group.Add(Box({row, phase, side}));
    }
    if (!Toggle(group))
        return;
    for (const Side side : Sides)
        RefreshRowImages(row, 1, side);
}

void SelectVarPage::OnRowSide(int row, Side side)
{
    Group group;
    for (int phase = 0; phase < PhaseCount; ++phase)
        group.Add(Box({row, phase, side}));
    if (Toggle(group))
        RefreshRowImages(row, 1, side);
}

void SelectVarPage::OnColumn(Side side, std::optional<int> phase)
{
    Group group;
    for (int row = 0; row < m_table.RowCount(); ++row) {
        for (int column = 0; column < PhaseCount; ++column) {
            if (!phase || *phase == column)
                group.Add(Box({row, column, side}));
        }
    }
    if (Toggle(group))
        RefreshRowImages(0, m_table.RowCount(), side);
}

bool SelectVarPage::Toggle(const Group& group)
{
    const zep::GroupToggle toggle = ToggleOf(group.State());
    if (!toggle.select)
        SendToContainer(WM_SELECTVAR_UNSELECT, toggle.count);
    else if (SendToContainer(WM_SELECTVAR_SELECT, toggle.count) == 0)
        return false;
    group.SetChecks(toggle.select);
    return true;
}

LRESULT SelectVarPage::SendToContainer(UINT message, std::size_t count) const
{
    const CWnd* container = GetParent();
    return container ? ::SendMessageW(container->m_hWnd, message, count, 0) : 0;
}

// The picture is the same whatever the state of the rows, and it is named without the image folder: the button looks a
// bare name up there itself. It says that a row has been touched; the boxes beside it say how.
void SelectVarPage::RefreshRowImages(int firstRow, int rowCount, Side side)
{
    const KZBasicString picture(L"SYSTEM-check.png");
    CRect changed(0, 0, 0, 0);
    for (int row = firstRow; row < firstRow + rowCount; ++row) {
        CImageButton& button = m_rows[static_cast<std::size_t>(row)].buttons[static_cast<std::size_t>(side)];
        if (!button.GetSafeHwnd())
            continue;
        button.SetImage(picture, FileTransparency, false);
        CRect place;
        button.GetWindowRect(&place);
        changed.UnionRect(&changed, &place);
    }
    if (changed.IsRectEmpty())
        return;
    // One call for a whole column: invalidating the buttons one by one costs half as much as checking all its boxes.
    ScreenToClient(&changed);
    RedrawWindow(&changed, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

int SelectVarPage::RequiredHeight()
{
    if (m_nRequiredHeight == 0)
        m_nRequiredHeight = SelectVarPageLayout(*this, m_table).Height();
    return m_nRequiredHeight;
}

void SelectVarPage::LayoutControls()
{
    if ((GetStyle() & WS_VISIBLE) != 0)
        LayoutNow();
    else
        m_bLayoutPending = true;
}

void SelectVarPage::LayoutNow()
{
    m_bLayoutPending = false;
    CRect client;
    GetClientRect(&client);
    SelectVarPageLayout(*this, m_table).Apply(client);
}

void SelectVarPage::Show()
{
    if (m_bLayoutPending)
        LayoutNow();
    ShowWindow(SW_SHOW);
}

void SelectVarPage::MoveTo(const CRect& area)
{
    MoveWindow(&area);
}
