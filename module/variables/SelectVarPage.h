// A tab page of the select-variables dialog: a grid of check boxes (rows are quantities or harmonic orders, columns the
// phases of the net and of the load side) with buttons that select a row, a row of one side, a phase or a whole side.
//
// A page is one table (SelectionTables.h). The check boxes themselves are the state: checked and enabled is newly
// selected, checked and disabled was chosen before the dialog opened and can be neither cleared nor counted.
#pragma once

#include <afxwin.h>

#include <array>
#include <list>
#include <vector>

#include "CImageButton.h"
#include "KZDriverDeviceZEP.h"
#include "SelectionTables.h"

class SelectVarPage : public CDialog {
public:
    // Creates the page's window as a hidden child of the container. Returns false when it cannot be created.
    bool Create(CWnd* container);

    [[nodiscard]] zep::Family Family() const noexcept { return m_table.family; }

    // Checks and disables the boxes of variables that were chosen before. Positions without a box are skipped.
    void CheckInitialVariables(const zep::PositionSet& chosen);

    // The number of newly selected variables.
    [[nodiscard]] std::size_t CountSelected() const;

    // Appends the full names of the newly selected variables: by row, net before load, L1 to L3.
    void CollectSelected(std::list<KZBasicString>& fullNames) const;

    // The height in pixels that the page's rows need.
    [[nodiscard]] int RequiredHeight();

    // Moves the page to a rectangle of its container and lays its controls out in it; those of a hidden page follow
    // when it is shown, so that opening the dialog does not wait for pages that nobody has asked for.
    virtual void MoveTo(const CRect& area);

    // Shows the page, laid out.
    void Show();

protected:
    SelectVarPage(KZDriverDeviceZEP* device, zep::Family family);

    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;

    afx_msg void OnSelectionCommand(UINT id);

    // Lays the controls out in the client area, at once when the page is shown.
    void LayoutControls();

    DECLARE_MESSAGE_MAP()

private:
    struct Row {
        std::array<std::array<CButton, zep::PhaseCount>, 2> boxes;
        std::array<CImageButton, 2> buttons;
    };
    // The boxes that one button acts on: at most every box of a side.
    class Group;

    [[nodiscard]] CButton& Box(const zep::VariablePosition& position);
    [[nodiscard]] const CButton& Box(const zep::VariablePosition& position) const;
    template <class Visitor>
    void ForEachBox(Visitor visit) const;

    void LoadTexts();
    void OnBox(const zep::VariablePosition& position);
    void OnRow(int row);
    void OnRowSide(int row, zep::Side side);
    void OnColumn(zep::Side side, std::optional<int> phase);

    // Returns false when the container refused.
    bool Toggle(const Group& group);
    LRESULT SendToContainer(UINT message, std::size_t count) const;
    void RefreshRowImages(int firstRow, int rowCount, zep::Side side);
    void LayoutNow();

    KZDriverDeviceZEP* m_pDevice;
    const zep::SelectionTable& m_table;
    std::vector<Row> m_rows;
    int m_nRequiredHeight = 0;  // 0 until asked for: it depends on the font alone
    bool m_bLayoutPending = false;
};
