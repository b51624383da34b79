#include "RecoveryFormat.h"

#include <algorithm>
#include <array>

#include "DocumentName.h"
#include "KZUtf8.h"
#include "KZXmlDocument.h"
#include "Sealed.h"
#include "text/Refusal.h"

namespace plant {

namespace {

constexpr std::string_view Kind = "kzrecovery";
constexpr std::size_t RecordLength = 96;
constexpr std::string_view None = "-";
constexpr std::int64_t EndOfYear9999 = 253'402'300'800 * 10'000'000;

[[noreturn]] void RefuseName(const Path& file, std::string_view name)
{
    constexpr std::size_t shown = 255;
    throw Refusal(IDS_PLANT_STRANGE_NAME, {Shown(file), FromUtf8(name.substr(0, shown))});
}

std::string_view Part(std::string_view bytes, std::uint64_t place, std::uint64_t length) noexcept
{
    return bytes.substr(std::min<std::uint64_t>(place, bytes.size()), length);
}

// The record at a place when the state that it stands for is whole.
std::optional<RecoveryRecord> RecordAt(std::string_view bytes, std::uint64_t place)
{
    std::optional<std::string_view> numbers = Unseal(Kind, Part(bytes, place, RecordLength));
    if (!numbers || numbers->size() != std::size_t{4} * 17)
        return std::nullopt;
    std::array<std::uint64_t, 4> values;
    for (std::uint64_t& value : values) {
        const auto number = ParseHash(numbers->substr(0, 16));
        if (!number)
            return std::nullopt;
        value = *number;
        numbers->remove_prefix(17);
    }
    const RecoveryRecord record{values[0], values[1], values[2], values[3]};
    const bool isInside = record.place <= bytes.size() && record.length <= bytes.size() - record.place;
    if (!isInside || HashOf(Part(bytes, record.place, record.length)) != record.hash)
        return std::nullopt;
    return record;
}

// Whether the first store never ended, and so nothing was promised to anybody: there is nothing in the first record's
// place, and in the second's nothing or what no whole record has, a zero byte. All else without a whole state is
// damage.
bool HoldsNothingYet(std::string_view bytes) noexcept
{
    const auto isZero = [](std::string_view part) { return part.find_first_not_of('\0') == std::string_view::npos; };
    const std::string_view second = Part(bytes, RecoverySector, RecordLength);
    constexpr std::uint64_t behind = RecoverySector + RecordLength;
    return isZero(Part(bytes, 0, RecoverySector)) && isZero(Part(bytes, behind, RecoveryData - behind)) &&
           (second.empty() || second.find('\0') != std::string_view::npos);
}

// Takes one document off the front of the data; false when that is damaged.
bool TakeDocument(std::string_view& data, Unsaved& unsaved, const Path& file)
{
    const auto before = TakeUpTo(data, ' ');
    const auto length = TakeUpTo(data, ' ');
    const auto name = TakeUpTo(data, '\n');
    if (!before || !length || !name)
        return false;
    if (!IsDocumentName(*name))
        RefuseName(file, *name);
    const auto hash = ParseHash(*before);
    if (!hash && *before != None)
        return false;
    std::optional<std::string> bytes;
    if (*length != None) {
        const auto size = ParseHash(*length);
        if (!size || *size > KZLargestDocument || *size > data.size())
            return false;
        bytes = data.substr(0, *size);
        data.remove_prefix(*size);
    }
    unsaved.before.emplace(*name, hash);
    return unsaved.documents.emplace(*name, std::move(bytes)).second;
}

std::optional<Unsaved> ReadUnsaved(std::string_view data, const Path& file)
{
    const auto time = TakeNumber(data, '\n');
    if (!time || *time > EndOfYear9999)
        return std::nullopt;
    Unsaved unsaved;
    unsaved.time = static_cast<std::int64_t>(*time);
    while (!data.empty()) {
        if (!TakeDocument(data, unsaved, file))
            return std::nullopt;
    }
    return unsaved;
}

}  // namespace

std::uint64_t PlaceBeside(const RecoveryRecord& state, std::uint64_t length) noexcept
{
    if (length <= state.place - RecoveryData)
        return RecoveryData;
    const std::uint64_t behind = state.place + state.length + RecoverySector - 1;
    return behind - behind % RecoverySector;
}

std::string RecordText(const RecoveryRecord& record)
{
    std::string numbers;
    for (const std::uint64_t number : {record.sequence, record.place, record.length, record.hash})
        numbers.append(HashText(number)).append(1, '\n');
    return Seal(Kind, numbers);
}

std::string UnsavedText(const Unsaved& unsaved, const Path& projectFolder)
{
    std::string text = std::to_string(std::clamp<std::int64_t>(unsaved.time, 0, EndOfYear9999)) + '\n';
    for (const auto& [name, bytes] : unsaved.documents) {
        if (!IsDocumentName(name))
            RefuseName(projectFolder, name);
        const auto before = unsaved.before.find(name);
        const bool wasThere = before != unsaved.before.end() && before->second;
        text.append(wasThere ? HashText(*before->second) : None).append(" ");
        text.append(bytes ? HashText(bytes->size()) : None).append(" ").append(name).append("\n");
        const std::string_view content = bytes ? *bytes : std::string_view();
        if (content.size() > KZLargestDocument || text.size() + content.size() > LargestUnsaved)
            throw Refusal(IDS_PLANT_RECOVERY_TOO_LARGE, {Shown(projectFolder)});
        text.append(content);
    }
    return text;
}

std::optional<Unsaved> ReadRecovery(std::string_view bytes, const Path& file)
{
    std::optional<RecoveryRecord> newest = RecordAt(bytes, PlaceOfRecord(0));
    const std::optional<RecoveryRecord> other = RecordAt(bytes, PlaceOfRecord(1));
    if (!newest || (other && other->sequence > newest->sequence))
        newest = other;
    if (!newest && HoldsNothingYet(bytes))
        return std::nullopt;
    std::optional<Unsaved> unsaved;
    if (newest)
        unsaved = ReadUnsaved(Part(bytes, newest->place, newest->length), file);
    if (!unsaved)
        throw Refusal(IDS_PLANT_DAMAGED, {Shown(file)});
    return unsaved;
}

}  // namespace plant
