// Which commands and options there are, and what was typed for each. What it means is for Arguments.h.
#pragma once

#include <optional>
#include <string>
#include <vector>

struct TypedArguments {
    std::string command;              // empty: none was typed
    std::optional<std::string> help;  // the help text, when it was asked for
    std::string project = ".";
    bool isProjectGiven = false;
    std::optional<std::string> language;
    std::string device;
    std::optional<std::string> groups;
    std::string maxVariables = "0";
    std::vector<std::string> list;
    std::optional<std::string> text;
    std::string stringId;
    std::string saveNumber;
    std::vector<std::string> devices;  // with "set", what is to be set stands behind them
    std::string type = "ZEP";
    std::vector<std::string> fields;
    std::vector<std::string> sections;
    std::string otherPath;  // of the table to import, of the project to compare with
    std::optional<std::string> output;
    bool stored = false;
    bool dryRun = false;
    bool discard = false;
};

// The arguments without the program's name, in UTF-8. Throws EditorError when one is unknown, missing or too many.
[[nodiscard]] TypedArguments ReadArguments(std::vector<std::string> arguments);
