// The page of the variables that are chosen of one device, with the button that takes the marked ones out.
#pragma once

#include "ChosenListBox.h"

// To the parent: other variables are marked than before.
inline constexpr UINT WM_KZ_VARIABLES_MARKED = WM_APP + 0x151;

class VariablesPage : public CDialog {
public:
    bool CreateIn(CWnd& parent);

    // Texts in the user's language.
    void SetTexts();
    void Show(const plant::VariableList& variables);

    [[nodiscard]] int Count() const { return static_cast<int>(m_lstChosen.SendMessage(LB_GETCOUNT)); }
    [[nodiscard]] bool HasMarked() const { return m_lstChosen.HasMarked(); }
    // The shown variables without those that the user has marked.
    [[nodiscard]] plant::VariableList Unmarked(const plant::VariableList& shown) const
    {
        return m_lstChosen.Unmarked(shown);
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    void OnOK() override {}
    void OnCancel() override {}

    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnRemove();
    afx_msg void OnMark();
    afx_msg void OnSize(UINT type, int cx, int cy);

    DECLARE_MESSAGE_MAP()

private:
    void Arrange();

    ChosenListBox m_lstChosen;
};
