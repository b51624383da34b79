// The driver modules with their states, and what can be done about those that are not ready.
#pragma once

#include "modules/ModuleSummary.h"
#include "window/dialog/EditorDialog.h"

class ModulesDialog : public EditorDialog {
public:
    ModulesDialog(CWnd* parent, std::vector<ModuleRow> rows);

    // All rows as text, such as for a letter to somebody who can help: a line for each module, tabs between file,
    // model, version, state, reason and remedy.
    [[nodiscard]] static std::wstring Report(const std::vector<ModuleRow>& rows);

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void PlanPage(KZLayout& page) override;

    afx_msg void OnMark(NMHDR* header, LRESULT* result);
    afx_msg void OnCopy();

    DECLARE_MESSAGE_MAP()

private:
    std::vector<ModuleRow> m_rows;
    RowList m_lstModules;
};
