// A random user of the main window and of the dialogs that its commands open, beside a model of the project.
#pragma once

#include <array>
#include <memory>

#include "DialogUser.h"
#include "TemporaryFolder.h"
#include "WindowModel.h"
#include "modules/ModuleLoader.h"
#include "window/frame/MainWindow.h"

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

    // Of all that was done: what changed the project, what saved it, and what brought an earlier one back.
    struct Counts {
        long changes = 0;
        long saves = 0;
        long restores = 0;
    };
    [[nodiscard]] const Counts& Done() const noexcept { return m_counts; }

private:
    struct Action {
        const char* name;
        void (WindowUser::*run)();
    };
    static const std::array<Action, 24> Actions;

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
    [[nodiscard]] std::string Difference();

    Random m_random;
    EventLog& m_log;
    DialogUser m_dialogUser{m_random, m_log, 8};
    kztest::TemporaryFolder m_folder;
    SettingsFile m_settings{m_folder.Path() / "settings.xml"};
    ModuleLoader m_modules;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<WindowModel> m_model;
    Counts m_counts;
};
