// What processes do that are to be killed: one piece of work after the other, each with a number that its result
// follows from, so that a torn one cannot pass for another.
#pragma once

#include <array>
#include <filesystem>
#include <functional>

namespace crash {

// Tells the test that the piece of work of that number is done.
using Report = std::function<void(long number)>;

// Goes on from the number behind a given one until it is killed. Returns only when it fails.
struct Worker {
    const char* name;
    void (*work)(const std::filesystem::path& place, long last, const Report& report);
};

// Saves documents (SavedContent.h) as one file.
extern const Worker DocumentSaver;
// Stores unsaved changes (StoredChanges.h) in a project's folder.
extern const Worker ChangeStorer;

// Commits changes of several documents (CommittedChanges.h) to a project, with its history.
extern const Worker ChangeCommitter;

inline const std::array AllWorkers{&DocumentSaver, &ChangeStorer, &ChangeCommitter};

// Starts a process with this work, kills it so long after it has begun, and gives the number of the last piece of work
// that it has told of, the given one when there was none. Throws std::runtime_error when it could not be started or has
// ended by itself.
[[nodiscard]] long WorkAndDie(const Worker& worker, const std::filesystem::path& place, long last, int microseconds);

// Time for some pieces of work, also of the longest.
inline constexpr int LongestLife = 40'000;  // microseconds

}  // namespace crash
