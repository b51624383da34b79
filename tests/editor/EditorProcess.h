// The real KZEditor.exe in a process of its own, with its output read through pipes and its windows acted on by handle.
#pragma once

#include <windows.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <thread>
#include <vector>

namespace editor_tests {

// How long a test waits for something that has to happen.
inline constexpr std::chrono::seconds Patience{20};

// Waits until the condition holds; false when it does not in time.
[[nodiscard]] bool WaitUntil(const std::function<bool()>& condition);

// A folder with the editor and its libraries; tests add the modules that they need.
class EditorFolder {
public:
    explicit EditorFolder(const std::filesystem::path& folder);

    // Copies the real module.
    void AddRealModule() const;
    // Copies one of the test modules ("ready", "noentry", "refusing", "needing", "crashing") to KZUsr<model>.dll.
    void AddModule(const std::string& kind, const std::string& model = "ZEP") const;
    [[nodiscard]] const std::filesystem::path& Path() const noexcept { return m_folder; }
    // Where the editor puts its crash reports.
    [[nodiscard]] std::filesystem::path CrashReports() const;

    // Where the program and its libraries were built.
    [[nodiscard]] static std::filesystem::path Products();
    // Where the test modules were built.
    [[nodiscard]] static std::filesystem::path ModuleFile(const std::string& kind);

private:
    std::filesystem::path m_folder;
};

class EditorProcess {
public:
    // Starts the editor of the folder, with a folder for crash reports of its own; arguments in UTF-8. The current
    // folder is the editor's own unless told.
    EditorProcess(const EditorFolder& folder, const std::vector<std::string>& arguments,
                  const std::filesystem::path& currentFolder = {});
    // Ends the process if the test left it running.
    ~EditorProcess();
    EditorProcess(const EditorProcess&) = delete;
    EditorProcess& operator=(const EditorProcess&) = delete;

    // Waits for the end; the exit status, or -1 when the process does not end in time.
    [[nodiscard]] int Wait();
    // What it printed; complete once Wait has returned.
    [[nodiscard]] const std::string& Output() const noexcept { return m_output.text; }
    [[nodiscard]] const std::string& Errors() const noexcept { return m_errors.text; }

    // The visible top-level window with this title; null when none appears in time.
    [[nodiscard]] HWND WindowTitled(const std::wstring& title) const;
    // Whether there is one now.
    [[nodiscard]] bool HasWindowTitled(const std::wstring& title) const;
    // The top-level window that takes input and has a control of this id; null when none appears in time.
    [[nodiscard]] HWND WindowWith(int control) const;
    // Ends it as a failure of the computer would: nothing of its own runs any more.
    void Kill();
    [[nodiscard]] HANDLE Process() const noexcept { return m_process.hProcess; }

private:
    struct Pipe {
        HANDLE read = nullptr;
        HANDLE write = nullptr;
        std::string text;
        std::thread reader;

        void Open();
        void StartReading();
        void Close();
    };

    PROCESS_INFORMATION m_process{};
    Pipe m_output;
    Pipe m_errors;
};

// Text of a window or control of any process.
[[nodiscard]] std::wstring TextOf(HWND window);
// The text that a message box shows.
[[nodiscard]] std::wstring MessageOf(HWND box);
// Presses a button of the window by its id, or chooses the menu item where there is no such button, without waiting for
// what it starts.
void Press(HWND window, int id);
// One cell of a report list of another process.
[[nodiscard]] std::wstring ListCell(const EditorProcess& editor, HWND list, int row, int column);

}  // namespace editor_tests
