// One public call of the module, made again and again, each time with another of its allocations failing.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "DialogKind.h"
#include "EventLog.h"
#include "ZepProject.h"

// What a call leaves behind: the documents, the host's list, and what it answered.
struct Traces {
    std::string configuration;
    std::string device;
    std::vector<std::wstring> names;

    friend bool operator==(const Traces&, const Traces&) = default;
};

struct FaultyCall {
    std::string name;
    std::function<bool(ZepProject&, std::list<KZBasicString>&)> run;
    long shortSamples;  // how many of the allocations fail in the short run, spread over all
    // How the user works meanwhile, as ScriptedUser takes it.
    OptionalSection section{};
    bool confirms = true;
    // Whether a false answer alone tells the caller, who tells the user.
    bool answerTells = false;
};

// Makes the call with each of its allocations failing (in the short run: with a sample). Returns what was wrong, at
// most ten findings; empty when nothing was.
[[nodiscard]] std::vector<std::string> WalkFaults(const FaultyCall& call, EventLog& log);
