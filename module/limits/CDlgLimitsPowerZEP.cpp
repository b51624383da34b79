#include "CDlgLimitsPowerZEP.h"

#include "KZStringIds.h"
#include "LimitsControls.h"

namespace {

constexpr int Groups = zep::PowerLimitCount;

// The controls of one group box; heads and captions follow each other from group to group.
struct GroupIds {
    int box;
    int unit;
};

constexpr std::array<GroupIds, Groups> GroupControls{{
    {IDC_PF_GROUP, IDC_PF_UNIT},
    {IDC_AP_GROUP, IDC_AP_UNIT},
    {IDC_RP_GROUP, IDC_RP_UNIT},
    {IDC_VA_GROUP, IDC_VA_UNIT},
}};

constexpr std::array<LimitEditIds, Groups> Edits{{
    {IDC_PF_NOMINAL, IDC_PF_MAXW, IDC_PF_MAXD, IDC_PF_MINW, IDC_PF_MIND},
    {IDC_AP_NOMINAL, IDC_AP_MAXW, IDC_AP_MAXD},
    {IDC_RP_NOMINAL, IDC_RP_MAXW, IDC_RP_MAXD},
    {IDC_VA_NOMINAL, IDC_VA_MAXW, IDC_VA_MAXD},
}};

const LimitsPageTable Table{IDD_LIMITS_POWER, zep::PowerLimitsTable, Edits};

// A group's grid: heads, captions under them, edit boxes. The power factor has the lower limits beside the upper ones.
class GroupLayout {
public:
    GroupLayout(LayoutPlan& plan, std::size_t group) : m_plan(plan), m_group(group) {}

    KZLayout& Make()
    {
        const int index = static_cast<int>(m_group);
        const LimitEditIds& edits = Edits[m_group];
        KZLayout& box = m_plan.NewBox(GroupControls[m_group].box);
        KZLayout& heads = NewGridRow(IDC_POWER_NOMINAL_HEAD + index);
        AddPair(heads, IDC_POWER_MAXW_HEAD + index, IDC_POWER_MAXD_HEAD + index);
        KZLayout& captions = NewGridRow(GroupControls[m_group].unit);
        AddCaption(captions, IDC_POWER_MAX_CAPTION + index);
        KZLayout& boxes = NewGridRow(edits[0]);
        AddPair(boxes, edits[1], edits[2]);
        if (edits[3] != 0) {
            AddPair(heads, IDC_POWER_MINW_HEAD, IDC_POWER_MIND_HEAD);
            AddCaption(captions, IDC_POWER_MIN_CAPTION);
            AddPair(boxes, edits[3], edits[4]);
        }
        box.AddLayout(heads, KZSizeTextLine);
        box.AddLayout(captions, KZSizeTextLine);
        box.AddGap(KZSizeEditLine);
        box.AddLayout(boxes, KZSizeEditLine);
        return box;
    }

private:
    static constexpr int ColumnShare = 20;

    KZLayout& NewGridRow(int firstId)
    {
        KZLayout& row = m_plan.NewRow();
        row.AddControl(firstId, ColumnShare);
        return row;
    }

    void AddPair(KZLayout& row, int first, int second)
    {
        row.AddGap(KZSizeTextLine);
        row.AddLayout(NewPair(m_plan, first, second), 2 * ColumnShare);
    }

    static void AddCaption(KZLayout& row, int caption)
    {
        row.AddGap(KZSizeTextLine);
        row.AddControl(caption, 2 * ColumnShare);
    }

    LayoutPlan& m_plan;
    std::size_t m_group;
};

}  // namespace

CDlgLimitsPowerZEP::CDlgLimitsPowerZEP(KZDriver* driver) : LimitsPage(Table), m_pDriver(driver) {}

void CDlgLimitsPowerZEP::SetLabels()
{
    SetTexts(IDC_POWER_NOMINAL_HEAD, Groups, KZS_NOMINAL);
    SetTexts(IDC_POWER_MAXW_HEAD, Groups, KZS_WARNING_LIMIT);
    SetTexts(IDC_POWER_MINW_HEAD, 1, KZS_WARNING_LIMIT);
    SetTexts(IDC_POWER_MAXD_HEAD, Groups, KZS_ALARM_LIMIT);
    SetTexts(IDC_POWER_MIND_HEAD, 1, KZS_ALARM_LIMIT);
    SetTexts(IDC_POWER_MAX_CAPTION, Groups, KZS_MAXIMUM);
    for (std::size_t group = 0; group < Groups; ++group)
        SetTexts(GroupControls[group].box, 1, zep::PowerLimitTitle(static_cast<zep::PowerLimit>(group)));
    // The power factor is no percentage: its captions replace the general ones.
    SetTexts(IDC_POWER_MIN_CAPTION, 1, KZS_POWER_FACTOR_MINIMUM);
    SetTexts(IDC_POWER_MAX_CAPTION, 1, KZS_POWER_FACTOR_MAXIMUM);
}

int CDlgLimitsPowerZEP::RowLabelId(std::size_t variable) const noexcept
{
    return GroupControls[variable].box;
}

// The power factor over the whole width, the three powers side by side below it.
void CDlgLimitsPowerZEP::PlanLayout(LayoutPlan& plan)
{
    KZLayout& powers = plan.NewRow();
    for (std::size_t group = 1; group < Groups; ++group) {
        if (group > 1)
            powers.AddGap(KZSizeStandard);
        powers.AddLayout(GroupLayout(plan, group).Make(), 33);
    }
    KZLayout& page = plan.Root();
    page.SetBorders(KZSizeStandard, KZSizeTextLine);
    page.AddLayout(GroupLayout(plan, 0).Make(), KZSizeNatural);
    page.AddGap(KZSizeStandard);
    page.AddLayout(powers, KZSizeNatural);
    page.AddGap(100);
}
