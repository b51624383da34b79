// The changes that a worker commits: which documents they change, and to what, follows from their number.
#pragma once

#include <map>
#include <string>

#include "project/Change.h"
#include "project/DocumentFiles.h"
#include "project/History.h"

inline constexpr plant::HistoryLimits CommittedHistory{5, 500'000};

using Documents = std::map<std::string, std::string>;

// The change of that number to a project with these documents: 1 to 50 of them get another content, go or come.
[[nodiscard]] inline plant::Change CommittedChange(long number, const Documents& before)
{
    constexpr long most = 50;
    constexpr long all = 53;  // a prime, so that a step of 3 meets none twice
    plant::Change change;
    for (long step = 0; step < 1 + number * 31 % most; ++step) {
        const long which = (number * 7 + step * 3) % all;
        const std::string name =
            which == 0 ? std::string(plant::MainDocument) : "devices/zep-" + std::to_string(which) + ".xml";
        if (which != 0 && (number + which) % 11 == 0 && before.contains(name))
            change[name] = std::nullopt;
        else
            change[name] = "<change number=\"" + std::to_string(number) + "\">" +
                           std::string(static_cast<std::size_t>(number * which % 3000), 'x') + "</change>";
    }
    return change;
}

inline void Apply(const plant::Change& change, Documents& documents)
{
    for (const auto& [name, bytes] : change) {
        if (bytes)
            documents[name] = *bytes;
        else
            documents.erase(name);
    }
}

// The project's documents as they are on the disk.
[[nodiscard]] inline Documents DocumentsIn(plant::Disk& disk, const plant::Path& project)
{
    Documents documents;
    for (const auto& [name, file] : plant::DocumentFilesIn(disk, project))
        documents[name] = disk.Read(plant::FileOf(project, name)).value();
    return documents;
}
