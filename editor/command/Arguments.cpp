#include "Arguments.h"

#include <windows.h>

#include <shellapi.h>

#include <algorithm>
#include <charconv>
#include <limits>
#include <memory>

#include "Syntax.h"
#include "text/EditorError.h"
#include "text/EditorText.h"

namespace {

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

plant::FieldSection ParseSection(const std::string& value)
{
    int place = 0;
    for (const char* section : {"device", "units", "limits"}) {
        if (value == section)
            return static_cast<plant::FieldSection>(place);
        ++place;
    }
    Refuse("--section", value, "give device, units or limits");
}

void TakeDevices(const TypedArguments& typed, Arguments& arguments)
{
    for (const std::string& device : typed.devices)
        arguments.devices.push_back(FromUtf8(device));
}

// A name with = can only be told from an assignment by its place, so there is none behind the first assignment.
void TakeAssignments(const TypedArguments& typed, Arguments& arguments)
{
    for (const std::string& word : typed.devices) {
        const std::size_t divider = word.find('=');
        if (divider == std::string::npos && arguments.assignments.empty()) {
            arguments.devices.push_back(FromUtf8(word));
            continue;
        }
        if (divider == std::string::npos)
            Refuse("KEY=VALUE", word, "write a key, = and a value; devices stand before the first of them");
        arguments.assignments.push_back({word.substr(0, divider), word.substr(divider + 1)});
    }
    if (arguments.devices.empty())
        throw EditorError("DEVICE: name one or more devices before the first KEY=VALUE");
    if (arguments.assignments.empty())
        throw EditorError("KEY=VALUE: say what to set, such as device.minCurrent=10");
}

Command CommandNamed(const std::string& name)
{
    static const std::pair<const char*, Command> commands[] = {
        {"devices", Command::Devices},   {"options", Command::Options}, {"select", Command::Select},
        {"third", Command::Third},       {"child", Command::Child},     {"string", Command::String},
        {"history", Command::History},   {"restore", Command::Restore}, {"recover", Command::Recover},
        {"fields", Command::Fields},     {"get", Command::Get},         {"set", Command::Set},
        {"copy", Command::Copy},         {"check", Command::Check},     {"export", Command::Export},
        {"import", Command::Import},     {"diff", Command::Diff},       {"modules", Command::Modules},
        {"diagnose", Command::Diagnose},
    };
    const auto found =
        std::find_if(std::begin(commands), std::end(commands), [&](const auto& entry) { return name == entry.first; });
    return found == std::end(commands) ? Command::Window : found->second;
}

}  // namespace

Arguments ParseArguments(std::vector<std::string> words)
{
    const TypedArguments typed = ReadArguments(std::move(words));
    Arguments arguments;
    if (typed.help) {
        arguments.command = Command::Help;
        arguments.help = *typed.help;
        return arguments;
    }
    arguments.command = CommandNamed(typed.command);
    arguments.project = FromUtf8(typed.project);
    arguments.isProjectGiven = typed.isProjectGiven;
    if (typed.language)
        arguments.language = ParseLanguage(*typed.language);
    arguments.device = FromUtf8(typed.device);
    if (typed.groups)
        arguments.groups = ParseGroups(*typed.groups);
    arguments.maxVariables = ParseInteger("--max", typed.maxVariables, 0, std::numeric_limits<int>::max());
    for (const std::string& name : typed.list) {
        if (!name.empty())
            arguments.variables.emplace_back(FromUtf8(name));
    }
    if (typed.text)
        arguments.text = FromUtf8(*typed.text);
    if (arguments.command == Command::String)
        arguments.stringId = static_cast<unsigned>(ParseInteger("ID", typed.stringId, 1, 65535));
    if (arguments.command == Command::Restore)
        arguments.saveNumber = ParseInteger("NUMBER", typed.saveNumber, 1, std::numeric_limits<int>::max());
    if (arguments.command == Command::Set)
        TakeAssignments(typed, arguments);
    else
        TakeDevices(typed, arguments);
    arguments.type = FromUtf8(typed.type);
    arguments.fields = typed.fields;
    std::transform(typed.sections.begin(), typed.sections.end(), std::back_inserter(arguments.sections), ParseSection);
    arguments.otherPath = FromUtf8(typed.otherPath);
    if (typed.output)
        arguments.output = FromUtf8(*typed.output);
    arguments.stored = typed.stored;
    arguments.dryRun = typed.dryRun;
    arguments.discard = typed.discard;
    return arguments;
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
