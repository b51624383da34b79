// The main window, what it asks about the project's files, and other programs that change them meanwhile.
#pragma once

#include <algorithm>

#include "MainWindowFixture.h"

namespace editor_tests {

// A file that nobody else may open as long as this lives.
class HeldByAnother {
public:
    explicit HeldByAnother(const std::filesystem::path& file)
        : m_file(::CreateFileW(file.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr))
    {
    }
    ~HeldByAnother() { ::CloseHandle(m_file); }
    HeldByAnother(const HeldByAnother&) = delete;
    HeldByAnother& operator=(const HeldByAnother&) = delete;

private:
    HANDLE m_file;
};

class ProjectWindowTest : public MainWindowTest {
protected:
    void OpenIn(const std::string& language)
    {
        TakeWindow(StartBare({"--project", ProjectPath(), "--language", language}));
    }

    // The message box that the editor shows; waits for it.
    [[nodiscard]] HWND Box() const
    {
        const HWND box = m_editor->WindowTitled(L"KZEditor");
        if (!box)
            throw std::runtime_error("no message box appears");
        return box;
    }
    [[nodiscard]] bool HasBox() const { return m_editor->HasWindowTitled(L"KZEditor"); }

    // Presses a button of the message box, and gives the text that it showed.
    std::string AnswerBox(int button)
    {
        const HWND box = Box();
        const std::string text = ToUtf8(MessageOf(box));
        // A click is lost while the box is still being activated.
        EXPECT_NE(FocusIn(box), nullptr);
        Press(box, button);
        EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(box); }));
        return text;
    }

    // The control of a dialog that has the focus; waits for it.
    [[nodiscard]] static HWND FocusIn(HWND dialog)
    {
        GUITHREADINFO thread{};
        thread.cbSize = sizeof thread;
        const bool hasFocus = WaitUntil([&] {
            return ::GetGUIThreadInfo(::GetWindowThreadProcessId(dialog, nullptr), &thread) &&
                   ::IsChild(dialog, thread.hwndFocus);
        });
        return hasFocus ? thread.hwndFocus : nullptr;
    }

    // Types a key into the message box.
    void TypeIntoBox(WORD key)
    {
        const HWND box = Box();
        Type(FocusIn(box), key);
        EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(box); }));
    }

    // What was posted to the window before is done by the time that this has returned.
    void ExpectNothingAsked()
    {
        Press(m_window, IDC_OPTIONS);
        EXPECT_NE(m_editor->WindowTitled(L"test options"), nullptr);
        EXPECT_FALSE(HasBox()) << ToUtf8(MessageOf(Box()));
        Answer(L"test options", IDCANCEL);
    }

    // As when the user comes back from another program.
    void Activate() const { ::SendMessageW(m_window, WM_ACTIVATEAPP, TRUE, 0); }

    void ChooseVariables()
    {
        Press(m_window, IDC_SELECT);
        Answer(L"test select", IDOK);
        EXPECT_TRUE(WaitUntil([&] { return ChosenCount() == 2; }));
    }

    void SaveWindow()
    {
        Press(m_window, IDC_SAVE);
        ExpectTitle(CleanTitle);
    }

    // The files in which unsaved changes are.
    [[nodiscard]] std::vector<std::string> Leftovers() const
    {
        std::vector<std::string> names;
        for (const auto& [name, bytes] : ProjectFiles()) {
            if (name.ends_with(".kzrecovery"))
                names.push_back(name);
        }
        return names;
    }

    // An editor that changes the configuration and the chosen variables and is killed.
    void LeaveUnsavedChanges()
    {
        Open();
        MakeDirty();
        ChooseVariables();
        m_editor->Kill();
    }

    void ChangeMain(const std::string& devices) const { m_folder.Write("plant/main.xml", MainXml(devices)); }
    [[nodiscard]] std::string Main() const { return m_folder.Read("plant/main.xml"); }
};

}  // namespace editor_tests
