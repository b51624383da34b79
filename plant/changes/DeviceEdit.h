// Adding, duplicating, renaming and removing devices. Nothing is saved by it: all are unsaved changes of the project,
// to be made inside UndoList::Do, which takes back what a failure has left half made.
#pragma once

#include <set>
#include <span>
#include <string>
#include <vector>

#include "project/Project.h"

namespace plant {

// What a device is called, as it was typed.
struct DeviceNaming {
    std::wstring name;
    std::wstring number;  // digits; empty stands for 0, which any number of devices may have
    std::wstring description;

    friend bool operator==(const DeviceNaming&, const DeviceNaming&) = default;
};

// A new device, as it was typed.
struct NewDevice : DeviceNaming {
    std::wstring typeName;
    std::wstring groups = L"0x74";
    std::wstring transformerRatio;  // a whole number
};

enum class DeviceEntry { Name, Number, Description, Type, Groups, TransformerRatio };

// An entry that is refused, and why.
struct EntryRefusal {
    std::size_t row;  // of several devices, from 0
    DeviceEntry entry;
    Message reason;

    friend bool operator==(const EntryRefusal&, const EntryRefusal&) = default;
};
using EntryRefusals = std::vector<EntryRefusal>;

// How the project's list calls a device.
[[nodiscard]] DeviceNaming NamingOf(const KZDeviceIdentity& device);

// What is refused, in the order of rows and entries; at most one reason for an entry. A name or number that another
// device has, or an earlier row, is refused.
[[nodiscard]] EntryRefusals JudgeAdd(const Project& project, const NewDevice& device);
[[nodiscard]] EntryRefusals JudgeDuplicates(const Project& project, std::span<const DeviceNaming> names);
// A name or number that the device has already is accepted as it is.
[[nodiscard]] EntryRefusals JudgeRename(const Project& project, std::size_t device, const DeviceNaming& naming);

// Names for several devices: in each the first run of "#" is the device's number, with leading zeros where it has
// fewer digits than the run. Without "#" the number is appended when there is more than one device.
//   first  the number of the first one; empty: the lowest number from 1 from which on as many are free
[[nodiscard]] std::vector<DeviceNaming> NamesFromPattern(const Project& project, const std::wstring& pattern,
                                                         const std::wstring& first, std::size_t count,
                                                         const std::wstring& description);

// Ids for new devices, which name their documents: made from the devices' names, used by no device, setup or document,
// not even by a document on disk that belongs to no device.
class FreeDriverIds {
public:
    // Throws Refusal when the folder cannot be read.
    explicit FreeDriverIds(Project& project);
    // Each one once.
    [[nodiscard]] KZBasicString Take(std::wstring_view name);

private:
    bool TakeDocument(std::string name);
    std::set<std::string> m_documents;  // in small letters
};

// These require that nothing is refused. They throw Refusal when a document cannot be read, and std::bad_alloc.

// Appends a device, with a document that holds its transformer ratio. Returns its driverId.
KZBasicString AddDevice(Project& project, const NewDevice& device);

// Appends devices that are set up as another one is: working mode, filters, minimum current, number of units,
// transformer ratio, units, limits and, under the new names, the chosen variables; type and groups too. What an
// instrument has told of itself is not copied. Returns their driverIds.
std::vector<KZBasicString> DuplicateDevice(Project& project, std::size_t from, std::span<const DeviceNaming> names);

// The chosen variables get the new name in front; driverId and document stay.
void RenameDevice(Project& project, std::size_t device, const DeviceNaming& naming);

// Takes out devices, their setups and chosen variables, and their documents with the next save.
void RemoveDevices(Project& project, std::span<const std::size_t> devices);

}  // namespace plant
