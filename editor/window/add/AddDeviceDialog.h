// Asks what a new device is called and how it is measured.
#pragma once

#include <functional>

#include "changes/DeviceEdit.h"
#include "window/dialog/EditorDialog.h"

class AddDeviceDialog : public EditorDialog {
public:
    using Judge = std::function<plant::EntryRefusals(const plant::NewDevice& device)>;

    // The proposed device is shown first; its type is one of the device types. The judge is asked by OK: what it
    // refuses is told to the user, and the dialog stays.
    AddDeviceDialog(CWnd* parent, plant::NewDevice proposed, Judge judge);

    // After OK: what the judge has accepted.
    [[nodiscard]] const plant::NewDevice& Device() const noexcept { return m_device; }

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void PlanPage(KZLayout& page) override;
    void OnOK() override;

private:
    plant::NewDevice m_device;
    Judge m_judge;
    CComboBox m_cmbModel;
};
