// A random user of the main window and of the dialogs that its commands open, beside a model of the project.
#pragma once

#include <array>
#include <memory>
#include <set>

#include "DialogUser.h"
#include "TemporaryFolder.h"
#include "WindowModel.h"
#include "modules/ModuleLoader.h"
#include "window/frame/MainWindow.h"

// The process's current folder, as long as this object lives.
class WorkingFolder {
public:
    explicit WorkingFolder(const plant::Path& folder) { std::filesystem::current_path(folder); }
    ~WorkingFolder()
    {
        std::error_code ignored;
        std::filesystem::current_path(m_before, ignored);
    }
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;

private:
    plant::Path m_before = std::filesystem::current_path();
};

class WindowUser {
public:
    WindowUser(std::uint64_t seed, EventLog& log);
    ~WindowUser();
    WindowUser(const WindowUser&) = delete;
    WindowUser& operator=(const WindowUser&) = delete;

    // Each returns what is not as it should be; empty when all is.
    [[nodiscard]] std::string DoSomething();
    // All kept steps back and forth again: the model's documents in between, and the same ones in the end.
    [[nodiscard]] std::string GoAllTheWay();

    // Of all that was done: what changed the project, what saved it, what brought an earlier one back, what left it for
    // another or for the same one anew, and what made a copy.
    struct Counts {
        long changes = 0;
        long saves = 0;
        long restores = 0;
        long openings = 0;
        long copies = 0;
    };
    [[nodiscard]] const Counts& Done() const noexcept { return m_counts; }

private:
    struct Action {
        const char* name;
        void (WindowUser::*run)();
    };
    static const std::array<Action, 26> Actions;

    void Choose();
    void SetValue();
    void RemoveVariables();
    void UseDeviceDialog();
    void LookAround();
    void Review();
    void Restore();
    void Undo();
    void Redo();
    void Save();
    void SaveCopy();
    void OpenAnother();
    void Find();
    void Mark();
    void MarkMore();
    void Sort();
    void Press();
    void Speak();
    void MoveBar();
    void Resize();

    void Run(int command) const;
    void RunWithDialogs(int command);
    void Changed();
    [[nodiscard]] HWND Control(int id) const;
    [[nodiscard]] std::size_t AnyPlace();
    [[nodiscard]] std::set<plant::Path> Projects() const;
    [[nodiscard]] std::string Difference();

    Random m_random;
    EventLog& m_log;
    DialogUser m_dialogUser{m_random, m_log, 8};
    kztest::TemporaryFolder m_folder;
    WorkingFolder m_working{m_folder.Path()};  // names that are typed are of folders in it
    SettingsFile m_settings{m_folder.Path() / "settings.xml"};
    ModuleLoader m_modules;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<WindowModel> m_model;
    std::string m_fault;  // that an action has found itself
    Counts m_counts;
};
