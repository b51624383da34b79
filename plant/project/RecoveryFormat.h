// What is in a recovery file: two records in the first two sectors, then the data that they stand for.
//
// States are stored in turn: the new data goes where it overlaps nothing of the state that counts now, then its record
// goes to the place of the older one. Whenever that is cut short, the earlier state is whole. The first state has its
// record in both places, so that a file with nothing in the first place never held a state that anybody was promised.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "Change.h"
#include "Disk.h"

namespace plant {

// What a process had changed and not saved.
struct Unsaved {
    std::int64_t time = 0;  // 100 ns since 1970, from Disk::Now()
    Change documents;
    // Of each of the documents, HashOf what was on disk when it was loaded; nothing: there was no such file.
    std::map<std::string, std::optional<std::uint64_t>> before;

    friend bool operator==(const Unsaved&, const Unsaved&) = default;
};

// A disk writes whole sectors: what is in one may be lost with what is written beside it.
inline constexpr std::uint64_t RecoverySector = 4096;
inline constexpr std::uint64_t RecoveryData = 2 * RecoverySector;
// Four of the largest documents. The data of two states, and the gaps between them, are less than four times that.
inline constexpr std::uint64_t LargestUnsaved = std::uint64_t{256} << 20;
inline constexpr std::uint64_t LargestRecoveryFile = 4 * LargestUnsaved;

// Where a state is in the file.
struct RecoveryRecord {
    std::uint64_t sequence = 0;
    std::uint64_t place = RecoveryData;
    std::uint64_t length = 0;
    std::uint64_t hash = 0;
};

// The place of the record of a state, by its sequence number.
[[nodiscard]] constexpr std::uint64_t PlaceOfRecord(std::uint64_t sequence) noexcept
{
    return sequence % 2 * RecoverySector;
}
// Where there is room for data beside that of another state.
[[nodiscard]] std::uint64_t PlaceBeside(const RecoveryRecord& state, std::uint64_t length) noexcept;

[[nodiscard]] std::string RecordText(const RecoveryRecord& record);
// Throws Refusal when a name is no document's or there is too much, which could not be read back.
[[nodiscard]] std::string UnsavedText(const Unsaved& unsaved, const Path& projectFolder);

// The newest whole state in a file's bytes; nothing when its owner was gone before the first was stored. Throws
// Refusal, naming the file, when it is damaged or names what is no document.
[[nodiscard]] std::optional<Unsaved> ReadRecovery(std::string_view bytes, const Path& file);

}  // namespace plant
