// How the options hub places its buttons: in as few rows as its width allows.
#include <deque>

#include "KZDlgOptions.h"
#include "KZDlgOptionsIds.h"
#include "KZLayout.h"

namespace {

// The rows of section buttons, all columns of one width.
class SectionGrid {
public:
    explicit SectionGrid(int columns)
    {
        for (int section = 0; section < KZSectionCount; ++section) {
            if (section % columns == 0)
                m_rows.emplace_back();
            else
                m_rows.back().AddGap(KZSizeStandard);
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
            page.AddLayout(row, KZSizeNatural);
            page.AddGap(KZSizeStandard);
        }
    }

private:
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
    KZVerticalLayout page(this);
    SectionGrid grid(columns);
    KZHoritzontalLayout buttons;
    page.SetBorders(KZSizeStandard, KZSizeStandard);
    page.AddGap(KZSizeStandard);
    if (m_bChild) {
        // A child has no caption that names the device.
        page.AddControl(KZ_IDC_OPTIONS_DEVICE_NAME, KZSizeTextLine);
        page.AddGap(KZSizeEditLine);
        page.AddControl(KZ_IDC_OPTIONS_MODEL_NAME, KZSizeTextLine);
        page.AddGap(KZSizeStandard);
        page.AddGap(KZSizeStandard);
    }
    grid.AddTo(page);
    if (!m_bChild) {
        buttons.AddGap(KZSizeCentringGap);
        buttons.AddControl(IDOK, 1);
        buttons.AddGap(KZSizeStandard);
        buttons.AddControl(IDCANCEL, 1);
        buttons.AddGap(KZSizeCentringGap);
        page.AddGap(KZSizeStandard);
        page.AddLayout(buttons, KZSizeStandard);
        page.AddGap(KZSizeStandard);
    }
    const CSize needed = page.FixedSize();
    if (needed.cx > ClientArea(*this).Width() && !evenIfTooNarrow)
        return false;
    if (!m_bChild)
        FitHeight(*this, needed.cy);
    page.Layout(ClientArea(*this));
    return true;
}
