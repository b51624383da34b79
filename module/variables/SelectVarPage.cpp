#include "SelectVarPage.h"

#include "ControlText.h"
#include "HostText.h"
#include "JoinedName.h"
#include "KZQuorvelantaSetup.h"
#include "KZStringIds.h"
#include "SelectVarControls.h"
#include "SelectVarMessages.h"
#include "SelectionGrid.h"
#include "SelectionRules.h"

using zep::PhaseCount;
using zep::SelectionCommand;
using zep::Side;
using zep::Sides;
using zep::VariablePosition;

namespace {

constexpr COLORREF FileTransparency = 0xFFFFFFFF;

// Past the button itself, which would draw itself anew for a text that has no room: for all boxes of the dialog that
// takes a tenth of the time in which it opens.
void NameBox(HWND box, const KZBasicString& name)
{
    ::DefWindowProcW(box, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(name.c_str()));
}

// Checked by the user: a box that was chosen before the dialog opened is disabled.
bool IsSelected(const CButton& box)
{
    return box.IsWindowEnabled() && box.GetCheck() == BST_CHECKED;
}

}  // namespace

BEGIN_MESSAGE_MAP(SelectVarPage, TabPage)
    ON_COMMAND_RANGE(IDC_SELECTION_FIRST, IDC_SELECTION_LAST, &SelectVarPage::OnSelectionCommand)
END_MESSAGE_MAP()

SelectVarPage::SelectVarPage(KZDriverDeviceZEP* device, zep::Family family)
    : TabPage(zep::TableOf(family).templateId), m_pDevice(device), m_table(zep::TableOf(family)),
      m_rows(m_table.rows.size())
{
}

CButton& SelectVarPage::Box(const VariablePosition& position)
{
    Row& row = m_rows[static_cast<std::size_t>(position.row)];
    return row.boxes[static_cast<std::size_t>(position.side)][static_cast<std::size_t>(position.phase)];
}

// The order of this walk is the order of the names in the host's list.
template <class Visitor>
void SelectVarPage::ForEachBox(Visitor visit)
{
    for (int row = 0; row < m_table.RowCount(); ++row) {
        for (const Side side : Sides) {
            for (int phase = 0; phase < PhaseCount; ++phase) {
                if (const VariablePosition position{row, phase, side}; m_table.HasBox(position))
                    visit(position, Box(position));
            }
        }
    }
}

void SelectVarPage::DoDataExchange(CDataExchange* pDX)
{
    TabPage::DoDataExchange(pDX);
    for (int row = 0; row < m_table.RowCount(); ++row) {
        for (const Side side : Sides) {
            if (m_table.HasRowButton(row, side))
                DDX_Control(pDX, m_table.RowButtonId(row, side),
                            m_rows[static_cast<std::size_t>(row)].buttons[static_cast<std::size_t>(side)]);
        }
    }
    ForEachBox([&](const VariablePosition& position, CButton& box) { DDX_Control(pDX, m_table.BoxId(position), box); });
}

BOOL SelectVarPage::OnInitDialog()
{
    TabPage::OnInitDialog();
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
    for (const Side side : Sides)
        SetDlgItemText(m_table.Ids(side).groupBox, SideText(side).c_str());
    SetDlgItemText(IDC_NET_COLUMN, HostText(KZS_ALL).c_str());
    if (m_table.loadAllFromHost)
        SetDlgItemText(IDC_LOAD_COLUMN, HostText(KZS_ALL).c_str());

    int id = m_table.caption;
    for (const zep::SelectionRow& row : m_table.rows) {
        const auto& [textId, order] = row.caption;
        SetDlgItemText(id++, (order == 0 ? HostText(textId) : FormatHostText(textId, order)).c_str());
    }
}

void SelectVarPage::NameControls(AccessibleNames& names, const KZBasicString& title)
{
    for (const Side side : Sides) {
        NameColumns(names, title, side);
        for (int row = 0; row < m_table.RowCount(); ++row)
            NameRow(names, row, side);
    }
}

// Every page has these buttons, so the names begin with the page's.
void SelectVarPage::NameColumns(AccessibleNames& names, const KZBasicString& title, Side side) const
{
    for (int column = 0; column <= PhaseCount; ++column) {
        const int id = m_table.Ids(side).column + column;
        names.Set(::GetDlgItem(m_hWnd, id), JoinedName({title, SideText(side), ControlText(m_hWnd, id)}).c_str());
    }
}

void SelectVarPage::NameRow(AccessibleNames& names, int row, Side side)
{
    const KZBasicString rowSide = JoinedName({ControlText(m_hWnd, m_table.caption + row), SideText(side)});
    names.Set(::GetDlgItem(m_hWnd, m_table.RowButtonId(row, side)), rowSide.c_str());
    for (int phase = 0; phase < PhaseCount; ++phase) {
        if (const VariablePosition position{row, phase, side}; m_table.HasBox(position))
            NameBox(Box(position), JoinedName({rowSide, KZBasicString::Format(L"L%d", phase + 1)}));
    }
}

