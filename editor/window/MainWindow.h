// The editor's main window: the devices of the project, what is chosen of the selected one, and its options.
#pragma once

#include <afxwin.h>

#include "AnchoredControls.h"
#include "ChildPane.h"
#include "ChosenListBox.h"
#include "DeviceListView.h"

class MainWindow : public CDialog {
public:
    // Both must outlive the window.
    MainWindow(Project& project, const ModuleLoader& modules) noexcept : m_project(project), m_modules(modules) {}

    // Shows the window until the user closes it. Returns false when it cannot be created.
    bool Run();

protected:
    BOOL OnInitDialog() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void OnOK() override {}
    void OnCancel() override {}  // Escape closes dialogs, not the program

private:
    // One row per command: the function, and whether it can be used now.
    struct CommandRow {
        int id;
        void (MainWindow::*run)();
        bool (MainWindow::*enabled)() const;
    };
    static const CommandRow commands[];

    void OpenOptions();
    void SelectVariables();
    void RemoveVariables();
    void Save();
    void Close();
    [[nodiscard]] bool HasCallbacks() const;
    [[nodiscard]] bool HasMarkedVariables() const;
    [[nodiscard]] bool IsDirty() const;
    [[nodiscard]] bool Always() const;

    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam);
    bool OnNotification(const NMHDR& header);
    bool SaveOrSayWhy();
    bool MayClose();

    void SetTexts();
    void ShowDevice();
    void ShowChosenVariables();
    void ShowState();
    [[nodiscard]] const Device* SelectedDevice() const;
    [[nodiscard]] const KZDriverCallbacks* SelectedCallbacks() const;

    Project& m_project;
    const ModuleLoader& m_modules;
    AnchoredControls m_layout;
    DeviceListView m_devices;
    ChosenListBox m_chosen;
    ChildPane m_pane;
    int m_shownRow = -1;
};
