// Asks for the folder of a project: one to open, one to make, or one for a copy.
#pragma once

#include <functional>

#include "project/Disk.h"
#include "window/dialog/EditorDialog.h"

enum class FolderPurpose { Open, New, Copy };

class ProjectFolderDialog : public EditorDialog {
public:
    // Throws plant::Refusal for a folder that will not do.
    using Judge = std::function<void(const plant::Path& folder)>;

    // The recent projects' folders are offered for opening alone. The judge is asked by OK: what it refuses is told to
    // the user, and the dialog stays.
    ProjectFolderDialog(CWnd* parent, FolderPurpose purpose, std::vector<std::wstring> recent, Judge judge);

    // After OK: what the judge has accepted.
    [[nodiscard]] const plant::Path& Folder() const noexcept { return m_folder; }

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void PlanPage(KZLayout& page) override;
    void OnOK() override;

    afx_msg void OnBrowse();
    afx_msg void OnEnterRecent(NMHDR* header, LRESULT* result);
    afx_msg void OnMarkRecent(NMHDR* header, LRESULT* result);
    afx_msg void OnOpenRecent(NMHDR* header, LRESULT* result);

    DECLARE_MESSAGE_MAP()

private:
    FolderPurpose m_purpose;
    std::vector<std::wstring> m_recent;
    Judge m_judge;
    std::wstring m_path;
    plant::Path m_folder;
    RowList m_lstRecent;
};
