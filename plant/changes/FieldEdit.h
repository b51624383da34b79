// Values that somebody wants many devices to have: judged by the rules of the devices' own dialogs, and saved together
// or not at all.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "Finding.h"
#include "fields/DeviceRecords.h"
#include "fields/Field.h"
#include "project/Project.h"

namespace plant {

struct Assignment {
    const Field* field;
    std::string value;
};

struct FieldChange {
    std::size_t device;  // its place in the project's list
    const Field* field;
    std::string before;
    std::string after;

    friend bool operator==(const FieldChange&, const FieldChange&) = default;
};

class FieldEdit {
public:
    // What to make of a value that the device has already but that could not be set, since it can only be read or is
    // empty: refuse it, or leave it be.
    enum class Unsettable { Refused, MayStay };

    explicit FieldEdit(Project& project, Unsettable same = Unsettable::Refused) : m_project(project), m_same(same) {}

    // Wants a device, one with a table and not added before, to have these values of its table. Any other value
    // that it has already is no change, whether it would be accepted or not. A changed limit is judged together with
    // the other limits of its variable. Throws Refusal when the device's document is needed and cannot be read.
    void Add(std::size_t device, std::span<const Assignment> values);

    // What differs from what the documents hold, in the order in which it was added.
    [[nodiscard]] const std::vector<FieldChange>& Changes() const noexcept { return m_changes; }
    // What is refused, in the same order. The reasons are in the words of the devices' dialogs where those judge it.
    [[nodiscard]] const std::vector<Finding>& Findings() const noexcept { return m_findings; }

    // Writes all changes, and what else is unsaved in the project, in one commit; only without findings. The cause is
    // for the history. What no change names stays byte for byte. Throws Refusal; the files are then as they were, and
    // the changes are unsaved ones of the project.
    Project::Outcome Save(const std::string& cause);

    // Makes unsaved changes of the project of them; only without findings. Throws Refusal when a document cannot be
    // read, and std::bad_alloc; to be called inside UndoList::Do, which takes back what a failure has left half made.
    void Keep();

private:
    // The changes of one device, a part of all.
    struct DeviceEdit {
        std::size_t device;
        std::size_t first;
        std::size_t count;
    };

    void Want(const Assignment& assignment, std::size_t device);
    void JudgeLimits(std::size_t device, std::size_t first);
    void JudgeVariable(std::size_t device, std::size_t part, std::size_t first);
    void Refuse(std::size_t device, const std::string& key, Message reason);
    [[nodiscard]] Change ChangeAll(bool& isMainChanged);
    [[nodiscard]] bool ChangeMain(const DeviceEdit& edit);
    void ChangeDocument(const DeviceEdit& edit, Change& documents);

    Project& m_project;
    Unsettable m_same;
    std::optional<DeviceRecords> m_records;  // of the device that is being added
    std::vector<FieldChange> m_changes;
    std::vector<double> m_numbers;  // what each change writes
    std::vector<DeviceEdit> m_edits;
    std::vector<Finding> m_findings;
};

}  // namespace plant
