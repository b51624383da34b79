// Recovery files as a disk, a kill or a stranger may leave them.
#include <gtest/gtest.h>

#include <functional>

#include "KZXmlDocument.h"
#include "MemoryDisk.h"
#include "Random.h"
#include "RecoveryStates.h"
#include "TemporaryFolder.h"

namespace plant {
namespace {

const Path File = "unsaved changes 1.kzrecovery";

// A file with the states from 1 to the last.
struct StoredStates {
    explicit StoredStates(long last) : file(disk, "")
    {
        for (long number = 1; number <= last; ++number)
            Store(number);
    }
    // What the file was before, and the writes that have made of it what it is now.
    std::string Store(long number)
    {
        std::string before = disk.file;
        disk.writes.clear();
        file.Store(StateOf(number));
        return before;
    }

    kztest::MemoryDisk disk;
    RecoveryFile file;
};

// What a disk may keep of some bytes that were written but not yet flushed.
void ForEachPartOf(const std::string& before, const kztest::WrittenPart& write,
                   const std::function<void(const std::string&)>& check)
{
    const std::string_view bytes = write.bytes;
    const std::string whole = kztest::Overwritten(before, write.place, bytes);
    for (std::size_t cut = 0; cut <= bytes.size(); ++cut) {
        check(kztest::Overwritten(before, write.place, bytes.substr(0, cut)));
        check(kztest::Overwritten(before, write.place + cut, bytes.substr(cut)));
        // The file has its new length already, but what it is to hold has not arrived.
        std::string longer = before;
        longer.resize(whole.size());
        check(kztest::Overwritten(longer, write.place, bytes.substr(0, cut)));
    }
    Random random(write.place + bytes.size());
    for (int round = 0; round < 300; ++round) {
        std::string some = before;
        some.resize(whole.size());
        const std::size_t pieces = 1 + random.Below(8);
        for (std::size_t piece = 0; piece < pieces; ++piece) {
            const std::size_t start = random.Below(bytes.size());
            const std::string_view part = bytes.substr(start, random.Below(bytes.size() - start + 1));
            some.replace(write.place + start, part.size(), part);
        }
        check(some);
    }
}

TEST(CutStore, LeavesTheEarlierStateOrTheNewOne)
{
    StoredStates stored(0);
    for (long number = 1; number <= 8; ++number) {
        const std::optional<Unsaved> earlier = number > 1 ? std::optional(StateOf(number - 1)) : std::nullopt;
        const Unsaved newer = StateOf(number);
        std::string file = stored.Store(number);
        ASSERT_EQ(stored.disk.writes.size(), number == 1 ? 3U : 2U);
        for (const kztest::WrittenPart& write : stored.disk.writes) {
            ForEachPartOf(file, write, [&](const std::string& kept) {
                const std::optional<Unsaved> found = ReadRecovery(kept, File);
                EXPECT_TRUE(found == earlier || found == newer) << "state " << number << ", written at " << write.place;
            });
            file = kztest::Overwritten(file, write.place, write.bytes);
        }
        EXPECT_EQ(ReadRecovery(file, File), newer);
    }
}

TEST(CutStore, LeavesNothingOfTheOtherStateInASectorThatIsWritten)
{
    StoredStates stored(0);
    std::uint64_t start = 0;
    std::uint64_t end = 0;
    for (long number = 1; number <= 8; ++number) {
        stored.Store(number);
        const kztest::WrittenPart& data = stored.disk.writes.front();
        const std::uint64_t behind = data.place + data.bytes.size();
        EXPECT_EQ(data.place % RecoverySector, 0U);
        EXPECT_TRUE(behind <= start || data.place >= end) << "state " << number;
        start = data.place;
        end = (behind + RecoverySector - 1) / RecoverySector * RecoverySector;
    }
}

// The file with one byte changed must not be taken for anything but a state that was stored.
class ChangedByte : public testing::TestWithParam<long> {
protected:
    // Which state is left when a byte at the place is not what it was; nothing: none, it is damaged.
    [[nodiscard]] std::optional<Unsaved> Expected(std::size_t place) const
    {
        const long newest = GetParam();
        const auto& writes = m_stored.disk.writes;
        const bool isInData = place >= writes[0].place && place < writes[0].place + writes[0].bytes.size();
        const bool isInRecord = place >= writes[1].place && place < writes[1].place + writes[1].bytes.size();
        if (newest == 1)  // its record is there twice
            return isInData ? std::nullopt : std::optional(StateOf(1));
        return StateOf(isInData || isInRecord ? newest - 1 : newest);
    }

