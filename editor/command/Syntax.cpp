#include "Syntax.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "text/EditorError.h"

namespace {

// Names and values may hold anything, but CLI11 reads a word like "[A,B]" as a list, "{}" as an empty one, "++" as the
// end of a command and "-x" as an option. A sign before such a word, taken off afterwards, keeps it as it is. Options
// of this program begin with "--".
constexpr char Shield = '\x1F';

bool NeedsShield(const std::string& word)
{
    return !word.empty() && std::string("[{+-\x1F").find(word.front()) != std::string::npos &&
           !word.starts_with("--") && word != "-h";
}

std::string Shielded(const std::string& word)
{
    return NeedsShield(word) ? Shield + word : word;
}

std::string Unshielded(const std::string& word)
{
    return word.starts_with(Shield) ? word.substr(1) : word;
}

class Syntax {
public:
    Syntax();
    TypedArguments Read(std::vector<std::string> arguments);

private:
    CLI::App* Add(const char* name, const char* description) { return m_app.add_subcommand(name, description); }
    CLI::App* AddDeviceCommand(const char* name, const char* description);
    void AddDialogCommands();
    void AddProjectCommands();
    void AddFieldCommands();
    void AddTableCommands();
    CLI::Option* AddDevices(CLI::App* command, const char* name, const char* description);
    CLI::Option* AddFields(CLI::App* command);
    void AddDryRun(CLI::App* command);

    CLI::App m_app{"Shows a project's devices and runs their driver modules. Without a command it opens the editor's "
                   "window.",
                   "KZEditor.exe"};
    TypedArguments m_typed;
};

CLI::App* Syntax::AddDeviceCommand(const char* name, const char* description)
{
    CLI::App* command = Add(name, description);
    command->add_option("DEVICE", m_typed.device, "The device's name")->required();
    return command;
}

CLI::Option* Syntax::AddDevices(CLI::App* command, const char* name, const char* description)
{
    return command->add_option(name, m_typed.devices, description);
}

CLI::Option* Syntax::AddFields(CLI::App* command)
{
    return command->add_option("--field", m_typed.fields, "The key of a field; again for each further one")
        ->allow_extra_args(false);  // the word after it may be a device
}

void Syntax::AddDryRun(CLI::App* command)
{
    command->add_flag("--dry-run", m_typed.dryRun, "Only say what would change");
}

void Syntax::AddDialogCommands()
{
    AddDeviceCommand("options", "Opens the device's options dialog");
    AddDeviceCommand("third", "Runs the driver's third callback");
    AddDeviceCommand("child", "Shows the device's options dialog embedded in a window");
    Add("string", "Prints a text of the host's string table")
        ->add_option("ID", m_typed.stringId, "The text's id, 1 to 65535")
        ->required();

    CLI::App* select = AddDeviceCommand("select", "Lets the user choose variables of the device");
    select->add_option("--groups", m_typed.groups, "Variable groups to offer, hexadecimal (default: all 34)");
    select->add_option("--max", m_typed.maxVariables, "The most variables to choose, 0 for no limit");
    select->add_option("--list", m_typed.list, "Full names that are chosen already, with commas between them")
        ->delimiter(',')
        ->allow_extra_args(false);  // the word after it may be the device
    select->add_option("--text", m_typed.text, "The caller's words for the request");
}

void Syntax::AddProjectCommands()
{
    Add("devices", "Lists the devices: driverId, name, type, groups");
    Add("modules", "Lists the driver modules: file, model, version, state, reason");
    Add("diagnose", "Looks at all that the editor needs: subject, name, value, what is wrong");
    Add("history", "Lists the saves of the project: number, time, cause, documents");
    CLI::App* restore = Add("restore", "Brings the project back as it was before a save");
    restore->add_option("NUMBER", m_typed.saveNumber, "The save's number in the history")->required();
    AddDryRun(restore);
    Add("recover", "Saves what an editor that ended without saving has left")
        ->add_flag("--discard", m_typed.discard, "Take it away instead");
}

void Syntax::AddFieldCommands()
{
    Add("fields", "Lists what can be set for a device: key, kind, unit, values, rw or r, caption")
        ->add_option("--type", m_typed.type, "The type of device (default: ZEP)");

    CLI::App* get = Add("get", "Prints values: device, key, value");
    AddDevices(get, "DEVICE", "Names or driverIds (default: every device)");
    AddFields(get);
    get->add_flag("--stored", m_typed.stored, "Only what the documents hold, without defaults");

    CLI::App* set = Add("set", "Sets fields of devices: device, key, old value, new value of what changed");
    AddDevices(set, "DEVICE... KEY=VALUE",
               "Names or driverIds, then what to set; all from the first word with = on is to be set")
        ->required();
    AddDryRun(set);

    CLI::App* copy = Add("copy", "Copies fields of a device to others; prints the same as set");
    copy->add_option("FROM", m_typed.device, "The device to copy from")->required();
    AddDevices(copy, "TO", "The devices to copy to")->required();
    CLI::Option* sections =
        copy->add_option("--section", m_typed.sections, "device, units or limits (default: all three)")
            ->allow_extra_args(false);
    AddFields(copy)->excludes(sections);
    AddDryRun(copy);
}

void Syntax::AddTableCommands()
{
    AddDevices(Add("check", "Finds what is wrong: device, key or file, message"), "DEVICE",
               "Names or driverIds (default: the whole project)");

    CLI::App* exportTable = Add("export", "Prints all values as a CSV table, one row for each device");
    AddFields(exportTable);
    exportTable->add_option("--output", m_typed.output, "The file to write instead");

    CLI::App* import = Add("import", "Sets what such a table holds; prints the same as set");
    import->add_option("FILE", m_typed.otherPath, "The table")->required();
    AddDryRun(import);

    Add("diff", "Compares with another project: device, key, value here, value there")
        ->add_option("FOLDER", m_typed.otherPath, "The other project's folder")
        ->required();
}

Syntax::Syntax()
{
    m_app.fallthrough();
    m_app.require_subcommand(0, 1);
    m_app.allow_windows_style_options(false);  // a path or a name may begin with a slash
    m_app
        .add_option(
            "--project", m_typed.project,
            "The project's folder, which holds main.xml (default: this folder; for the window, the last project)")
        ->each([this](const std::string&) { m_typed.isProjectGiven = true; });
    m_app.add_option("--language", m_typed.language, "en or es (default: the user's)");
    AddProjectCommands();
    AddDialogCommands();
    AddFieldCommands();
    AddTableCommands();

    std::vector<CLI::App*> commands = m_app.get_subcommands([](CLI::App*) { return true; });
    commands.push_back(&m_app);
    for (CLI::App* command : commands) {
        for (CLI::Option* option : command->get_options())
            option->transform(Unshielded);
    }
}

TypedArguments Syntax::Read(std::vector<std::string> arguments)
{
    std::reverse(arguments.begin(), arguments.end());  // the order that CLI11 asks for
    std::transform(arguments.begin(), arguments.end(), arguments.begin(), Shielded);
    try {
        m_app.parse(arguments);
    } catch (const CLI::CallForHelp&) {
        m_typed.help = m_app.help();
    } catch (const CLI::ParseError& error) {
        std::string reason = error.what();
        std::erase(reason, Shield);
        throw EditorError(reason + "; KZEditor.exe --help lists the commands and options");
    }
    for (const CLI::App* command : m_app.get_subcommands())
        m_typed.command = command->get_name();
    return m_typed;
}

}  // namespace

TypedArguments ReadArguments(std::vector<std::string> arguments)
{
    return Syntax().Read(std::move(arguments));
}
