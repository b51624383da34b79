// Asks what a device is to be called.
#pragma once

#include <functional>

#include "changes/DeviceEdit.h"
#include "window/dialog/EditorDialog.h"

class RenameDeviceDialog : public EditorDialog {
public:
    using Judge = std::function<plant::EntryRefusals(const plant::DeviceNaming& naming)>;

    // The judge is asked by OK: what it refuses is told to the user, and the dialog stays.
    RenameDeviceDialog(CWnd* parent, plant::DeviceNaming naming, Judge judge);

    // After OK: what the judge has accepted.
    [[nodiscard]] const plant::DeviceNaming& Naming() const noexcept { return m_naming; }

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void PlanPage(KZLayout& page) override;
    void OnOK() override;

private:
    plant::DeviceNaming m_naming;
    Judge m_judge;
};
