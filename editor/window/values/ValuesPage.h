// The page of what the marked devices are set to: setting, value, unit, under the names of the sections. What differs
// between devices is said to be different.
#pragma once

#include "AccessibleNames.h"
#include "DeviceSummary.h"
#include "window/dialog/RowList.h"

class ValuesPage : public CDialog {
public:
    bool CreateIn(CWnd& parent);

    // Texts in the user's language; what is shown has to be shown anew.
    void SetTexts();
    void NameControls(AccessibleNames& names);
    // Shows the rows, or none.
    void Show(SummaryRows rows);
    // Marks the setting of this name and brings it into view, or none when there is none.
    void Mark(const std::wstring& setting);
    void TakeFocus() { m_lstValues.SetFocus(); }

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    void OnOK() override {}
    void OnCancel() override {}

    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnGiveText(NMHDR* header, LRESULT* result);

    DECLARE_MESSAGE_MAP()

private:
    RowList m_lstValues;
    SummaryRows m_rows;  // as shown, with a row for the name of each section
};
