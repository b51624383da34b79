// A tab page of the select-variables dialog: a grid of check boxes (rows are quantities or harmonic orders, columns the
// phases of the net and of the load side) with buttons that select a row, a row of one side, a phase or a whole side.
//
// A page is one table (SelectionTables.h). The check boxes themselves are the state: checked and enabled is newly
// selected, checked and disabled was chosen before the dialog opened and can be neither cleared nor counted.
#pragma once

#include <array>
#include <list>
#include <vector>

#include "CImageButton.h"
#include "KZDriverDeviceZEP.h"
#include "SelectionTables.h"
#include "TabPage.h"

class SelectVarPage : public TabPage {
public:
    [[nodiscard]] zep::Family Family() const noexcept { return m_table.family; }

    // Checks and disables the boxes of variables that were chosen before. Positions without a box are skipped.
    void CheckInitialVariables(const zep::PositionSet& chosen);

    // The number of newly selected variables.
    [[nodiscard]] std::size_t CountSelected();

    // Appends the full names of the newly selected variables: by row, net before load, L1 to L3.
    void CollectSelected(std::list<KZBasicString>& fullNames);

    // Boxes get their names as texts, for which they have no room to show; buttons of pictures and columns get them for
    // screen readers alone.
    void NameControls(AccessibleNames& names, const KZBasicString& title) override;
    // Left and Right walk the row, Up and Down the column, both in a ring.
    bool Walk(HWND control, WPARAM key) override;

protected:
    SelectVarPage(KZDriverDeviceZEP* device, zep::Family family);

    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    void PlanLayout(LayoutPlan& plan) override;

    afx_msg void OnSelectionCommand(UINT id);

    DECLARE_MESSAGE_MAP()

private:
    struct Row {
        std::array<std::array<CButton, zep::PhaseCount>, 2> boxes;
        std::array<CImageButton, 2> buttons;
    };

    [[nodiscard]] CButton& Box(const zep::VariablePosition& position);
    template <class Visitor>
    void ForEachBox(Visitor visit);

    void LoadTexts();
    void NameColumns(AccessibleNames& names, const KZBasicString& title, zep::Side side) const;
    void NameRow(AccessibleNames& names, int row, zep::Side side);
    void OnBox(CButton& box);
    // Returns false when the container refused.
    bool Toggle(const zep::SelectionCommand& command);
    LRESULT SendToContainer(UINT message, std::size_t count) const;
    void RefreshRowImages(const zep::SelectionCommand& command);

    KZDriverDeviceZEP* m_pDevice;
    const zep::SelectionTable& m_table;
    std::vector<Row> m_rows;
};
