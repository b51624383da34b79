// The editor's main window: the devices of the project and, of the marked ones, what is set, what is chosen, and their
// options.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "DialogAccess.h"
#include "FrameLayout.h"
#include "OpenProject.h"
#include "ProjectQuestions.h"
#include "Splitter.h"
#include "settings/EditorSettings.h"
#include "window/findings/FindingsList.h"
#include "window/list/DeviceListView.h"
#include "window/options/ChildPane.h"
#include "window/start/StartPane.h"
#include "window/values/ValuesPage.h"
#include "window/variables/VariablesPage.h"

// To the main window, from itself: look for what other editors and programs have left or changed.
inline constexpr UINT WM_KZ_LOOK_AT_FILES = WM_APP + 0x131;

// To the main window, from itself: show what has changed in the project.
inline constexpr UINT WM_KZ_CHANGES = WM_APP + 0x133;

enum class PageName { Values, Variables, Options };

class MainWindow : public CDialog, private plant::ProjectListener {
public:
    // Without a project the window offers to open one. Modules and settings must outlive the window.
    MainWindow(const ModuleLoader& modules, SettingsFile& settings, std::unique_ptr<OpenProject> project);
    ~MainWindow() override;

    // Creates and shows the window. Returns false when it cannot be created.
    bool Create();

    // Runs the command of a key that was pressed in this window or in what it embeds. Returns false for any other
    // message, and for all while a dialog is open.
    bool TranslateKey(const MSG& message);

    // For the commands. Only HasProject may be asked while there is none. MarkedDevices gives driverIds, MarkedPlaces
    // their places in the project's list, both in the order of the list.
    [[nodiscard]] bool HasProject() const noexcept { return m_open != nullptr; }
    [[nodiscard]] plant::Project& Project() const noexcept { return m_open->project; }
    [[nodiscard]] const ModuleLoader& Modules() const noexcept { return m_modules; }
    [[nodiscard]] const std::vector<KZBasicString>& MarkedDevices() const noexcept { return m_marked; }
    [[nodiscard]] const std::vector<std::size_t>& MarkedPlaces() const noexcept { return m_places; }
    // Carries out a change of these devices that can be undone, and shows it. What the plant refuses is told to the
    // user, and false is returned.
    bool Change(plant::Message name, const std::vector<KZBasicString>& driverIds, const std::function<void()>& change);
    // The same of what cannot be undone.
    bool CarryOut(const std::function<void()>& work);
    // Opens another project in place of this one, after asking what is to become of unsaved changes. One that cannot be
    // opened is told to the user, this one stays, and false is returned.
    bool Open(const std::filesystem::path& folder);
    [[nodiscard]] const std::vector<std::wstring>& RecentProjects() const noexcept
    {
        return m_settings.settings.recent;
    }

    void NewProject();
    void OpenAnother();
    void OpenRecent(std::size_t index);
    void OpenMarkedRecent();
    void ForgetMarkedRecent();
    void Undo();
    void Redo();
    void Speak(KZLanguage language);
    void OpenOptions();
    void SelectVariables();
    void RemoveVariables();
    void Save();
    void Close();
    void MarkAll();
    void GoToFind();
    void ClearFind();
    void GoToList();
    void GoToNextPane() { GoToPane(1); }
    void GoToPreviousPane() { GoToPane(-1); }
    void GoToNextDevice();
    void GoToPreviousDevice();
    void GoToNextPage() { ShowNextPage(1); }
    void GoToPreviousPage() { ShowNextPage(-1); }
    void ShowPage(PageName page);
    void Check();
    void GoToNextFinding();
    void GoToPreviousFinding();
    void GoToFindings();
    void HideFindings();
    void CancelCheck();
    void ShowMarkedFinding();
    void OpenFindingOptions();
    [[nodiscard]] PageName ShownPage() const noexcept { return m_page; }
    [[nodiscard]] bool CanUndo() const { return m_open && m_open->undo.CanUndo(); }
    [[nodiscard]] bool CanRedo() const { return m_open && m_open->undo.CanRedo(); }
    [[nodiscard]] std::wstring UndoCaption() const;
    [[nodiscard]] std::wstring RedoCaption() const;
    [[nodiscard]] std::wstring RecentCaption(std::size_t index) const;
    [[nodiscard]] bool HasCallbacks() const;
    [[nodiscard]] bool HasMarkedVariables() const;
    [[nodiscard]] bool HasDevices() const;
    [[nodiscard]] bool IsDirty() const;
    [[nodiscard]] bool IsFiltered() const;
    [[nodiscard]] bool HasFindings() const { return m_open && !m_lstFindings.Findings().empty(); }
    [[nodiscard]] bool IsChecking() const noexcept { return m_open && m_open->check.Percent().has_value(); }
    [[nodiscard]] bool ShowsFindings() const noexcept { return m_layout.ShowsFindings(); }

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void OnOK() override {}
    void OnCancel() override;

