#include "Commands.h"

#include "Console.h"
#include "FieldCommands.h"
#include "KZLoadString.h"
#include "ModuleCommands.h"
#include "ProjectCommands.h"
#include "RequiredFiles.h"
#include "TableCommands.h"
#include "main/ProjectStore.h"
#include "modules/DeviceDrivers.h"
#include "modules/ModuleLoader.h"
#include "text/EditorError.h"
#include "text/EditorText.h"
#include "window/options/ChildWindow.h"

namespace {

// What a command has to say once its save stands.
struct Answer {
    Answer(std::string line, bool isTrue) : lines{std::move(line)}, status(isTrue ? ExitTrue : ExitFalse) {}

    std::vector<std::string> lines;
    ExitStatus status;
};

Answer TrueOrFalse(const std::string& what, bool answer)
{
    return {what + (answer ? ": true" : ": false"), answer};
}

ExitStatus PrintHostString(const Arguments& arguments)
{
    KZBasicString text;
    if (!KZLoadString(arguments.stringId, text))
        throw EditorError(FormatEditorText(IDS_NO_HOST_STRING, static_cast<int>(arguments.stringId)));
    PrintLine(ToUtf8(text.View()));
    return ExitTrue;
}

struct Context {
    const Arguments& arguments;
    plant::Project& project;
    const KZDriverCallbacks& callbacks;
    KZDriver* driver;
};

Answer RunOptions(const Context& context)
{
    RequireDeviceDocument(context.project, context.driver->DriverId());
    RequirePictures();
    return TrueOrFalse("options", context.callbacks.options(nullptr, context.driver));
}

Answer RunSelect(const Context& context)
{
    RequirePictures();
    const Arguments& arguments = context.arguments;
    plant::VariableList variables = arguments.variables;
    Answer answer =
        TrueOrFalse("select", context.callbacks.selectVariables(nullptr, context.driver, variables, arguments.groups,
                                                                arguments.maxVariables,
                                                                arguments.text ? arguments.text->c_str() : nullptr));
    for (const KZBasicString& variable : variables)
        answer.lines.push_back("variable: " + ToUtf8(variable.View()));
    return answer;
}

Answer RunThird(const Context& context)
{
    return TrueOrFalse("third", context.callbacks.third(nullptr, context.driver));
}

Answer RunChild(const Context& context)
{
    RequireDeviceDocument(context.project, context.driver->DriverId());
    RequirePictures();
    const bool created = ShowChildWindow(context.driver, context.callbacks.createChildOptions);
    return {created ? "child: created" : "child: null", created};
}

ExitStatus RunOnDevice(const Arguments& arguments, const char* command, Answer (*run)(const Context&))
{
    const std::unique_ptr<plant::Project> project = OpenProject(arguments);
    const std::size_t index = project->DeviceByName(arguments.device);
    const KZBasicString& typeName = project->Devices()[index].typeName;
    ProjectStore store(*project, command);
    const ModuleLoader modules(ProgramFolder());
    const KZDriverCallbacks* callbacks = modules.CallbacksOf(typeName);
    if (!callbacks) {
        const ModuleStatus status = modules.StatusOf(typeName);
        throw EditorError(status.reason + L" " + status.remedy);
    }
    DeviceDrivers drivers(project->Devices());
    const Answer answer = run({arguments, *project, *callbacks, &drivers[index]});
    project->Save(command);
    if (store.Refused())
        throw EditorError(*store.Refused());
    for (const std::string& line : answer.lines)
        PrintLine(line);
    return answer.status;
}

}  // namespace

ExitStatus RunCommand(const Arguments& arguments)
{
    static constexpr struct {
        Command command;
        ExitStatus (*run)(const Arguments& arguments);
    } commands[] = {
        {Command::Devices, ListDevices},
        {Command::Options, [](const Arguments& of) { return RunOnDevice(of, "options", RunOptions); }},
        {Command::Select, [](const Arguments& of) { return RunOnDevice(of, "select", RunSelect); }},
        {Command::Third, [](const Arguments& of) { return RunOnDevice(of, "third", RunThird); }},
        {Command::Child, [](const Arguments& of) { return RunOnDevice(of, "child", RunChild); }},
        {Command::String, PrintHostString},
        {Command::History, ListHistory},
        {Command::Restore, RestoreSave},
        {Command::Recover, RecoverUnsaved},
        {Command::Modules, ListModules},
        {Command::Diagnose, DiagnoseInstallation},
        {Command::Fields, ListFields},
        {Command::Get, PrintValues},
        {Command::Set, SetValues},
        {Command::Copy, CopyValues},
        {Command::Export, ExportDevices},
        {Command::Import, ImportDevices},
        {Command::Diff, CompareProjects},
        {Command::Check, CheckForFaults},
    };
    for (const auto& [command, run] : commands) {
        if (command == arguments.command)
            return run(arguments);
    }
    return ExitError;
}
