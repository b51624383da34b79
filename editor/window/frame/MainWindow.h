// The editor's main window: the devices of the project and, of the selected one, what is chosen, what is set, and its
// options.
#pragma once

#include <afxwin.h>

#include <functional>
#include <vector>

#include "ProjectQuestions.h"
#include "modules/DeviceDrivers.h"
#include "window/AnchoredControls.h"
#include "window/ChildPane.h"
#include "window/ChosenListBox.h"
#include "window/DeviceListView.h"
#include "window/SummaryView.h"

// To the main window, from itself: look for what other editors and programs have left or changed.
inline constexpr UINT WM_KZ_LOOK_AT_FILES = WM_APP + 0x131;

class MainWindow : public CDialog {
public:
    // Both must outlive the window.
    MainWindow(plant::Project& project, const ModuleLoader& modules);
    ~MainWindow() override;

    // Creates and shows the window. Returns false when it cannot be created.
    bool Create();

    // Runs the command of a key that was pressed in this window or in what it embeds. Returns false for any other
    // message, and for all while a dialog is open.
    bool TranslateKey(const MSG& message);

    // For the commands. MarkedDevices gives driverIds, in the order of the list.
    [[nodiscard]] plant::Project& Project() noexcept { return m_project; }
    [[nodiscard]] const ModuleLoader& Modules() const noexcept { return m_modules; }
    [[nodiscard]] std::vector<KZBasicString> MarkedDevices() const;
    // Carries out a change of these devices, after which everything is shown anew. What the plant refuses is told to
    // the user, and false is returned.
    bool Change(const std::function<void()>& change);

    void OpenOptions();
    void SelectVariables();
    void RemoveVariables();
    void Save();
    void Close();
    [[nodiscard]] bool HasCallbacks() const;
    [[nodiscard]] bool HasMarkedVariables() const;
    [[nodiscard]] bool IsDirty() const;

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void OnOK() override {}
    void OnCancel() override {}  // Escape closes dialogs, not the program

    afx_msg void OnClose();
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* information);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnMenuCommand(UINT id);
    afx_msg void OnMarkVariable();
    afx_msg void OnDeviceText(NMHDR* header, LRESULT* result);
    afx_msg void OnFindDevice(NMHDR* header, LRESULT* result);
    afx_msg void OnSelectDevice(NMHDR* header, LRESULT* result);
    afx_msg void OnDeviceKey(NMHDR* header, LRESULT* result);
    afx_msg void OnDoubleClickDevice(NMHDR* header, LRESULT* result);
    afx_msg LRESULT OnOptionsChanged(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSelectionSettled(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnActivateProgram(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnLookAtFiles(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnUnprotected(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnWaiting(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnQueryEndOfSession(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnEndOfSession(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    // MainWindowFiles.cpp
    bool SaveOrSayWhy();
    bool MayClose();
    void OfferRecoveries();
    void TakeOver(plant::FoundRecovery& found);
    void LookForForeignChanges();
    void ShowProject();

    void ShowCommands();

    void AddMenu();
    void SetTexts();
    void ShowDevice();
    void ShowModules();
    void ShowChosenVariables();
    void ShowSummary();
    void ShowState();
    void ShowTitle();
    [[nodiscard]] const KZDeviceIdentity* SelectedDevice() const;
    [[nodiscard]] KZDriver* SelectedDriver();
    [[nodiscard]] const KZDriverCallbacks* SelectedCallbacks() const;

    plant::Project& m_project;
    const ModuleLoader& m_modules;
    DeviceDrivers m_drivers;
    ProjectQuestions m_questions;
    AnchoredControls m_layout;
    DeviceListView m_lstDevices;
    ChosenListBox m_lstChosen;
    SummaryView m_lstSummary;
    ChildPane m_pane;
    int m_nShownRow = -1;                    // of the device that everything below the list is about
    KZBasicString m_shownDevice;             // its driverId
    bool m_bDamageTold = false;              // of what other editors have left
    bool m_bRecoveriesOffered = false;       // all of them
    plant::ForeignChanges m_refusedChanges;  // the user keeps his own
    bool m_bUnwanted = false;                // what is not saved: the user has said so
};
