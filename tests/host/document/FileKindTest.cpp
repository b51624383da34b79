#include "FileKind.h"

#include <gtest/gtest.h>

#include "ParameterNames.h"

namespace {

using Kind = KZFileEntry::Kind;

constexpr DWORD Folder = FILE_ATTRIBUTE_DIRECTORY;
constexpr DWORD Point = FILE_ATTRIBUTE_REPARSE_POINT;
constexpr DWORD CloudFile = 0x9000A01A;  // where the header of the compiler does not have it
constexpr DWORD WindowsOverlay = 0x80000017;
constexpr DWORD UnknownFile = 0x0000ABCD;
constexpr DWORD UnknownName = 0x2000ABCD;

struct Attributes {
    DWORD attributes;
    DWORD tag;
    Kind kind;
};
using Row = kztest::Named<Attributes>;

class FileKinds : public testing::TestWithParam<Row> {};

TEST_P(FileKinds, AreLinksOnlyWhereANameStandsForAnother)
{
    const auto& [attributes, tag, kind] = GetParam().value;
    EXPECT_EQ(KindOf(attributes, tag), kind);
    EXPECT_EQ(KindOf(attributes | FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_ARCHIVE, tag), kind);
}

INSTANTIATE_TEST_SUITE_P(
    Of, FileKinds,
    testing::Values(Row{"File", {FILE_ATTRIBUTE_NORMAL, 0, Kind::File}}, Row{"Folder", {Folder, 0, Kind::Folder}},
                    Row{"LinkToAFile", {Point, IO_REPARSE_TAG_SYMLINK, Kind::Other}},
                    Row{"LinkToAFolder", {Folder | Point, IO_REPARSE_TAG_SYMLINK, Kind::Other}},
                    Row{"MountPoint", {Folder | Point, IO_REPARSE_TAG_MOUNT_POINT, Kind::Other}},
                    Row{"UnknownNameForAnother", {Point, UnknownName, Kind::Other}},
                    Row{"CloudFile", {Point, CloudFile, Kind::File}},
                    Row{"CloudFolder", {Folder | Point, CloudFile, Kind::Folder}},
                    Row{"DeduplicatedFile", {Point, IO_REPARSE_TAG_DEDUP, Kind::File}},
                    Row{"CompressedFile", {Point, WindowsOverlay, Kind::File}},
                    Row{"UnknownFile", {Point, UnknownFile, Kind::File}},
                    // What is in the tag's place of an entry that is no reparse point means nothing.
                    Row{"FileWithATag", {FILE_ATTRIBUTE_NORMAL, IO_REPARSE_TAG_SYMLINK, Kind::File}}),
    kztest::ByName);

}  // namespace
