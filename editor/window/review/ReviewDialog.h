// What is unsaved, line by line, and which of it to take back.
#pragma once

#include <functional>

#include "window/dialog/EditorDialog.h"

struct ChangeRow {
    std::wstring device;
    std::wstring what;  // the setting, or what has been done with the device
    std::wstring before;
    std::wstring after;
    bool canBeTakenBack = true;
    bool isChecked = false;
};

class ReviewDialog : public EditorDialog {
public:
    // The changes are of so many devices.
    ReviewDialog(CWnd* parent, std::vector<ChangeRow> changes, int devices);

    // After OK: the places of the lines to take back, at least one.
    [[nodiscard]] std::vector<std::size_t> Checked() const;

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void PlanPage(KZLayout& page) override;

    afx_msg void OnCheckAll();
    afx_msg void OnCheckNone();

    DECLARE_MESSAGE_MAP()

private:
    [[nodiscard]] ChangeRow& Row(int row) { return m_changes[static_cast<std::size_t>(row)]; }
    void CheckAll(bool isChecked);
    void ShowOk();

    std::vector<ChangeRow> m_changes;
    int m_nDevices;
    RowList m_lstChanges;
};
