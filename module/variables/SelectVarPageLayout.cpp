// How a selection page is laid out: row captions at the left, then the net and the load group side by side, every row
// as high as a row-side button.
#include "SelectVarControls.h"
#include "SelectVarPage.h"

using zep::PhaseCount;
using zep::Side;

namespace {

// Shares. The cells of a row are equally wide on every row, so that buttons and boxes stand under their column's
// button.
constexpr int SideShare = 33;
constexpr int CellShare = 25;
constexpr int ColumnButtonShare = 90;
constexpr int ColumnButtonGap = 5;
constexpr int CentringShare = 50;

class Grid {
public:
    Grid(const CWnd& page, LayoutPlan& plan, const zep::SelectionTable& table) : m_plan(plan), m_table(table)
    {
        const CSize button = SizeOf(page, table.RowButtonId(0, Side::Net));
        m_rowHeight = KZLayout::Pixels2Size(button.cy).cy;
        m_buttonWidth = KZLayout::Pixels2Size(button.cx).cx;
        m_boxWidth = KZLayout::Pixels2Size(SizeOf(page, table.BoxId({0, 0, Side::Net})).cx).cx;
    }

    // The frame is boxed as the two groups are, which keeps the captions level with their rows.
    KZLayout& Captions()
    {
        KZLayout& captions = m_plan.NewBox(IDC_PAGE_FRAME);
        captions.AddGap(m_rowHeight);
        for (int row = 0; row < m_table.RowCount(); ++row) {
            captions.AddGap(KZSizeTextLine);
            captions.AddControl(m_table.caption + row, m_rowHeight);
        }
        return captions;
    }

    KZLayout& Group(Side side)
    {
        KZLayout& group = m_plan.NewBox(m_table.Ids(side).groupBox);
        group.AddLayout(Heads(m_table.Ids(side).column), m_rowHeight);
        for (int row = 0; row < m_table.RowCount(); ++row) {
            KZLayout& cells = m_plan.NewRow();
            AddCell(cells, m_table.RowButtonId(row, side), CentringShare, m_buttonWidth);
            for (int phase = 0; phase < PhaseCount; ++phase)
                AddCell(cells, m_table.BoxId({row, phase, side}), CentringShare, m_boxWidth);
            group.AddGap(KZSizeTextLine);
            group.AddLayout(cells, m_rowHeight);
        }
        return group;
    }

private:
    static CSize SizeOf(const CWnd& page, int id)
    {
        CRect rect(0, 0, 0, 0);
        ::GetWindowRect(::GetDlgItem(page.m_hWnd, id), &rect);
        return rect.Size();
    }

    KZLayout& Heads(int firstId)
    {
        KZLayout& heads = m_plan.NewRow();
        for (int head = 0; head <= PhaseCount; ++head)
            AddCell(heads, firstId + head, ColumnButtonGap, ColumnButtonShare);
        return heads;
    }

    void AddCell(KZLayout& row, int id, int gap, int width)
    {
        KZLayout& cell = m_plan.NewRow();
        cell.AddGap(gap);
        cell.AddControl(id, width);
        cell.AddGap(gap);
        row.AddLayout(cell, CellShare);
    }

    LayoutPlan& m_plan;
    const zep::SelectionTable& m_table;
    int m_rowHeight = 0;
    int m_boxWidth = 0;
    int m_buttonWidth = 0;
};

}  // namespace

void SelectVarPage::PlanLayout(LayoutPlan& plan)
{
    Grid grid(*this, plan, m_table);
    KZLayout& body = plan.NewRow();
    body.AddLayout(grid.Captions(), KZSizeNatural);
    for (const Side side : zep::Sides) {
        body.AddGap(KZSizeStandard);
        body.AddLayout(grid.Group(side), SideShare);
    }
    KZLayout& page = plan.Root();
    page.SetBorders(KZSizeStandard, KZSizeTextLine);
    page.AddLayout(body, KZSizeNatural);
    page.AddGap(100);
}
