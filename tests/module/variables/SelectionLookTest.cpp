// Nothing clipped, nothing over anything else, in both languages and at the resolution that the test is run at.
#include <afxwin.h>

#include <gtest/gtest.h>

#include "DialogLayout.h"
#include "PlaceOf.h"
#include "SelectionFixture.h"

namespace {

using zep::Family;

class SelectionLook : public SelectionTest {};

TEST_F(SelectionLook, IsTidyOnEveryPageInBothLanguages)
{
    ForEachLanguage([this] {
        TestSelection dialog(m_device, m_names);
        dialog.Run({[&] {
            for (int tab = 0; tab < 3; ++tab) {
                dialog.ShowTab(tab);
                kztest::ExpectNothingClippedOrOverlapping(dialog.m_hWnd);
            }
        }});
    });
}

TEST_F(SelectionLook, PutsEachBoxUnderItsColumnButtonAndBesideItsRowCaption)
{
    TestSelection dialog(m_device, m_names);
    dialog.Run({[&] {
        const auto centre = [&](Family family, int id) {
            const CRect place = PlaceOf(dialog.Control(family, id));
            return CPoint((place.left + place.right) / 2, (place.top + place.bottom) / 2);
        };
        int tab = 0;
        for (const Family family : {Family::General, Family::Power, Family::Harmonic}) {
            dialog.ShowTab(tab++);
            const auto& table = TableOf(family);
            for (int row = 0; row < table.RowCount(); ++row) {
                for (const zep::Side side : zep::Sides) {
                    for (int phase = 0; phase < zep::PhaseCount; ++phase) {
                        if (!table.HasBox({row, phase, side}))
                            continue;
                        const CPoint box = centre(family, table.BoxId({row, phase, side}));
                        EXPECT_NEAR(box.x, centre(family, table.Ids(side).column + 1 + phase).x, 1);
                        EXPECT_NEAR(box.y, centre(family, table.caption + row).y, 1);
                    }
                }
            }
        }
    }});
}

}  // namespace
