#include "Arguments.h"

#include <windows.h>

#include <shellapi.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <limits>
#include <memory>

#include "text/EditorError.h"
#include "text/EditorText.h"

namespace {

// The values as they were typed; they get their meaning when all of them are there.
struct RawArguments {
    std::string project = ".";
    std::optional<std::string> language;
    std::string device;
    std::optional<std::string> groups;
    std::string maxVariables = "0";
    std::vector<std::string> list;
    std::optional<std::string> text;
    std::string stringId;
    std::string saveNumber;
    bool dryRun = false;
    bool discard = false;
};

[[noreturn]] void Refuse(const std::string& argument, const std::string& value, const std::string& remedy)
{
    throw EditorError(argument + " \"" + value + "\": " + remedy);
}

int ParseInteger(const std::string& argument, const std::string& value, int lowest, int highest)
{
    int number = 0;
    const char* end = value.data() + value.size();
    const auto [stop, error] = std::from_chars(value.data(), end, number);
    if (error != std::errc{} || stop != end || number < lowest || number > highest)
        Refuse(argument, value,
               "give a whole number from " + std::to_string(lowest) + " to " + std::to_string(highest));
    return number;
}

KZVariableGroups ParseGroups(const std::string& value)
{
    const auto groups = plant::ParseGroupMask(FromUtf8(value));
    if (!groups)
        Refuse("--groups", value, "give a hexadecimal mask of the 34 groups, 0x0 to 0x3FFFFFFFF, such as 0x74");
    return *groups;
}

KZLanguage ParseLanguage(const std::string& value)
{
    const auto language = LanguageFromCode(value);
    if (!language)
        Refuse("--language", value, "give en or es");
    return *language;
}

// Binds the options and subcommands to the raw values.
struct Syntax {
    CLI::App app{"Shows a project's devices and runs their driver modules. Without a command it opens the editor's "
                 "window.",
                 "KZEditor.exe"};
    RawArguments raw;

    Syntax();
    CLI::App* AddDeviceCommand(const char* name, const char* description);
};

CLI::App* Syntax::AddDeviceCommand(const char* name, const char* description)
{
    CLI::App* command = app.add_subcommand(name, description);
    command->add_option("DEVICE", raw.device, "The device's name")->required();
    return command;
}

Syntax::Syntax()
{
    app.fallthrough();
    app.require_subcommand(0, 1);
    app.add_option("--project", raw.project, "The project's folder, which holds main.xml (default: this folder)");
    app.add_option("--language", raw.language, "en or es (default: the user's)");
    app.add_subcommand("devices", "Lists the devices: driverId, name, type, groups");
    AddDeviceCommand("options", "Opens the device's options dialog");
    AddDeviceCommand("third", "Runs the driver's third callback");
    AddDeviceCommand("child", "Shows the device's options dialog embedded in a window");
    app.add_subcommand("string", "Prints a text of the host's string table")
        ->add_option("ID", raw.stringId, "The text's id, 1 to 65535")
        ->required();

    app.add_subcommand("history", "Lists the saves of the project: number, time, cause, documents");
    CLI::App* restore = app.add_subcommand("restore", "Brings the project back as it was before a save");
    restore->add_option("NUMBER", raw.saveNumber, "The save's number in the history")->required();
    restore->add_flag("--dry-run", raw.dryRun, "Only say what would change");
    app.add_subcommand("recover", "Saves what an editor that ended without saving has left")
        ->add_flag("--discard", raw.discard, "Take it away instead");

    CLI::App* select = AddDeviceCommand("select", "Lets the user choose variables of the device");
    select->add_option("--groups", raw.groups, "Variable groups to offer, hexadecimal (default: all 34)");
    select->add_option("--max", raw.maxVariables, "The most variables to choose, 0 for no limit");
    select->add_option("--list", raw.list, "Full names that are chosen already, with commas between them")
        ->delimiter(',')
        ->allow_extra_args(false);  // the word after it may be the device
    select->add_option("--text", raw.text, "The caller's words for the request");
}

Command CommandNamed(const std::string& name)
{
    static const std::pair<const char*, Command> commands[] = {
        {"devices", Command::Devices}, {"options", Command::Options}, {"select", Command::Select},
        {"third", Command::Third},     {"child", Command::Child},     {"string", Command::String},
        {"history", Command::History}, {"restore", Command::Restore}, {"recover", Command::Recover},
    };
    const auto found =
        std::find_if(std::begin(commands), std::end(commands), [&](const auto& entry) { return name == entry.first; });
    return found == std::end(commands) ? Command::Window : found->second;
}

Arguments Interpret(const Syntax& syntax)
{
    const RawArguments& raw = syntax.raw;
    Arguments arguments;
    for (const CLI::App* command : syntax.app.get_subcommands())
        arguments.command = CommandNamed(command->get_name());
    arguments.project = FromUtf8(raw.project);
    if (raw.language)
        arguments.language = ParseLanguage(*raw.language);
    arguments.device = FromUtf8(raw.device);
    if (raw.groups)
        arguments.groups = ParseGroups(*raw.groups);
    arguments.maxVariables = ParseInteger("--max", raw.maxVariables, 0, std::numeric_limits<int>::max());
    for (const std::string& name : raw.list) {
        if (!name.empty())
            arguments.variables.emplace_back(FromUtf8(name));
    }
    if (raw.text)
        arguments.text = FromUtf8(*raw.text);
    if (arguments.command == Command::String)
        arguments.stringId = static_cast<unsigned>(ParseInteger("ID", raw.stringId, 1, 65535));
    if (arguments.command == Command::Restore)
        arguments.saveNumber = ParseInteger("NUMBER", raw.saveNumber, 1, std::numeric_limits<int>::max());
    arguments.dryRun = raw.dryRun;
    arguments.discard = raw.discard;
    return arguments;
}

}  // namespace

Arguments ParseArguments(std::vector<std::string> arguments)
{
    Syntax syntax;
    std::reverse(arguments.begin(), arguments.end());  // the order that CLI11 asks for
    try {
        syntax.app.parse(arguments);
    } catch (const CLI::CallForHelp&) {
        Arguments help;
        help.command = Command::Help;
        help.help = syntax.app.help();
        return help;
    } catch (const CLI::ParseError& error) {
        throw EditorError(std::string(error.what()) + "; KZEditor.exe --help lists the commands and options");
    }
    return Interpret(syntax);
}

std::vector<std::string> ProcessArguments()
{
    struct LocalFreer {
        void operator()(wchar_t** block) const noexcept { ::LocalFree(block); }
    };
    int count = 0;
    const std::unique_ptr<wchar_t*[], LocalFreer> words(::CommandLineToArgvW(::GetCommandLineW(), &count));
    std::vector<std::string> arguments;
    for (int index = 1; words && index < count; ++index)
        arguments.push_back(ToUtf8(words[static_cast<std::size_t>(index)]));
    return arguments;
}