bool SelectVarPage::Walk(HWND control, WPARAM key)
{
    const int id = ::GetDlgCtrlID(control);
    const std::optional<zep::GridPlace> place = PlaceInGrid(m_table, id);
    if (!place)
        return false;
    const int rows = key == VK_DOWN ? 1 : key == VK_UP ? -1 : 0;
    const int columns = key == VK_RIGHT ? 1 : key == VK_LEFT ? -1 : 0;
    for (const int next : WalkGrid(m_table, *place, rows, columns)) {
        const HWND target = ::GetDlgItem(m_hWnd, next);
        if (!::IsWindowEnabled(target))
            continue;
        ::SendMessageW(::GetParent(m_hWnd), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(target), TRUE);
        break;
    }
    return true;
}

void SelectVarPage::CheckInitialVariables(const zep::PositionSet& chosen)
{
    ForEachBox([&](const VariablePosition& position, CButton& box) {
        if (!chosen.test(PositionIndex(position)))
            return;
        box.SetCheck(BST_CHECKED);
        box.EnableWindow(FALSE);
    });
}

std::size_t SelectVarPage::CountSelected()
{
    std::size_t count = 0;
    ForEachBox([&](const VariablePosition&, const CButton& box) { count += IsSelected(box) ? 1U : 0U; });
    return count;
}

void SelectVarPage::CollectSelected(std::list<KZBasicString>& fullNames)
{
    std::wstring prefix(m_pDevice->Name().View());
    prefix += L'.';
    ForEachBox([&](const VariablePosition& position, const CButton& box) {
        if (!IsSelected(box))
            return;
        std::wstring fullName = prefix;
        AppendVariableName(fullName, m_table.family, position);
        fullNames.emplace_back(std::move(fullName));
    });
}

void SelectVarPage::OnSelectionCommand(UINT id)
{
    const auto command = CommandOf(m_table, static_cast<int>(id));
    if (!command)
        return;
    if (!command->IsBox()) {
        if (Toggle(*command))
            RefreshRowImages(*command);
        return;
    }
    // A box that was chosen before takes no part, whoever sends its command.
    CButton& box = Box({*command->row, *command->phase, *command->side});
    if (!box.IsWindowEnabled())
        return;
    OnBox(box);
    RefreshRowImages(*command);
}

// The box is an automatic one: Windows has flipped it already, so a refused mark is taken back.
void SelectVarPage::OnBox(CButton& box)
{
    if (box.GetCheck() != BST_CHECKED)
        SendToContainer(WM_SELECTVAR_UNSELECT, 1);
    else if (SendToContainer(WM_SELECTVAR_SELECT, 1) == 0)
        box.SetCheck(BST_UNCHECKED);
}

bool SelectVarPage::Toggle(const SelectionCommand& command)
{
    std::vector<CButton*> boxes;
    zep::GroupState group;
    ForEachBox([&](const VariablePosition& position, CButton& box) {
        if (!command.Covers(position) || !box.IsWindowEnabled())
            return;
        boxes.push_back(&box);
        group.Add(box.GetCheck() == BST_CHECKED);
    });

    const zep::GroupToggle toggle = ToggleOf(group);
    if (!toggle.select)
        SendToContainer(WM_SELECTVAR_UNSELECT, toggle.count);
    else if (SendToContainer(WM_SELECTVAR_SELECT, toggle.count) == 0)
        return false;
    for (CButton* box : boxes)
        box->SetCheck(toggle.select ? BST_CHECKED : BST_UNCHECKED);
    return true;
}

LRESULT SelectVarPage::SendToContainer(UINT message, std::size_t count) const
{
    return ::SendMessageW(::GetParent(m_hWnd), message, count, 0);
}

// The picture is the same whatever the state of the rows, and it is named without the image folder: the button looks a
// bare name up there itself. It says that a row has been touched; the boxes beside it say how.
void SelectVarPage::RefreshRowImages(const SelectionCommand& command)
{
    const KZBasicString picture(L"SYSTEM-check.png");
    CRect changed(0, 0, 0, 0);
    for (int row = 0; row < m_table.RowCount(); ++row) {
        for (const Side side : Sides) {
            CImageButton& button = m_rows[static_cast<std::size_t>(row)].buttons[static_cast<std::size_t>(side)];
            if (!command.CoversRow(row, side) || !button.GetSafeHwnd())
                continue;
            button.SetImage(picture, FileTransparency, false);
            CRect place;
            button.GetWindowRect(&place);
            changed.UnionRect(&changed, &place);
        }
    }
    // One call for a whole column: invalidating the buttons one by one costs half as much as checking all its boxes.
    ScreenToClient(&changed);
    RedrawWindow(&changed, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}
