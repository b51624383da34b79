// A project in a folder of its own, whose saves go through the history.
#pragma once

#include <chrono>
#include <map>
#include <string>

#include "TemporaryFolder.h"
#include "project/Commit.h"
#include "project/DocumentFiles.h"
#include "project/History.h"

namespace kztest {

// The documents of a project with their bytes.
using State = std::map<std::string, std::string>;

class HistoryProject {
public:
    explicit HistoryProject(plant::HistoryLimits limits = {}) : m_limits(limits) {}
    HistoryProject(const HistoryProject& other) : m_limits(other.m_limits)
    {
        for (const auto& [name, bytes] : other.Tree()) {
            if (name.ends_with('/'))
                std::filesystem::create_directory(FileOf(name.substr(0, name.size() - 1)));
            else
                Write(name, bytes);
        }
    }

    [[nodiscard]] const plant::Path& Path() const noexcept { return m_folder.Path(); }
    [[nodiscard]] plant::Path FileOf(std::string_view name) const { return plant::FileOf(Path(), name); }
    [[nodiscard]] bool Has(std::string_view name) const { return std::filesystem::exists(FileOf(name)); }
    [[nodiscard]] std::string BytesOf(std::string_view name) const { return kztest::BytesOf(FileOf(name)); }
    void Write(std::string_view name, std::string_view bytes) const { m_folder.Write(FileOf(name), bytes); }
    void Remove(std::string_view name) const { std::filesystem::remove(FileOf(name)); }
    [[nodiscard]] plant::History History(plant::Disk& disk = plant::RealDisk()) const
    {
        return plant::History(disk, Path(), m_limits);
    }

    // Makes a document look as if it had been written that long ago.
    void Age(std::string_view name, std::chrono::milliseconds age) const
    {
        const plant::Path file = FileOf(name);
        std::filesystem::last_write_time(file, std::filesystem::file_time_type::clock::now() - age);
    }

    [[nodiscard]] State Now() const
    {
        State state;
        for (const auto& [name, file] : plant::DocumentFilesIn(plant::RealDisk(), Path()))
            state.emplace(name, BytesOf(name));
        return state;
    }

    // Every file and folder below the project, or below a folder of it, folders with a name that ends in "/".
    [[nodiscard]] State Tree(std::string_view below = "") const
    {
        State tree;
        const plant::Path folder = FileOf(below);
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
            const std::string name = entry.path().lexically_relative(folder).generic_string();
            if (entry.is_directory())
                tree.emplace(name + '/', "");
            else
                tree.emplace(name, kztest::BytesOf(entry.path()));
        }
        return tree;
    }

    // Saves documents as the plant does and returns the number of the entry.
    int Save(plant::Change change, plant::Disk& disk = plant::RealDisk()) const
    {
        const plant::ProjectLock lock(plant::RealDisk(), Path());
        plant::History history = History(disk);
        const plant::History::NewEntry entry = history.Keep("window", change);
        change.emplace(entry.name, entry.bytes);
        plant::Commit(disk, Path(), lock, change);
        history.Prune();
        return entry.number;
    }

    // The project as a change makes it.
    [[nodiscard]] State After(const plant::Change& change) const
    {
        State state = Now();
        for (const auto& [name, bytes] : change) {
            state.erase(name);
            if (bytes)
                state.emplace(name, *bytes);
        }
        return state;
    }
    // The project as it was before the save of that number.
    [[nodiscard]] State Before(int number) const { return After(History().Restoring(number)); }

private:
    TemporaryFolder m_folder;
    plant::HistoryLimits m_limits;
};

}  // namespace kztest
