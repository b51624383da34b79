// Shows the devices that are to be taken out, and asks whether to.
#pragma once

#include "window/dialog/EditorDialog.h"

struct RemovedDevice {
    std::wstring number;
    std::wstring name;
    std::wstring description;
    int variables;  // how many are chosen
};

class RemoveDevicesDialog : public EditorDialog {
public:
    RemoveDevicesDialog(CWnd* parent, std::vector<RemovedDevice> devices);

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void PlanPage(KZLayout& page) override;

private:
    std::vector<RemovedDevice> m_devices;
    RowList m_lstDevices;
};
