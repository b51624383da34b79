// How the options hub places its buttons: in as few rows as its width allows.
#include <deque>

#include "KZDlgOptions.h"
#include "KZDlgOptionsIds.h"
#include "KZLayout.h"

namespace {

// The distances that the platform's guidelines want, as size codes: between what belongs together, and between what
// does not, which is also the margin around all.
class Spacing {
public:
    explicit Spacing(const CDialog& dialog)
    {
        constexpr int Related = 4;  // dialog units
        constexpr int Unrelated = 7;
        CRect units(Related, Related, Unrelated, Unrelated);
        dialog.MapDialogRect(&units);
        related = {KZLayout::Pixels2Size(units.left).cx, KZLayout::Pixels2Size(units.top).cy};
        unrelated = {KZLayout::Pixels2Size(units.right).cx, KZLayout::Pixels2Size(units.bottom).cy};
    }

    CSize related;
    CSize unrelated;
};

// The rows of section buttons, all columns of one width.
class SectionGrid {
public:
    SectionGrid(int columns, const Spacing& spacing) : m_spacing(spacing)
    {
        for (int section = 0; section < KZSectionCount; ++section) {
            if (section % columns == 0)
                m_rows.emplace_back();
            else
                m_rows.back().AddGap(m_spacing.related.cx);
            m_rows.back().AddControl(KZSectionButtonBase + section, 1);
        }
        // A last row that is not full leaves the places of the buttons that it lacks.
        for (int missing = KZSectionCount; missing % columns != 0; ++missing) {
            m_rows.back().AddGap(KZSizeStandard);
            m_rows.back().AddGap(1);
        }
    }

    void AddTo(KZLayout& page)
    {
        for (KZHoritzontalLayout& row : m_rows) {
            if (&row != &m_rows.front())
                page.AddGap(m_spacing.related.cy);
            page.AddLayout(row, KZSizeNatural);
        }
    }

private:
    const Spacing& m_spacing;
    std::deque<KZHoritzontalLayout> m_rows;
};

CRect ClientArea(const CWnd& dialog) noexcept
{
    CRect client;
    ::GetClientRect(dialog.m_hWnd, &client);
    return client;
}

void FitHeight(CWnd& dialog, int clientHeight)
{
    CRect window;
    dialog.GetWindowRect(&window);
    dialog.SetWindowPos(nullptr, 0, 0, window.Width(), window.Height() + clientHeight - ClientArea(dialog).Height(),
                        SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

void KZDlgOptions::Layout()
{
    constexpr int FewestColumns = 1;
    for (const int columns : {8, 4, 3, 2}) {
        // A dialog of its own is no wider than four buttons.
        if ((m_bChild || columns <= KZSectionCount / 2) && LayOut(columns, false))
            return;
    }
    LayOut(FewestColumns, true);
}

bool KZDlgOptions::LayOut(int columns, bool evenIfTooNarrow)
{
    const Spacing spacing(*this);
    KZVerticalLayout page(this);
    SectionGrid grid(columns, spacing);
    KZHoritzontalLayout buttons;
    page.SetBorders(spacing.unrelated.cx, spacing.unrelated.cy);
    if (m_bChild) {
        // A child has no caption that names the device.
        page.AddControl(KZ_IDC_OPTIONS_DEVICE_NAME, KZSizeTextLine);
        page.AddGap(spacing.related.cy);
        page.AddControl(KZ_IDC_OPTIONS_MODEL_NAME, KZSizeTextLine);
        page.AddGap(spacing.unrelated.cy);
    }
    grid.AddTo(page);
    if (!m_bChild) {
        buttons.AddGap(KZSizeCentringGap);
        buttons.AddControl(IDOK, 1);
        buttons.AddGap(spacing.related.cx);
        buttons.AddControl(IDCANCEL, 1);
        buttons.AddGap(KZSizeCentringGap);
        page.AddGap(spacing.unrelated.cy);
        page.AddLayout(buttons, KZSizeStandard);
    }
    const CSize needed = page.FixedSize();
    if (needed.cx > ClientArea(*this).Width() && !evenIfTooNarrow)
        return false;
    if (!m_bChild)
        FitHeight(*this, needed.cy);
    page.Layout(ClientArea(*this));
    return true;
}
