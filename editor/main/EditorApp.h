// The program: decides between a command and the window, and turns errors into one line and an exit status.
#pragma once

#include <afxwin.h>

struct Arguments;
class MainWindow;

class EditorApp : public CWinApp {
public:
    EditorApp() noexcept : CWinApp(L"KZEditor") {}

    // Runs what the command line asks for and returns the exit status (command/Commands.h).
    int RunProgram() noexcept;

    BOOL PreTranslateMessage(MSG* message) override;

private:
    int RunArguments(const Arguments& arguments);
    int RunWindow(const Arguments& arguments);

    MainWindow* m_window = nullptr;  // while it runs
};
