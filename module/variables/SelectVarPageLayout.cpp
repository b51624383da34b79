#include "SelectVarPageLayout.h"

#include "SelectVarControls.h"

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

CSize SizeOf(const CWnd& page, int id)
{
    CRect rect(0, 0, 0, 0);
    if (const CWnd* control = page.GetDlgItem(id))
        control->GetWindowRect(&rect);
    return rect.Size();
}

}  // namespace

SelectVarPageLayout::SelectVarPageLayout(CWnd& page, const zep::SelectionTable& table) : m_page(&page)
{
    const CSize button = SizeOf(page, table.RowButtonId(0, Side::Net));
    m_rowHeight = KZLayout::Pixels2Size(button.cy).cy;
    m_buttonWidth = KZLayout::Pixels2Size(button.cx).cx;
    m_boxWidth = KZLayout::Pixels2Size(SizeOf(page, table.BoxId({0, 0, Side::Net})).cx).cx;

    AddCaptions(table);
    AddSide(table, Side::Net);
    AddSide(table, Side::Load);

    KZLayout& body = m_rows.front();
    m_page.SetBorders(KZSizeStandard, KZSizeTextLine);
    m_page.AddLayout(body, KZSizeNatural);
    m_page.AddGap(100);
}

int SelectVarPageLayout::Height() const
{
    return m_page.FixedSize().cy;
}

void SelectVarPageLayout::Apply(const CRect& area) const
{
    m_page.Layout(area);
}

// The frame is boxed as the two groups are, which keeps the captions level with their rows.
void SelectVarPageLayout::AddCaptions(const zep::SelectionTable& table)
{
    KZLayout& body = NewRow();
    KZLayout& captions = NewColumn();
    captions.SetBoxControl(IDC_PAGE_FRAME, KZSizeStandard, true);
    captions.AddGap(m_rowHeight);
    for (int row = 0; row < table.RowCount(); ++row) {
        captions.AddGap(KZSizeTextLine);
        captions.AddControl(table.caption + row, m_rowHeight);
    }
    body.AddLayout(captions, KZSizeNatural);
}

void SelectVarPageLayout::AddSide(const zep::SelectionTable& table, Side side)
{
    const zep::SelectionSideIds& ids = table.Ids(side);
    KZLayout& column = NewColumn();
    column.SetBoxControl(ids.groupBox, KZSizeStandard, true);

    KZLayout& heads = NewRow();
    for (int head = 0; head <= PhaseCount; ++head) {
        KZLayout& cell = NewRow();
        cell.AddGap(ColumnButtonGap);
        cell.AddControl(ids.column + head, ColumnButtonShare);
        cell.AddGap(ColumnButtonGap);
        heads.AddLayout(cell, CellShare);
    }
    column.AddLayout(heads, m_rowHeight);

    for (int row = 0; row < table.RowCount(); ++row) {
        KZLayout& cells = NewRow();
        const auto addCell = [&](int id, int width) {
            KZLayout& cell = NewRow();
            cell.AddGap(CentringShare);
            cell.AddControl(id, width);
            cell.AddGap(CentringShare);
            cells.AddLayout(cell, CellShare);
        };
        addCell(table.RowButtonId(row, side), m_buttonWidth);
        for (int phase = 0; phase < PhaseCount; ++phase)
            addCell(table.BoxId({row, phase, side}), m_boxWidth);
        column.AddGap(KZSizeTextLine);
        column.AddLayout(cells, m_rowHeight);
    }

    KZLayout& body = m_rows.front();
    body.AddGap(KZSizeStandard);
    body.AddLayout(column, SideShare);
}
