#include "EditorApp.h"

#include <commctrl.h>

#include "command/Commands.h"
#include "command/Console.h"
#include "crash/CrashDialog.h"
#include "modules/ModuleLoader.h"
#include "text/EditorError.h"
#include "text/EditorText.h"
#include "text/PlantMessage.h"
#include "window/frame/MainWindow.h"

namespace {

void Report(const char* utf8Line) noexcept
{
    if (HasErrorReader()) {
        PrintErrorLine(std::string("KZEditor: ") + utf8Line);
        return;
    }
    FlushOutput();
    ::MessageBoxW(nullptr, FromUtf8(utf8Line).c_str(), L"KZEditor", MB_OK | MB_ICONERROR);
}

// Null without one, and with a message when it can no longer be opened.
std::unique_ptr<OpenProject> LastProject(const EditorSettings& settings, std::wstring& failure)
{
    if (settings.lastProject.empty())
        return nullptr;
    try {
        return std::make_unique<OpenProject>(settings.lastProject);
    } catch (const plant::Refusal& refusal) {
        failure = PlantMessage(refusal.What());
        return nullptr;
    }
}

void RegisterControlClasses() noexcept
{
    const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_WIN95_CLASSES};
    ::InitCommonControlsEx(&classes);
}

}  // namespace

int EditorApp::RunProgram() noexcept
{
    RegisterControlClasses();
    try {
        ReportCrashes();
        KZQuorvelantaSetup::Get()->SetLanguage(UserLanguage());
        KZQuorvelantaSetup::Get()->SetProgramIDResource(IDI_PROGRAM);
        const int status = RunArguments(ParseArguments(ProcessArguments()));
        FlushOutput();
        return status;
    } catch (const plant::Refusal& refusal) {
        Report(ToUtf8(PlantMessage(refusal.What())).c_str());
        return ExitError;
    } catch (const std::exception& error) {
        Report(error.what());
        return ExitError;
    }
}

int EditorApp::RunArguments(const Arguments& arguments)
{
    if (arguments.language)
        KZQuorvelantaSetup::Get()->SetLanguage(*arguments.language);
    NoteCommand(static_cast<unsigned>(arguments.command));
    switch (arguments.command) {
    case Command::Help:
        PrintLine(arguments.help);
        return ExitTrue;
    case Command::Window:
        return RunWindow(arguments);
    default:
        return RunCommand(arguments);
    }
}

int EditorApp::RunWindow(const Arguments& arguments)
{
    SettingsFile settings(SettingsFile::OfTheUser());
    if (!arguments.language && settings.settings.language)
        KZQuorvelantaSetup::Get()->SetLanguage(*settings.settings.language);
    std::wstring failure;
    std::unique_ptr<OpenProject> project;
    if (arguments.isProjectGiven)
        project = std::make_unique<OpenProject>(arguments.project);
    else
        project = LastProject(settings.settings, failure);
    CloseOwnConsole();
    const ModuleLoader modules(ProgramFolder());
    MainWindow window(modules, settings, std::move(project));
    if (!window.Create())
        throw EditorError(EditorText(IDS_NO_WINDOW));
    m_pMainWnd = &window;
    m_window = &window;
    ShowNewCrash(&window);
    if (!failure.empty())
        AfxMessageBox(failure.c_str(), MB_OK | MB_ICONWARNING);
    Run();
    m_window = nullptr;
    return ExitTrue;
}

// The window's keys come first: a dialog that is embedded in it would take the keys before they reach the window.
BOOL EditorApp::PreTranslateMessage(MSG* message)
{
    return (m_window && m_window->TranslateKey(*message)) || CWinApp::PreTranslateMessage(message);
}