    afx_msg void OnClose();
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* information);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnMenuCommand(UINT id);
    afx_msg void OnFindText();
    afx_msg void OnDeviceText(NMHDR* header, LRESULT* result);
    afx_msg void OnFindDevice(NMHDR* header, LRESULT* result);
    afx_msg void OnMarkDevice(NMHDR* header, LRESULT* result);
    afx_msg void OnDeviceKey(NMHDR* header, LRESULT* result);
    afx_msg void OnDoubleClickDevice(NMHDR* header, LRESULT* result);
    afx_msg void OnSortDevices(NMHDR* header, LRESULT* result);
    afx_msg void OnFindingText(NMHDR* header, LRESULT* result);
    afx_msg void OnDoubleClickFinding(NMHDR* header, LRESULT* result);
    afx_msg void OnSelectPage(NMHDR* header, LRESULT* result);
    afx_msg LRESULT OnMarkVariable(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnContextMenu(WPARAM wParam, LPARAM lParam);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg LRESULT OnEnable(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnTimer(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnChanges(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSplitter(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnOptionsChanged(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnMarksSettled(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnActivateProgram(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnLookAtFiles(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnUnprotected(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnWaiting(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnQueryEndOfSession(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnEndOfSession(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    static constexpr UINT_PTR CheckTimer = 2;

    // MainWindowFiles.cpp
    bool SaveOrSayWhy();
    bool MayClose();
    void OfferRecoveries();
    void TakeOver(plant::FoundRecovery& found);
    void LookForForeignChanges();
    void ShowProject();

    // MainWindowProjects.cpp
    void Attach();
    void Detach() noexcept;
    void ShowPanes();
    void RestorePlace();
    void StorePlace();
    void OnProjectChanged(const plant::ProjectChange& change) noexcept override;
    void ShowChanges();
    void GoBack(bool isUndo);
    void RunEmbedded(const std::function<void()>& command) noexcept;

    // MainWindowPages.cpp
    void ShowMarked();
    void ShowCaption();
    void ShowPageContent();
    void ShowValues();
    void ContinueValues();
    void ShowVariables();
    void ShowOptions();
    void ShowNextPage(int step);
    void ShowTabs();
    void GoToPane(int step);
    [[nodiscard]] CWnd& PageWindow();

    // MainWindowFindings.cpp
    void ContinueCheckLater() noexcept;
    void ContinueCheck();
    void ShowFindings();
    void ShowFindingsPane(bool isShown);
    void ShowFindingsState();
    void ShowCancel(bool isWorking);
    [[nodiscard]] std::wstring CheckText() const;
    void Show(const plant::Finding& finding);
    bool MarkDeviceOf(const plant::Finding& finding);
    void MarkDevice(std::size_t device);

    void ShowCommands();
    void EnableButton(int id, bool enabled);
    void SetTexts();
    void NameControls(AccessibleNames& names);
    void ShowMenu();
    void ShowState();
    void ShowTitle();
    void ShowStatus();
    void Arrange();

    // The one device that is marked; null when none is, or several.
    [[nodiscard]] const KZDeviceIdentity* OnlyDevice() const;
    [[nodiscard]] const KZDriverCallbacks* OnlyCallbacks() const;
    [[nodiscard]] KZDriver* OnlyDriver();

    const ModuleLoader& m_modules;
    SettingsFile& m_settings;
    std::unique_ptr<OpenProject> m_open;
    ProjectQuestions m_questions;
    FrameLayout m_layout;
    Splitter m_barList{Splitter::Moves::Sideways};
    Splitter m_barFindings{Splitter::Moves::UpAndDown};
    CEdit m_edtFind;
    std::unique_ptr<DeviceRows> m_rows;
    DeviceListView m_lstDevices;
    CTabCtrl m_tab;
    ValuesPage m_pageValues;
    std::optional<CommonValues> m_values;  // as long as they are read
    VariablesPage m_pageVariables;
    ChildPane m_pageOptions;
    FindingsList m_lstFindings;
    StartPane m_paneStart;
    PageName m_page = PageName::Values;
    std::vector<std::size_t> m_places;       // of the marked devices in the project's list
    std::vector<KZBasicString> m_marked;     // their driverIds
    bool m_bChangesShown = true;             // of the project since the last time
    bool m_bAllChanged = false;              // of what is to be shown
    std::vector<KZBasicString> m_changed;    // the devices of which it is
    ULONGLONG m_nFindingsShown = 0;          // when, in milliseconds
    ULONGLONG m_nCheckBegun = 0;             // the same; 0 while nothing is checked
    bool m_bMarksSettling = false;           // a message is under way that shows what is marked
    bool m_bDamageTold = false;              // of what other editors have left
    bool m_bRecoveriesOffered = false;       // all of them
    plant::ForeignChanges m_refusedChanges;  // the user keeps his own
    bool m_bUnwanted = false;                // what is not saved: the user has said so
    DialogAccess m_access;
};
