#include "project/HistoryEntry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ParameterNames.h"
#include "RefusalOf.h"
#include "project/Sealed.h"

namespace {

using kztest::RefusalOf;
using plant::Manifest;
using plant::ReadManifest;
using testing::ElementsAre;

const std::wstring File = L"the file";

Manifest Example()
{
    Manifest manifest{{12, "2026-11-21T21:28:04Z", "options", {"devices/a.xml", "main.xml"}}, {}};
    manifest.project.emplace("main.xml", plant::KeptDocument{1234, 0xFEDCBA9876543210, 17637016840000000});
    manifest.project.emplace("devices/Z\u00FCrich 1.xml", plant::KeptDocument{0, 1, 0});
    return manifest;
}

constexpr std::string_view ExampleBody = "12\t2026-11-21T21:28:04Z\toptions\n"
                                         "devices/a.xml\n"
                                         "main.xml\n"
                                         "\n"
                                         "0\t0\t0000000000000001\tdevices/Z\u00FCrich 1.xml\n"
                                         "1234\t17637016840000000\tfedcba9876543210\tmain.xml\n";

TEST(HistoryEntry, IsWrittenAsLines)
{
    EXPECT_EQ(plant::WriteManifest(Example()), plant::Seal("KZHistory1", ExampleBody));
    EXPECT_EQ(ReadManifest(plant::WriteManifest(Example()), File), Example());
}

TEST(HistoryEntry, MayBeOfAProjectWithoutDocuments)
{
    const Manifest manifest{{1, "2026-11-21T21:28:04Z", "", {}}, {}};
    EXPECT_EQ(ReadManifest(plant::WriteManifest(manifest), File), manifest);
}

TEST(HistoryEntry, IsRefusedWhenAnyByteIsAnother)
{
    const std::string bytes = plant::WriteManifest(Example());
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        for (const char change : {'\x01', '\x20', '\x80'}) {
            std::string damaged = bytes;
            damaged[at] = static_cast<char>(damaged[at] ^ change);
            EXPECT_EQ(RefusalOf([&] { return ReadManifest(damaged, File); }).text, IDS_PLANT_DAMAGED) << at;
        }
    }
}

TEST(HistoryEntry, IsRefusedWhenAnythingIsCutOffOrAppended)
{
    const std::string bytes = plant::WriteManifest(Example());
    for (std::size_t length = 0; length < bytes.size(); ++length)
        EXPECT_EQ(RefusalOf([&] { return ReadManifest(bytes.substr(0, length), File); }).text, IDS_PLANT_DAMAGED);
    EXPECT_EQ(RefusalOf([&] { return ReadManifest(bytes + '\n', File); }).text, IDS_PLANT_DAMAGED);
}

using StrangeBody = kztest::Named<std::string>;

class StrangeHistoryEntry : public testing::TestWithParam<StrangeBody> {};

TEST_P(StrangeHistoryEntry, IsRefusedThoughItsSealIsWhole)
{
    const plant::Message refusal =
        RefusalOf([] { return ReadManifest(plant::Seal("KZHistory1", GetParam().value), File); });
    EXPECT_EQ(refusal.text, IDS_PLANT_DAMAGED);
    EXPECT_THAT(refusal.arguments, ElementsAre(File));
}

const std::string Start = "12\t2026-11-21T21:28:04Z\tx\n";
const std::string LineStart = "1\t0\t0000000000000001\t";
const std::string Line = LineStart + "main.xml\n";
INSTANTIATE_TEST_SUITE_P(
    Bodies, StrangeHistoryEntry,
    testing::Values(StrangeBody{"Empty", ""}, StrangeBody{"NoNumber", "\t2026-11-21T21:28:04Z\tx\n\n"},
                    StrangeBody{"NegativeNumber", "-1\t2026-11-21T21:28:04Z\tx\n\n"},
                    StrangeBody{"HugeNumber", "2147483648\t2026-11-21T21:28:04Z\tx\n\n"},
                    StrangeBody{"NoTime", "1\t\tx\n\n"}, StrangeBody{"StrangeTime", "1\t2026-11-21 21:28:04Z\tx\n\n"},
                    StrangeBody{"LongTime", "1\t2026-11-21T21:28:04Z0\tx\n\n"},
                    StrangeBody{"TabInCause", "1\t2026-11-21T21:28:04Z\tx\ty\n\n"},
                    StrangeBody{"DeleteInCause", "1\t2026-11-21T21:28:04Z\t\x7F\n\n"},
                    StrangeBody{"NoEmptyLine", Start + "main.xml\n"}, StrangeBody{"NothingMore", Start},
                    StrangeBody{"NoSize", Start + "\n\t0\t0000000000000001\tmain.xml\n"},
                    StrangeBody{"HugeSize", Start + "\n18446744073709551616\t0\t0000000000000001\tmain.xml\n"},
                    StrangeBody{"HugeTime", Start + "\n1\t9223372036854775808\t0000000000000001\tmain.xml\n"},
                    StrangeBody{"ShortHash", Start + "\n1\t0\t01\tmain.xml\n"},
                    StrangeBody{"NoLineEnd", Start + "\n" + Line.substr(0, Line.size() - 1)},
                    StrangeBody{"Twice", Start + "\n" + Line + Line},
                    StrangeBody{"LeadingZero", "012\t2026-11-21T21:28:04Z\tx\n\n"},
                    StrangeBody{"LeadingZeroOfASize", Start + "\n01\t0\t0000000000000001\tmain.xml\n"},
                    StrangeBody{"OtherOrder", Start + "\n" + Line + LineStart + "devices/x.xml\n"}),
    kztest::ByName);

class StrangeNameInHistoryEntry : public testing::TestWithParam<StrangeBody> {};

TEST_P(StrangeNameInHistoryEntry, IsRefusedAmongTheChangedAndTheKept)
{
    const std::string name = GetParam().value;
    for (const std::string& body : {Start + name + "\n\n", Start + "\n" + LineStart + name + "\n"}) {
        const plant::Message refusal = RefusalOf([&] { return ReadManifest(plant::Seal("KZHistory1", body), File); });
        EXPECT_EQ(refusal.text, IDS_PLANT_STRANGE_NAME);
        EXPECT_THAT(refusal.arguments, ElementsAre(File, std::wstring(name.begin(), name.end())));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Names, StrangeNameInHistoryEntry,
    testing::Values(StrangeBody{"Above", "../x.xml"}, StrangeBody{"AboveDevices", "devices/../x.xml"},
                    StrangeBody{"FromTheRoot", "/x.xml"}, StrangeBody{"OfADrive", "C:\\x.xml"},
                    StrangeBody{"Backslash", "devices\\x.xml"}, StrangeBody{"Deeper", "devices/x/y.xml"},
                    StrangeBody{"Stream", "devices/x:y.xml"}, StrangeBody{"OtherFile", "other.xml"},
                    StrangeBody{"OtherKind", "devices/x.txt"}, StrangeBody{"Entry", "history/000001/entry"},
                    StrangeBody{"Lock", "project.lock"}),
    kztest::ByName);

TEST(HistoryTime, IsUtcToTheSecond)
{
    EXPECT_EQ(plant::UtcText(0), "1970-01-01T00:00:00Z");
    EXPECT_EQ(plant::UtcText(17'952'964'839'999'999), "2026-11-21T21:28:03Z");
    EXPECT_EQ(plant::UtcText(17'952'964'840'000'000), "2026-11-21T21:28:04Z");
    EXPECT_EQ(plant::UtcText(17'092'511'990'000'000), "2024-02-29T23:59:59Z");
}

}  // namespace
