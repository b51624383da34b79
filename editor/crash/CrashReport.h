// A small report of a crash, so that somebody can find its cause: versions, the functions that were running and the
// last commands, and nothing of the customer's. It is written by the crashing process itself, with no memory but its
// own.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

// Where the reports are: %LOCALAPPDATA%\KZEditor\crash; empty when the user has no such folder.
[[nodiscard]] std::filesystem::path CrashFolder();

// From now on a fault that nobody handles and an exception that nobody catches leave a report and end the process; so
// does an overflow of this thread's stack, where Windows lets it be handled. Without a folder for it all stays as it
// was. Call it once, on the thread that has the windows.
void ReportCrashes();

// Remembers the id of a command for a report.
void NoteCommand(unsigned id) noexcept;

struct FoundCrash {
    std::filesystem::path file;
    std::string text;  // UTF-8, lines ended by CR LF
};

// The latest report that nobody has seen yet. From then on all count as seen; the ten latest are kept. Nothing when
// there is none, or when it cannot be marked as seen.
[[nodiscard]] std::optional<FoundCrash> TakeNewCrash(const std::filesystem::path& folder);
