// Asks how many devices are to be made like another one and what they are called, and shows them beforehand.
#pragma once

#include <functional>
#include <map>

#include "changes/DeviceEdit.h"
#include "window/dialog/EditorDialog.h"

// What is typed; the number and the count are digits.
struct DuplicateEntries {
    std::wstring count = L"1";
    std::wstring pattern{};
    std::wstring firstNumber{};
    std::wstring description{};
};

class DuplicateDeviceDialog : public EditorDialog {
public:
    using Name = std::function<std::vector<plant::DeviceNaming>(const DuplicateEntries& entries, std::size_t count)>;
    using Judge = std::function<plant::EntryRefusals(std::span<const plant::DeviceNaming> names)>;

    // Both are asked after every key. OK is grey while something is refused.
    DuplicateDeviceDialog(CWnd* parent, DuplicateEntries proposed, Name name, Judge judge);

    // After OK: what the judge has accepted.
    [[nodiscard]] const std::vector<plant::DeviceNaming>& Names() const noexcept { return m_names; }

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void PlanPage(KZLayout& page) override;

    afx_msg void OnType();

    DECLARE_MESSAGE_MAP()

private:
    [[nodiscard]] std::wstring Cell(int row, int column) const;
    void ShowDevices();

    DuplicateEntries m_entries;
    Name m_name;
    Judge m_judge;
    std::vector<plant::DeviceNaming> m_names;
    std::map<std::size_t, std::wstring> m_findings;  // by row
    RowList m_lstDevices;
};
