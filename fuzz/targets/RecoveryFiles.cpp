// The input is a recovery file without its first two sectors, behind a line of numbers from which these are made: the
// sequence number, place and length of each of two records. Their hashes are right, so that no input is refused for
// them. A record that lacks a number is left out; without any number there is one for all of the data.
#include <optional>
#include <string>

#include "Fuzzing.h"
#include "KZXmlDocument.h"
#include "project/DocumentName.h"
#include "project/RecoveryFormat.h"
#include "project/Sealed.h"
#include "text/Refusal.h"

namespace {

using fuzzing::Require;

const plant::Path Name = "unsaved changes 1.kzrecovery";

// What was read, and whether it was refused.
struct Outcome {
    std::optional<plant::Unsaved> unsaved;
    bool isRefused = false;

    friend bool operator==(const Outcome&, const Outcome&) = default;
};

Outcome Read(const std::string& file)
{
    try {
        return {plant::ReadRecovery(file, Name)};
    } catch (const plant::Refusal& refusal) {
        const unsigned text = refusal.What().text;
        Require(text == IDS_PLANT_DAMAGED || text == IDS_PLANT_STRANGE_NAME, "it is refused as damaged or for a name");
        return {std::nullopt, true};
    }
}

// The first two sectors with nothing in them, then the data.
std::string FileOf(std::string_view data)
{
    return std::string(plant::RecoveryData, '\0').append(data);
}

void Put(std::string& file, std::uint64_t place, const plant::RecoveryRecord& record)
{
    const std::string text = plant::RecordText(record);
    file.replace(place, text.size(), text);
}

std::string FileWithAll(std::string_view data)
{
    std::string file = FileOf(data);
    Put(file, 0, {1, plant::RecoveryData, data.size(), plant::HashOf(data)});
    return file;
}

// The data that a record stands for, when it is in the file.
std::optional<std::string> DataOf(const std::string& file, const plant::RecoveryRecord& record)
{
    if (record.place > file.size() || record.length > file.size() - record.place)
        return std::nullopt;
    return file.substr(record.place, record.length);
}

std::optional<plant::RecoveryRecord> TakeRecord(std::string_view& line)
{
    const auto sequence = plant::TakeNumber(line, ' ');
    const auto place = plant::TakeNumber(line, ' ');
    const auto length = plant::TakeNumber(line, ' ');
    if (!sequence || !place || !length)
        return std::nullopt;
    return plant::RecoveryRecord{*sequence, *place, *length, 0};
}

void CheckRecords(std::string_view line, std::string_view data)
{
    std::string file = FileOf(data);
    const std::optional<plant::RecoveryRecord> records[] = {TakeRecord(line), TakeRecord(line)};
    const plant::RecoveryRecord* newest = nullptr;
    std::string newestData;
    std::uint64_t place = 0;
    for (const auto& record : records) {
        // Data that lies in the head would change with the records.
        if (!record || record->place < plant::RecoveryData)
            return;
        plant::RecoveryRecord whole = *record;
        if (const auto found = DataOf(file, *record)) {
            whole.hash = plant::HashOf(*found);
            if (!newest || record->sequence > newest->sequence) {
                newest = &*record;
                newestData = *found;
            }
        }
        Put(file, place, whole);
        place += plant::RecoverySector;
    }
    const Outcome expected = newest ? Read(FileWithAll(newestData)) : Outcome{std::nullopt, true};
    Require(Read(file) == expected, "the newest state that is whole counts");
}

void CheckState(const plant::Unsaved& unsaved)
{
    Require(unsaved.before.size() == unsaved.documents.size(), "of each document it is known what was there before");
    for (const auto& [name, bytes] : unsaved.documents) {
        Require(plant::IsDocumentName(name), "it names documents only");
        Require(!bytes || bytes->size() <= KZLargestDocument, "no document is too large");
        Require(unsaved.before.contains(name), "of each document it is known what was there before");
    }
    const Outcome again = Read(FileWithAll(plant::UnsavedText(unsaved, "")));
    Require(again.unsaved == unsaved, "what was read can be stored and read again");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzzing::Input input(data, size);
    const std::string numbers = std::string(input.TakeLine()) + ' ';
    const Outcome none = Read(FileOf(input.Rest()));
    Require(!none.unsaved && !none.isRefused, "without records there is nothing yet");
    if (const Outcome all = Read(FileWithAll(input.Rest())); all.unsaved)
        CheckState(*all.unsaved);
    CheckRecords(numbers, input.Rest());
    return 0;
}
