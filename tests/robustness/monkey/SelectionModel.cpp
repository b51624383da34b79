#include "SelectionModel.h"

#include <algorithm>

#include "SelectVarControls.h"

namespace {

constexpr wchar_t SideLetters[] = L"NL";

// Names that mark a box though they are not its own.
struct Alias {
    const wchar_t* name;
    const wchar_t* box;
};
constexpr Alias Aliases[] = {
    {L"HZIL", L"HZIN"}, {L"ARM2A1N", L"ARM1A1N"}, {L"ARM4A3L", L"ARM3A3L"}, {L"ARM0A2N", L"ARM1A2N"}};

}  // namespace

SelectionModel::SelectionModel(const std::wstring& device, const std::vector<std::wstring>& chosen, int maximum)
    : m_device(device), m_maximum(maximum)
{
    AddGeneralBoxes();
    AddPowerBoxes();
    AddHarmonicBoxes();
    for (Box& box : m_boxes) {
        const auto names = [&](const std::wstring& full) {
            return full == device + L"." + box.name ||
                   std::any_of(std::begin(Aliases), std::end(Aliases), [&](const Alias& alias) {
                       return box.name == alias.box && full == device + L"." + alias.name;
                   });
        };
        if (std::any_of(chosen.begin(), chosen.end(), names)) {
            box.checked = true;
            box.enabled = false;
        }
    }
}

void SelectionModel::AddBox(int page, int id, const std::wstring& name, int row, int side, int phase)
{
    m_boxes.push_back({page, id, name, row, side, phase});
}

void SelectionModel::AddGeneralBoxes()
{
    for (int phase = 0; phase < 3; ++phase)
        AddBox(0, IDC_GENERAL_NET_BOX + 4 * phase, L"VI" + std::to_wstring(phase + 1) + L"N", 0, 0, phase);
    AddBox(0, IDC_GENERAL_NET_BOX + 1, L"HZIN", 1, 0, 0);
    for (int row = 2; row < 4; ++row) {
        const std::wstring code = row == 2 ? L"AI" : L"DAI";
        for (int phase = 0; phase < 3; ++phase)
            AddBox(0, IDC_GENERAL_NET_BOX + row + 4 * phase, code + std::to_wstring(phase + 1) + L"N", row, 0, phase);
        for (int phase = 0; phase < 3; ++phase)
            AddBox(0, IDC_GENERAL_LOAD_BOX + row + 4 * phase, code + std::to_wstring(phase + 1) + L"L", row, 1, phase);
    }
}

void SelectionModel::AddPowerBoxes()
{
    const std::wstring codes[] = {L"API", L"RPI", L"VAI", L"PFI"};
    for (int row = 0; row < 4; ++row)
        for (int side = 0; side < 2; ++side)
            for (int phase = 0; phase < 3; ++phase)
                AddBox(1, (side == 0 ? IDC_POWER_NET_BOX : IDC_POWER_LOAD_BOX) + row + 4 * phase,
                       codes[row] + std::to_wstring(phase + 1) + SideLetters[side], row, side, phase);
}

void SelectionModel::AddHarmonicBoxes()
{
    for (int row = 0; row < 13; ++row)
        for (int side = 0; side < 2; ++side)
            for (int phase = 0; phase < 3; ++phase)
                AddBox(2, (side == 0 ? IDC_HARMONIC_NET_BOX : IDC_HARMONIC_LOAD_BOX) + row + 13 * phase,
                       L"ARM" + std::to_wstring(2 * row + 1) + L"A" + std::to_wstring(phase + 1) + SideLetters[side],
                       row, side, phase);
}

std::vector<SelectionModel::Box*> SelectionModel::GroupOf(int page, int id)
{
    const int rows[] = {4, 4, 13};
    const int captions[] = {IDC_GENERAL_CAPTION, IDC_POWER_CAPTION, IDC_HARMONIC_CAPTION};
    const int netButtons[] = {IDC_GENERAL_NET_ROW, IDC_POWER_NET_ROW, IDC_HARMONIC_NET_ROW};
    const int loadButtons[] = {IDC_GENERAL_LOAD_ROW, IDC_POWER_LOAD_ROW, IDC_HARMONIC_LOAD_ROW};
    const int netColumns = IDC_NET_COLUMN;    // "all", then one per phase
    const int loadColumns = IDC_LOAD_COLUMN;  // the same

    std::vector<Box*> group;
    const auto add = [&](std::optional<int> row, std::optional<int> side, std::optional<int> phase) {
        for (Box& box : m_boxes)
            if (box.page == page && box.enabled && (!row || box.row == *row) && (!side || box.side == *side) &&
                (!phase || box.phase == *phase))
                group.push_back(&box);
    };
    const auto isIn = [&](int first, int count) { return id >= first && id < first + count; };
    const auto phaseOf = [&](int first) { return id == first ? std::nullopt : std::optional<int>(id - first - 1); };
    if (isIn(captions[page], rows[page]))
        add(id - captions[page], std::nullopt, std::nullopt);
    else if (isIn(netButtons[page], rows[page]))
        add(id - netButtons[page], 0, std::nullopt);
    else if (isIn(loadButtons[page], rows[page]))
        add(id - loadButtons[page], 1, std::nullopt);
    else if (isIn(netColumns, 4))
        add(std::nullopt, 0, phaseOf(netColumns));
    else if (isIn(loadColumns, 4))
        add(std::nullopt, 1, phaseOf(loadColumns));
    return group;
}

bool SelectionModel::Press(int page, int id)
{
    const auto box = std::find_if(m_boxes.begin(), m_boxes.end(),
                                  [&](const Box& each) { return each.page == page && each.id == id; });
    if (box == m_boxes.end())
        return Change(GroupOf(page, id));
    if (!box->checked && !Fits(1))
        return false;
    box->checked = !box->checked;
    return true;
}

// A group that is not full is completed, if it fits; a full one is emptied.
bool SelectionModel::Change(const std::vector<Box*>& group)
{
    const auto clear = std::count_if(group.begin(), group.end(), [](const Box* box) { return !box->checked; });
    if (clear > 0 && !Fits(static_cast<int>(clear)))
        return false;
    for (Box* box : group)
        box->checked = clear > 0;
    return true;
}

int SelectionModel::Selected() const
{
    return static_cast<int>(
        std::count_if(m_boxes.begin(), m_boxes.end(), [](const Box& box) { return box.checked && box.enabled; }));
}

bool SelectionModel::Offers(const std::vector<std::wstring>& names) const
{
    return std::all_of(names.begin(), names.end(), [&](const std::wstring& name) {
        return std::any_of(m_boxes.begin(), m_boxes.end(),
                           [&](const Box& box) { return name == m_device + L"." + box.name; });
    });
}

std::vector<std::wstring> SelectionModel::Names() const
{
    std::vector<std::wstring> names;
    for (const Box& box : m_boxes)
        if (box.checked && box.enabled)
            names.push_back(m_device + L"." + box.name);
    return names;
}
