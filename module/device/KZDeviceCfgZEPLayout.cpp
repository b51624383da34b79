// Where the device configuration dialog puts its controls.
#include <initializer_list>

#include "DeviceControls.h"
#include "KZDeviceCfgZEP.h"
#include "LayoutPlan.h"

namespace {

class DevicePage {
public:
    explicit DevicePage(LayoutPlan& plan) : m_plan(plan)
    {
        KZLayout& page = m_plan.Root();
        page.SetBorders(KZSizeStandard, KZSizeStandard);
        page.AddGap(KZSizeStandard);
        // The ratio stands above the modes: what the device decides comes before what the user decides.
        AddPageRow({&Identity()});
        AddPageRow({&StatusBox(), &AlgorithmBox()});
        AddPageRow({&RatioBox()});
        AddPageRow({&CheckBoxes(IDC_MODE_GROUP, IDC_MODE, 2, 2, 50)});
        AddPageRow({&CheckBoxes(IDC_FILTERS_GROUP, IDC_FILTER, 3, 4, 25)});
        AddPageRow({&CurrentBox(), &UnitsBox()});
        page.AddLayout(m_plan.NewOkCancelRow(), KZSizeStandard);
        page.AddGap(KZSizeStandard);
    }

private:
    // One box, or two side by side.
    void AddPageRow(std::initializer_list<KZLayout*> boxes)
    {
        KZLayout& row = m_plan.NewRow();
        const int share = 100 / static_cast<int>(boxes.size());
        for (KZLayout* box : boxes) {
            if (box != *boxes.begin())
                row.AddGap(KZSizeStandard);
            row.AddLayout(*box, share);
        }
        m_plan.Root().AddLayout(row, KZSizeNatural);
        m_plan.Root().AddGap(KZSizeStandard);
    }

    KZLayout& IdentityRow(int first, int second, int third)
    {
        KZLayout& row = m_plan.NewRow();
        row.AddControl(first, 33);
        row.AddGap(KZSizeTextLine);
        row.AddControl(second, 34);
        row.AddGap(KZSizeTextLine);
        row.AddControl(third, 33);
        return row;
    }

    KZLayout& Identity()
    {
        KZLayout& box = m_plan.NewBox(IDC_IDENTITY_GROUP);
        box.AddLayout(IdentityRow(IDC_NUMBER_LABEL, IDC_MODEL_LABEL, IDC_SERIAL_NUMBER_LABEL), KZSizeTextLine);
        box.AddGap(KZSizeEditLine);
        box.AddLayout(IdentityRow(IDC_NUMBER, IDC_MODEL, IDC_SERIAL_NUMBER), KZSizeTextLine);
        box.AddGap(KZSizeStandard);
        box.AddLayout(IdentityRow(IDC_IDENTIFIER_LABEL, IDC_VERSION_LABEL, IDC_GAMMA_LABEL), KZSizeTextLine);
        box.AddGap(KZSizeEditLine);
        box.AddLayout(IdentityRow(IDC_IDENTIFIER, IDC_VERSION, IDC_GAMMA), KZSizeTextLine);
        box.AddGap(KZSizeStandard);
        box.AddControl(IDC_DESCRIPTION_LABEL, KZSizeTextLine);
        box.AddGap(KZSizeEditLine);
        box.AddControl(IDC_DESCRIPTION, KZSizeTextLine);
        return box;
    }

    KZLayout& CheckBoxes(int group, int firstId, int rows, int columns, int share)
    {
        KZLayout& box = m_plan.NewBox(group);
        for (int r = 0; r < rows; ++r) {
            KZLayout& row = m_plan.NewRow();
            row.AddGap(KZSizeStandard);
            for (int c = 0; c < columns; ++c) {
                row.AddControl(firstId + r * columns + c, share);
                row.AddGap(KZSizeStandard);
            }
            row.AddGap(KZSizeStandard);
            if (r > 0)
                box.AddGap(KZSizeStandard);
            box.AddLayout(row, KZSizeCheckLine);
        }
        return box;
    }

    // A row of the given height half-way down its box.
    KZLayout& CentredBox(int group, KZLayout& row, int height)
    {
        KZLayout& box = m_plan.NewBox(group);
        box.AddGap(50);
        box.AddLayout(row, height);
        box.AddGap(50);
        return box;
    }

    KZLayout& FieldRow(int indent, int field, int share)
    {
        KZLayout& row = m_plan.NewRow();
        row.AddGap(indent);
        row.AddControl(field, share);
        return row;
    }

    // A field with its unit behind it.
    KZLayout& FieldRow(int indent, int field, int share, int unit, int unitShare)
    {
        KZLayout& row = FieldRow(indent, field, share);
        row.AddGap(KZSizeEditLine);
        row.AddControl(unit, unitShare);
        return row;
    }

    // A field alone, with the rest of the row left empty.
    KZLayout& SingleFieldRow(int field)
    {
        KZLayout& row = FieldRow(10, field, 50);
        row.AddGap(40);
        return row;
    }

    KZLayout& RatioBox()
    {
        return CentredBox(IDC_RATIO_GROUP, FieldRow(5, IDC_RATIO, 25, IDC_RATIO_SECONDARY, 70), KZSizeEditLine);
    }

    KZLayout& AlgorithmBox()
    {
        KZLayout& box = m_plan.NewBox(IDC_ALGORITHM_GROUP);
        box.AddLayout(SingleFieldRow(IDC_ALGORITHM), KZSizeCheckLine);
        return box;
    }

    KZLayout& UnitsBox() { return CentredBox(IDC_UNITS_GROUP, SingleFieldRow(IDC_UNITS), KZSizeEditLine); }

    KZLayout& CurrentBox()
    {
        return CentredBox(IDC_CURRENT_GROUP, FieldRow(10, IDC_CURRENT, 50, IDC_CURRENT_UNIT, 40), KZSizeEditLine);
    }

    KZLayout& StatusBox() { return CentredBox(IDC_STATUS_GROUP, SingleFieldRow(IDC_STATUS), KZSizeCheckLine); }

    LayoutPlan& m_plan;
};

}  // namespace

void KZDeviceCfgZEP::LayoutControls()
{
    LayoutPlan plan(*this);
    const DevicePage page(plan);
    plan.FitAndApply();
}
