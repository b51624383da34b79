// The command line. What it says is checked here, before any document is read or window opened.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "KZQuorvelantaSetup.h"
#include "project/ChosenVariables.h"
#include "project/GroupMask.h"

enum class Command { Window, Devices, Options, Select, Third, Child, String, History, Restore, Recover, Help };

struct Arguments {
    Command command = Command::Window;
    std::filesystem::path project = L".";
    std::optional<KZLanguage> language;  // nothing: the user's
    std::wstring device;
    KZVariableGroups groups = plant::AllGroups();
    int maxVariables = 0;  // 0: no limit
    plant::VariableList variables;
    std::optional<std::wstring> text;
    unsigned stringId = 0;
    int saveNumber = 0;    // of the history's entry to restore
    bool dryRun = false;   // restore: only say what would change
    bool discard = false;  // recover: take away instead of taking over
    std::string help;      // for Command::Help
};

// The arguments without the program's name, in UTF-8. Throws EditorError, naming the argument, when they are wrong.
[[nodiscard]] Arguments ParseArguments(std::vector<std::string> arguments);

// This process's command line.
[[nodiscard]] std::vector<std::string> ProcessArguments();
