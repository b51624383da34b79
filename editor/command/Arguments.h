// The command line. What it says is checked here, before any document is read or window opened.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "KZQuorvelantaSetup.h"
#include "fields/Field.h"
#include "project/ChosenVariables.h"
#include "project/GroupMask.h"

enum class Command {
    Window,
    Devices,
    Options,
    Select,
    Third,
    Child,
    String,
    History,
    Restore,
    Recover,
    Fields,
    Get,
    Set,
    Copy,
    Check,
    Export,
    Import,
    Diff,
    Modules,
    Diagnose,
    Help
};

struct Arguments {
    Command command = Command::Window;
    std::filesystem::path project = L".";
    bool isProjectGiven = false;
    std::optional<KZLanguage> language;  // nothing: the user's
    std::wstring device;                 // copy: the one to copy from
    KZVariableGroups groups = plant::AllGroups();
    int maxVariables = 0;  // 0: no limit
    plant::VariableList variables;
    std::optional<std::wstring> text;
    unsigned stringId = 0;
    int saveNumber = 0;                 // of the history's entry to restore
    std::vector<std::wstring> devices;  // names or driverIds of get, set, copy, check; none: all
    struct Assignment {
        std::string key;
        std::string value;
    };
    std::vector<Assignment> assignments;        // of set
    std::wstring type;                          // of the devices whose fields are listed
    std::vector<std::string> fields;            // keys; none: all
    std::vector<plant::FieldSection> sections;  // of copy; none: all
    std::filesystem::path otherPath;            // import: the table, diff: the other project's folder
    std::optional<std::filesystem::path> output;
    bool stored = false;   // get: without defaults
    bool dryRun = false;   // set, copy, import, restore: only say what would change
    bool discard = false;  // recover: take away instead of taking over
    std::string help;      // for Command::Help
};

// The command line without the program's name, in UTF-8. Throws EditorError, naming the argument, when they are wrong.
[[nodiscard]] Arguments ParseArguments(std::vector<std::string> words);

// This process's command line.
[[nodiscard]] std::vector<std::string> ProcessArguments();
