// An entry of the history: the whole project as it was before a save.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "DocumentName.h"

namespace plant {

struct HistoryEntry {
    int number = 0;                      // from 1
    std::string time;                    // of the save, such as "2026-11-21T21:28:04Z"
    std::string cause;                   // "window" or a command's name; UTF-8 without control characters
    std::vector<std::string> documents;  // that the save changed, made or took out

    friend bool operator==(const HistoryEntry&, const HistoryEntry&) = default;
};

struct KeptDocument {
    std::uint64_t size = 0;
    std::uint64_t hash = 0;
    // Last written, in 100 ns since 1970; 0 when a later content may have the same time.
    std::int64_t time = 0;

    friend bool operator==(const KeptDocument&, const KeptDocument&) = default;
};

// What an entry's file says.
struct Manifest {
    HistoryEntry entry;
    std::map<std::string, KeptDocument, NameLess> project;  // every document that there was

    friend bool operator==(const Manifest&, const Manifest&) = default;
};

[[nodiscard]] std::string WriteManifest(const Manifest& manifest);

// Reads a manifest, which may be anybody's. Throws Refusal, naming the file, when it is damaged or names anything but
// documents.
[[nodiscard]] Manifest ReadManifest(std::string_view bytes, const std::wstring& file);

// A time in 100 ns since 1970 as entries have it.
[[nodiscard]] std::string UtcText(std::int64_t time);

}  // namespace plant
