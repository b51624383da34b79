// The saves of the project and what each of them changed, and which one to go back to.
#pragma once

#include <functional>

#include "window/dialog/EditorDialog.h"

struct SaveRow {
    int number;
    std::wstring time;
    std::wstring cause;
    std::vector<std::wstring> documents;  // that the save changed, made or took out, in the words of the user
};

class HistoryDialog : public EditorDialog {
public:
    using Confirm = std::function<bool(int number)>;

    // The rows stand as they are given. OK asks whether to go back to before the marked save; without a yes the dialog
    // stays.
    HistoryDialog(CWnd* parent, std::vector<SaveRow> saves, Confirm confirm);

    // After OK: the number of the save.
    [[nodiscard]] int Number() const noexcept { return m_nNumber; }

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void PlanPage(KZLayout& page) override;
    void OnOK() override;

    afx_msg void OnMark(NMHDR* header, LRESULT* result);

    DECLARE_MESSAGE_MAP()

private:
    [[nodiscard]] const SaveRow* MarkedSave() const;
    void ShowMarked();

    std::vector<SaveRow> m_saves;
    Confirm m_confirm;
    int m_nNumber = 0;
    RowList m_lstSaves;
};
