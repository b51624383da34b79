#include "CDlgLimitsArmonicZEP.h"

#include "HostText.h"
#include "KZStringIds.h"
#include "LimitsControls.h"

namespace {

constexpr int Rows = zep::HarmonicRowCount;

// The page's three parts, each with its own heads.
struct Block {
    int firstRow;
    int endRow;
    int unit;
};

constexpr std::array<Block, 3> Blocks{{
    {0, 1, IDC_FUNDAMENTAL_UNIT},
    {1, 7, IDC_HARMONIC_UNIT_LEFT},
    {7, Rows, IDC_HARMONIC_UNIT_RIGHT},
}};

constexpr auto Edits = [] {
    std::array<LimitEditIds, Rows> edits{};
    for (int row = 0; row < Rows; ++row)
        edits[static_cast<std::size_t>(row)] = {IDC_HARMONIC_NOMINAL + row, IDC_HARMONIC_MAXW + row,
                                                IDC_HARMONIC_MAXD + row};
    return edits;
}();

const LimitsPageTable& TableOf(zep::Side side)
{
    static const LimitsPageTable net{IDD_LIMITS_HARMONIC, zep::HarmonicLimitsTable(zep::Side::Net), Edits};
    static const LimitsPageTable load{IDD_LIMITS_HARMONIC, zep::HarmonicLimitsTable(zep::Side::Load), Edits};
    return side == zep::Side::Net ? net : load;
}

// One block: heads, captions under them, rows of a label and three edit boxes.
class BlockLayout {
public:
    BlockLayout(LayoutPlan& plan, int block) : m_plan(plan), m_block(block) {}

    KZLayout& Make()
    {
        const Block& block = Blocks[static_cast<std::size_t>(m_block)];
        KZLayout& column = m_plan.NewColumn();
        column.AddLayout(Heads(), KZSizeTextLine);
        column.AddLayout(Captions(block.unit), KZSizeTextLine);
        for (int row = block.firstRow; row < block.endRow; ++row) {
            column.AddGap(KZSizeEditLine);
            column.AddLayout(GridRow(row), KZSizeEditLine);
        }
        return column;
    }

private:
    static constexpr int LabelShare = 34;
    static constexpr int ColumnShare = 22;

    KZLayout& Heads()
    {
        KZLayout& row = m_plan.NewRow();
        row.AddGap(LabelShare);
        AddNominal(row, IDC_HARMONIC_NOMINAL_HEAD + m_block);
        AddLimits(row, IDC_HARMONIC_MAXW_HEAD + m_block, IDC_HARMONIC_MAXD_HEAD + m_block);
        return row;
    }

    KZLayout& Captions(int unit)
    {
        KZLayout& row = m_plan.NewRow();
        row.AddGap(LabelShare);
        AddNominal(row, unit);
        row.AddGap(KZSizeTextLine);
        row.AddControl(IDC_HARMONIC_MAX_CAPTION + m_block, 2 * ColumnShare);
        return row;
    }

    KZLayout& GridRow(int index)
    {
        KZLayout& row = m_plan.NewRow();
        row.AddControl(IDC_HARMONIC_ROW + index, LabelShare);
        AddNominal(row, IDC_HARMONIC_NOMINAL + index);
        AddLimits(row, IDC_HARMONIC_MAXW + index, IDC_HARMONIC_MAXD + index);
        return row;
    }

    static void AddNominal(KZLayout& row, int id)
    {
        row.AddGap(KZSizeTextLine);
        row.AddControl(id, ColumnShare);
    }

    // The two limits are one item, so that the caption under them is as wide as both.
    void AddLimits(KZLayout& row, int inner, int outer)
    {
        row.AddGap(KZSizeTextLine);
        row.AddLayout(NewPair(m_plan, inner, outer), 2 * ColumnShare);
    }

    LayoutPlan& m_plan;
    int m_block;
};

}  // namespace

CDlgLimitsArmonicZEP::CDlgLimitsArmonicZEP(zep::Side side) : LimitsPage(TableOf(side)), m_side(side) {}

void CDlgLimitsArmonicZEP::SetLabels()
{
    constexpr int blocks = Blocks.size();
    SetTexts(IDC_HARMONIC_NOMINAL_HEAD, blocks, KZS_NOMINAL);
    SetTexts(IDC_HARMONIC_MAXW_HEAD, blocks, KZS_WARNING_LIMIT);
    SetTexts(IDC_HARMONIC_MAXD_HEAD, blocks, KZS_ALARM_LIMIT);
    SetTexts(IDC_HARMONIC_MAX_CAPTION, blocks, KZS_MAXIMUM);
    for (std::size_t row = 0; row < zep::HarmonicRowCount; ++row)
        SetDlgItemText(RowLabelId(row), TextOf(zep::HarmonicLimitLabel(row)).c_str());
    SetDlgItemText(IDC_FUNDAMENTAL_UNIT, L"(A)");
}

int CDlgLimitsArmonicZEP::RowLabelId(std::size_t variable) const noexcept
{
    return IDC_HARMONIC_ROW + static_cast<int>(variable);
}

KZBasicString CDlgLimitsArmonicZEP::SideName() const
{
    return SideText(m_side);
}

// The fundamental alone at the top, as wide as the left one of the two blocks below it.
void CDlgLimitsArmonicZEP::PlanLayout(LayoutPlan& plan)
{
    KZLayout& top = plan.NewRow();
    top.AddLayout(BlockLayout(plan, 0).Make(), 50);
    top.AddGap(KZSizeStandard);
    top.AddGap(50);
    KZLayout& blocks = plan.NewRow();
    blocks.AddLayout(BlockLayout(plan, 1).Make(), 50);
    blocks.AddGap(KZSizeStandard);
    blocks.AddLayout(BlockLayout(plan, 2).Make(), 50);

    KZLayout& page = plan.Root();
    page.SetBorders(KZSizeStandard, KZSizeTextLine);
    page.AddLayout(top, KZSizeNatural);
    page.AddGap(KZSizeStandard);
    page.AddLayout(blocks, KZSizeNatural);
    page.AddGap(100);
}