    void ExpectNoOtherState(const std::string& file, std::size_t place) const
    {
        const std::optional<Unsaved> expected = Expected(place);
        if (expected)
            EXPECT_EQ(ReadRecovery(file, File), expected) << "byte " << place;
        else
            EXPECT_EQ(kztest::RefusalOf([&] { (void)ReadRecovery(file, File); }),
                      (Message{IDS_PLANT_DAMAGED, {Shown(File)}}))
                << "byte " << place;
    }

    StoredStates m_stored{GetParam()};
};

TEST_P(ChangedByte, LeavesAStateThatWasStoredOrIsDamage)
{
    std::string file = m_stored.disk.file;
    for (std::size_t place = 0; place < file.size(); ++place) {
        const char byte = file[place];
        const bool isInRecord = place % RecoverySector < 100 && place < RecoveryData;
        for (int change = 1; change < 256; change = isInRecord ? change + 1 : change * 2) {
            file[place] = static_cast<char>(byte ^ change);
            ExpectNoOtherState(file, place);
        }
        file[place] = byte;
    }
}

TEST_P(ChangedByte, AtTheEndThatIsMissingLeavesAStateThatWasStoredOrIsDamage)
{
    const std::string& file = m_stored.disk.file;
    for (std::size_t length = 1; length < file.size(); ++length) {
        std::optional<Unsaved> found;
        try {
            found = ReadRecovery(std::string_view(file).substr(0, length), File);
        } catch (const Refusal& refusal) {
            EXPECT_EQ(refusal.What(), (Message{IDS_PLANT_DAMAGED, {Shown(File)}}));
            continue;
        }
        ASSERT_TRUE(found) << "cut to " << length << " it must not pass for empty";
        EXPECT_TRUE(found == StateOf(GetParam()) || found == StateOf(GetParam() - 1)) << "cut to " << length;
    }
}

INSTANTIATE_TEST_SUITE_P(Of, ChangedByte, testing::Values(1, 2, 3, 6),
                         [](const auto& states) { return std::to_string(states.param) + "States"; });

// Files that are in themselves as they should be, made by somebody who means harm.
std::string Forged(const RecoveryRecord& record, std::string_view data)
{
    std::string file = kztest::Overwritten({}, RecoveryData, data);
    return kztest::Overwritten(file, PlaceOfRecord(record.sequence), RecordText(record));
}

std::string Forged(std::string_view data)
{
    return Forged({1, RecoveryData, data.size(), HashOf(data)}, data);
}

unsigned RefusalOf(const std::string& file)
{
    const Message message = kztest::RefusalOf([&] { (void)ReadRecovery(file, File); });
    EXPECT_EQ(message.arguments.at(0), Shown(File));
    return message.text;
}

TEST(ForgedRecovery, IsRefusedWhenItsDataIsNotInTheFile)
{
    const std::string data = "1\n";
    const std::uint64_t most = ~std::uint64_t{};
    const std::uint64_t size = RecoveryData + data.size();
    EXPECT_TRUE(ReadRecovery(Forged({1, RecoveryData, data.size(), HashOf(data)}, data), File));
    for (const std::uint64_t place : {size - 1, size, size + 1, most - 1, most}) {
        EXPECT_EQ(RefusalOf(Forged({1, place, data.size(), HashOf(data)}, data)), unsigned{IDS_PLANT_DAMAGED});
        EXPECT_EQ(RefusalOf(Forged({1, place, most, HashOf(data)}, data)), unsigned{IDS_PLANT_DAMAGED});
    }
    for (const std::uint64_t length : {data.size() + 1, most - size, most - RecoveryData, most})
        EXPECT_EQ(RefusalOf(Forged({1, RecoveryData, length, HashOf(data)}, data)), unsigned{IDS_PLANT_DAMAGED});
}

TEST(ForgedRecovery, CountsNoNewerRecordOfDataBehindTheEnd)
{
    const std::string data = "1\n";
    const std::string file = Forged(data);
    const RecoveryRecord behind{2, file.size() + 1, 1, HashOf("")};
    EXPECT_TRUE(ReadRecovery(kztest::Overwritten(file, PlaceOfRecord(2), RecordText(behind)), File));
}

TEST(ForgedRecovery, IsRefusedWhenItNamesWhatIsNoDocument)
{
    for (const std::string name : {"../main.xml", "devices/../main.xml", "/etc/passwd", "C:\\main.xml", "project.lock",
                                   "devices/a/b.xml", "", "devices/x.xml:stream"}) {
        const std::string file = Forged("1\n- - " + name + "\n");
        EXPECT_EQ(RefusalOf(file), unsigned{IDS_PLANT_STRANGE_NAME}) << name;
        EXPECT_EQ(kztest::RefusalOf([&] { (void)ReadRecovery(file, File); }).arguments.at(1),
                  std::wstring(name.begin(), name.end()));
    }
    const Message message =
        kztest::RefusalOf([] { (void)ReadRecovery(Forged("1\n- - " + std::string(9999, 'x') + "\n"), File); });
    EXPECT_EQ(message.arguments.at(1), std::wstring(255, L'x')) << "nobody reads more";
}

TEST(ForgedRecovery, IsRefusedWhenItsDataIsNotAsItIsWritten)
{
    const std::string one = "0000000000000001";
    const std::string tooLarge = HashText(KZLargestDocument + 1);
    for (const std::string& data : std::initializer_list<std::string>{std::string(""),
                                                                      std::string("1"),
                                                                      std::string("\n"),
                                                                      "-1\n",
                                                                      "1 \n",
                                                                      "2534023008000000001\n",
                                                                      "99999999999999999999\n",
                                                                      "1\n\n",
                                                                      "1\n- - main.xml",
                                                                      "1\n-  main.xml\n",
                                                                      "1\n- -",
                                                                      "1\n-",
                                                                      "1\n- 1 main.xml\nx",
                                                                      "1\n1 - main.xml\n",
                                                                      "1\n- " + one + " main.xml\n",
                                                                      "1\n- " + one + " main.xml\nxy",
                                                                      "1\n- ffffffffffffffff main.xml\nx",
                                                                      "1\n- - main.xml\n- - main.xml\n",
                                                                      "1\nx - main.xml\n",
                                                                      "1\n- " + tooLarge + " main.xml\n" +
                                                                          std::string(KZLargestDocument + 1, 'x')})
        EXPECT_EQ(RefusalOf(Forged(data)), unsigned{IDS_PLANT_DAMAGED}) << data.substr(0, 60);
    EXPECT_TRUE(ReadRecovery(Forged("2534023008000000000\n- " + one + " main.xml\nx"), File));
}

TEST(ForgedRecovery, IsNoFileThatHoldsNothingYetWhenAnythingIsInItsHead)
{
    const std::string nothingYet(RecoveryData + 10, '\0');
    EXPECT_EQ(ReadRecovery(nothingYet, File), std::nullopt);
    const std::uint64_t record = RecordText({}).size();
    // What is cut short in the second record's place was never whole.
    EXPECT_EQ(ReadRecovery(kztest::Overwritten(nothingYet, RecoverySector, std::string(record - 1, 'x')), File),
              std::nullopt);
    EXPECT_EQ(RefusalOf(kztest::Overwritten(nothingYet, RecoverySector, std::string(record, 'x'))),
              unsigned{IDS_PLANT_DAMAGED});
    for (const std::uint64_t place :
         {std::uint64_t{0}, record, RecoverySector - 1, RecoverySector + record, RecoveryData - 1})
        EXPECT_EQ(RefusalOf(kztest::Overwritten(nothingYet, place, "x")), unsigned{IDS_PLANT_DAMAGED}) << place;
}

TEST(ForgedRecovery, IsNotReadWhenItIsTooLarge)
{
    const kztest::TemporaryFolder folder;
    const Path file = folder.Write(File, StoredStates(1).disk.file);
    EXPECT_EQ(FindRecoveries(RealDisk(), folder.Path()).found.size(), 1U);

    // A disk on which it is that large.
    class LargeDisk : public kztest::FaultyDisk {
    public:
        using FaultyDisk::FaultyDisk;
        std::optional<KZFileEntry> Find(const Path& path) override
        {
            std::optional<KZFileEntry> entry = FaultyDisk::Find(path);
            entry->size = LargestRecoveryFile + 1;
            return entry;
        }
    };
    LargeDisk large(RealDisk());
    const Recoveries all = FindRecoveries(large, folder.Path());
    EXPECT_TRUE(all.found.empty());
    ASSERT_EQ(all.refused.size(), 1U);
    EXPECT_EQ(all.refused[0], (Message{IDS_PLANT_DAMAGED, {Shown(file)}}));
    EXPECT_EQ(folder.Count(), 1U);
}

}  // namespace
}  // namespace plant
