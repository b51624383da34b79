// What is unsaved in a project, line by line, and taking back some of it.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "fields/Field.h"
#include "project/Project.h"

namespace plant {

struct ReviewLine {
    enum class What {
        Value,        // of the field, before and after as FieldValue.h has them
        Added,        // the device
        Removed,      // the device
        Name,         // before and after are texts
        Number,       // before and after are texts
        Description,  // before and after are texts
        Variables,    // the chosen ones: before and after are their names, with a line end between them
        Document,     // of the device, in what no field shows
        Settings,     // of the device in the main configuration document, in what no field shows
        Other,        // of the main configuration document, in what belongs to no device
    };
    What what;
    KZBasicString driverId;  // empty for Other
    std::string device;      // its name as it is now or, of a removed one, as it was; empty for Other
    const Field* field = nullptr;
    std::string before = {};
    std::string after = {};

    friend bool operator==(const ReviewLine&, const ReviewLine&) = default;
};

// What differs between the project as it is shown and its files as they were last read or written: by device in the
// order of the list, the removed ones behind them, Other last. Throws Refusal when a file cannot be read.
[[nodiscard]] std::vector<ReviewLine> Review(Project& project);

// Brings the lines back as they are saved; meant to be called inside UndoList::Do with the driverIds of the lines. An
// added device goes whole, whatever other lines of it are given. Other cannot be taken back alone. Throws Refusal when
// a file cannot be read, when a name or id that would come back is used by now, and std::bad_alloc; nothing is changed
// then.
void TakeBack(Project& project, std::span<const ReviewLine> lines);

// Of how many settings of how many devices the lines are.
struct ReviewCount {
    std::size_t lines = 0;
    std::size_t devices = 0;
};
[[nodiscard]] ReviewCount CountOf(std::span<const ReviewLine> lines);

}  // namespace plant
