#include "Commands.h"

#include "Console.h"
#include "KZLoadString.h"
#include "modules/ModuleLoader.h"
#include "project/Project.h"
#include "project/RequiredFiles.h"
#include "text/EditorError.h"
#include "text/EditorText.h"
#include "window/ChildWindow.h"

namespace {

ExitStatus PrintAnswer(const char* what, bool answer)
{
    PrintLine(std::string(what) + (answer ? ": true" : ": false"));
    return answer ? ExitTrue : ExitFalse;
}

ExitStatus ListDevices(const Arguments& arguments)
{
    const Project project(arguments.project);
    for (const Device& device : project.Devices()) {
        const KZDriver& driver = *device.driver;
        const KZBasicString line =
            KZBasicString::Format(L"%s\t%s\t%s\t%s", driver.DriverId().c_str(), driver.Name().c_str(),
                                  driver.TypeName().c_str(), FormatGroupMask(driver.VariableGroups()).c_str());
        PrintLine(ToUtf8(line.View()));
    }
    return ExitTrue;
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
    const KZDriverCallbacks& callbacks;
    KZDriver* driver;
};

ExitStatus RunOptions(const Context& context)
{
    RequireDeviceDocument(*context.driver);
    RequirePictures();
    return PrintAnswer("options", context.callbacks.options(nullptr, context.driver));
}

ExitStatus RunSelect(const Context& context)
{
    RequirePictures();
    const Arguments& arguments = context.arguments;
    VariableList variables = arguments.variables;
    const ExitStatus status =
        PrintAnswer("select", context.callbacks.selectVariables(nullptr, context.driver, variables, arguments.groups,
                                                                arguments.maxVariables,
                                                                arguments.text ? arguments.text->c_str() : nullptr));
    for (const KZBasicString& variable : variables)
        PrintLine("variable: " + ToUtf8(variable.View()));
    return status;
}

ExitStatus RunThird(const Context& context)
{
    return PrintAnswer("third", context.callbacks.third(nullptr, context.driver));
}

ExitStatus RunChild(const Context& context)
{
    RequireDeviceDocument(*context.driver);
    RequirePictures();
    const bool created = ShowChildWindow(context.driver, context.callbacks.createChildOptions);
    PrintLine(created ? "child: created" : "child: null");
    return created ? ExitTrue : ExitFalse;
}

ExitStatus RunOnDevice(const Arguments& arguments, ExitStatus (*run)(const Context&))
{
    Project project(arguments.project);
    const Device& device = project.DeviceByName(arguments.device);
    const ModuleLoader modules(ProgramFolder());
    const KZDriverCallbacks* callbacks = modules.CallbacksOf(device);
    if (!callbacks) {
        const ModuleStatus status = modules.StatusOf(device);
        throw EditorError(status.reason + L" " + status.remedy);
    }
    const ExitStatus status = run({arguments, *callbacks, device.driver.get()});
    if (const KZDocumentResult saved = project.Save(); !saved)
        throw EditorError(FormatEditorText(IDS_SAVE_FAILED, saved.message.c_str()));
    return status;
}

}  // namespace

ExitStatus RunCommand(const Arguments& arguments)
{
    switch (arguments.command) {
    case Command::Devices:
        return ListDevices(arguments);
    case Command::String:
        return PrintHostString(arguments);
    case Command::Options:
        return RunOnDevice(arguments, RunOptions);
    case Command::Select:
        return RunOnDevice(arguments, RunSelect);
    case Command::Third:
        return RunOnDevice(arguments, RunThird);
    case Command::Child:
        return RunOnDevice(arguments, RunChild);
    case Command::Window:
    case Command::Help:
        break;
    }
    return ExitError;
}
