#include "table/CsvText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <new>

#include "ParameterNames.h"
#include "Random.h"
#include "RefusalOf.h"
#ifndef _WIN32
#include "FailingMemory.h"
#endif

namespace plant {

namespace {

using namespace std::string_literals;
using testing::ElementsAre;

using Row = std::vector<std::string>;
using Rows = std::vector<Row>;

const std::wstring File = L"plant.csv";

Rows Read(std::string_view text)
{
    Rows rows;
    CsvReader reader(text, File);
    while (reader.Next())
        rows.emplace_back(reader.Values().begin(), reader.Values().end());
    return rows;
}

std::string Written(const Rows& rows)
{
    std::string text;
    for (const Row& row : rows)
        AppendCsvRow(text, row);
    return text;
}

template <class Case>
requires requires(const Case& one)
{
    one.name;
}
void PrintTo(const Case& one, std::ostream* stream)
{
    *stream << one.name;
}

struct ReadCase {
    const char* name;
    std::string text;
    Rows rows;
};

class CsvReading : public testing::TestWithParam<ReadCase> {};

const ReadCase ReadCases[] = {
    {"LinesThatEndWithCrLf", "a,b\r\n1,2\r\n", {{"a", "b"}, {"1", "2"}}},
    {"LinesThatEndWithLf", "a,b\n1,2\n", {{"a", "b"}, {"1", "2"}}},
    {"BothEndsOfLines", "a\r\n1\n2\r\n", {{"a"}, {"1"}, {"2"}}},
    {"ALastLineWithoutEnd", "a,b\r\n1,2", {{"a", "b"}, {"1", "2"}}},
    {"AnEmptyValueAtTheEnd", "a,b\r\n1,", {{"a", "b"}, {"1", ""}}},
    {"AQuotedValueAtTheEnd", "a\n\"1\"", {{"a"}, {"1"}}},
    {"TheHeaderAlone", "a", {{"a"}}},
    {"EmptyValues", "a,b,c\n,,\n\"\",,\"\"\n", {{"a", "b", "c"}, {"", "", ""}, {"", "", ""}}},
    {"AnEmptyValueAlone", "a\n\"\"\n", {{"a"}, {""}}},
    {"AByteOrderMark", "\xEF\xBB\xBFname\n", {{"name"}}},
    {"AByteOrderMarkBeforeQuotes", "\xEF\xBB\xBF\"a\"\n", {{"a"}}},
    {"ASecondByteOrderMarkAsAValue", "\xEF\xBB\xBF\xEF\xBB\xBF\n", {{"\xEF\xBB\xBF"}}},
    {"BlanksAsPartOfValues", " a ,\tb\t\n\" 1 \", \n", {{" a ", "\tb\t"}, {" 1 ", " "}}},
    {"QuotesAndCommasInQuotes", "a,b\n\"say \"\"no\"\", or\",\"\"\"\"\n", {{"a", "b"}, {"say \"no\", or", "\""}}},
    {"EveryEndOfLineInQuotes", "a,b\r\n\"1\r\n2\",\"3\n4\r5\r\"\r\n", {{"a", "b"}, {"1\r\n2", "3\n4\r5\r"}}},
    {"ManyLinesInQuotes", "a\n\"\n\n\n\"\n", {{"a"}, {"\n\n\n"}}},
    {"SemicolonsAsPartOfValues", "a;b\n1;2\n", {{"a;b"}, {"1;2"}}},
    {"EveryLengthOfUtf8",
     "\xC3\xB1\n\xE2\x82\xAC\n\xF0\x9F\x98\x80\n\xEF\xBF\xBD\n",
     {{"\xC3\xB1"}, {"\xE2\x82\xAC"}, {"\xF0\x9F\x98\x80"}, {"\xEF\xBF\xBD"}}},
};

struct RefusedCase {
    const char* name;
    std::string text;
    unsigned reason;
    std::wstring row;
    std::wstring column;
};

class CsvRefusal : public testing::TestWithParam<RefusedCase> {};

const RefusedCase RefusedCases[] = {
    {"ABareCrAsEndOfALine", "a,b\r1,2\r", IDS_PLANT_TABLE_LINE_END, L"1", L"2"},
    {"ABareCrBehindQuotes", "a,b\n\"1\"\r2,3\n", IDS_PLANT_TABLE_LINE_END, L"2", L"1"},
    {"ABareCrAtTheEnd", "a\n1\r", IDS_PLANT_TABLE_LINE_END, L"2", L"1"},
    {"ABareCrAlone", "\r", IDS_PLANT_TABLE_LINE_END, L"1", L"1"},
    {"ACrBeforeCrLf", "a,b\n1,2\r\r\n", IDS_PLANT_TABLE_LINE_END, L"2", L"2"},
    {"TextBehindQuotes", "a,b\n1,\"2\"3\n", IDS_PLANT_TABLE_BEHIND_QUOTE, L"2", L"2"},
    {"ABlankBehindQuotes", "\"a\" ,b\n", IDS_PLANT_TABLE_BEHIND_QUOTE, L"1", L"1"},
    {"AQuoteInABareValue", "a,b\n1,2\"3\n", IDS_PLANT_TABLE_STRAY_QUOTE, L"2", L"2"},
    {"ABlankBeforeQuotes", "a, \"b\"\n", IDS_PLANT_TABLE_STRAY_QUOTE, L"1", L"2"},
    {"OpenQuotes", "a,b\n1,\"2\n3,4\n", IDS_PLANT_TABLE_OPEN_QUOTE, L"2", L"2"},
    {"OpenQuotesAtTheEnd", "a\n\"", IDS_PLANT_TABLE_OPEN_QUOTE, L"2", L"1"},
    {"AByteThatIsNotUtf8", "a,b\n1,\xE9t\xE9\n", IDS_PLANT_TABLE_NOT_UTF8, L"2", L"2"},
    {"AnUnfinishedCharacter", "a\n\xE2\x82", IDS_PLANT_TABLE_NOT_UTF8, L"2", L"1"},
    {"AnOverlongCharacter", "\xC0\xAF,b\n", IDS_PLANT_TABLE_NOT_UTF8, L"1", L"1"},
    {"AnEncodedSurrogate", "a\n\xED\xA0\x80\n", IDS_PLANT_TABLE_NOT_UTF8, L"2", L"1"},
    {"Utf16", "\xFF\xFE\x61\0\x0A\0"s, IDS_PLANT_TABLE_NOT_UTF8, L"1", L"1"},
    {"Utf16WithoutByteOrderMark", "a\0,\0b\0\n\0"s, IDS_PLANT_TABLE_ZERO_BYTE, L"1", L"1"},
    {"AZeroByte", "a,b\n1,2\0\n"s, IDS_PLANT_TABLE_ZERO_BYTE, L"2", L"2"},
    {"AZeroByteInQuotes", "a\n\"\0\"\n"s, IDS_PLANT_TABLE_ZERO_BYTE, L"2", L"1"},
    {"AShortRow", "a,b,c\n1,2,3\n4\n", IDS_PLANT_TABLE_ROW_SHORT, L"3", L"2"},
    {"ALongRow", "a,b\n1,2,3,4\n", IDS_PLANT_TABLE_ROW_LONG, L"2", L"3"},
    {"AnEmptyLineAtTheStart", "\na\n", IDS_PLANT_TABLE_EMPTY_LINE, L"1", L"1"},
    {"AnEmptyLine", "a\r\n1\r\n\r\n2\r\n", IDS_PLANT_TABLE_EMPTY_LINE, L"3", L"1"},
    {"AnEmptyLineAtTheEnd", "a\n1\n\n", IDS_PLANT_TABLE_EMPTY_LINE, L"3", L"1"},
    {"ARowBehindLinesInQuotes", "a\n\"1\n2\n3\"\n4,5\n", IDS_PLANT_TABLE_ROW_LONG, L"3", L"2"},
};

struct WriteCase {
    const char* name;
    Row row;
    std::string text;
};

class CsvWriting : public testing::TestWithParam<WriteCase> {};

const WriteCase WriteCases[] = {
    {"PlainValues", {"zep-1", "-0.5", "kilo"}, "zep-1,-0.5,kilo\r\n"},
    {"BlanksAndSemicolons", {" a ", "b;c", "\t"}, " a ,b;c,\t\r\n"},
    {"NotAscii",
     {"Gr\xC3\xBA"
      "a"},
     "Gr\xC3\xBA"
     "a\r\n"},
    {"ACommaAndQuotes", {"a,b", "say \"no\""}, "\"a,b\",\"say \"\"no\"\"\"\r\n"},
    {"EndsOfLines", {"1\n2", "\r", "3"}, "\"1\n2\",\"\r\",3\r\n"},
    {"EmptyValues", {"", "", ""}, ",,\r\n"},
    {"AnEmptyValueAlone", {""}, "\"\"\r\n"},
    {"AByteOrderMark", {"\xEF\xBB\xBF"}, "\"\xEF\xBB\xBF\"\r\n"},
};

}  // namespace

TEST_P(CsvReading, GivesTheValues)
{
    EXPECT_EQ(Read(GetParam().text), GetParam().rows);
}
INSTANTIATE_TEST_SUITE_P(Reads, CsvReading, testing::ValuesIn(ReadCases), kztest::ByName);

TEST_P(CsvRefusal, NamesFileRowAndColumn)
{
    const Message message = kztest::RefusalOf([] { return Read(GetParam().text); });
    EXPECT_EQ(message.text, GetParam().reason);
    EXPECT_THAT(message.arguments, ElementsAre(File, GetParam().row, GetParam().column, L""));
}
INSTANTIATE_TEST_SUITE_P(Refuses, CsvRefusal, testing::ValuesIn(RefusedCases), kztest::ByName);

TEST_P(CsvWriting, QuotesOnlyWhatNeedsIt)
{
    EXPECT_EQ(Written({GetParam().row}), GetParam().text);
    EXPECT_EQ(Read(GetParam().text), Rows{GetParam().row});
}
INSTANTIATE_TEST_SUITE_P(Writes, CsvWriting, testing::ValuesIn(WriteCases), kztest::ByName);

TEST(CsvText, IsRefusedWhenThereIsNone)
{
    for (const char* text : {"", "\xEF\xBB\xBF"}) {
        const Message message = kztest::RefusalOf([text] { return Read(text); });
        EXPECT_EQ(message.text, static_cast<unsigned>(IDS_PLANT_TABLE_EMPTY));
        EXPECT_THAT(message.arguments, ElementsAre(File));
    }
}

TEST(CsvText, TellsThePlaceOfAValue)
{
    CsvReader reader("a,b\n1,2\n", File);
    ASSERT_TRUE(reader.Next());
    ASSERT_TRUE(reader.Next());
    EXPECT_EQ(reader.Row(), 2u);
    EXPECT_THAT(reader.At(1, 7, L"x").arguments, ElementsAre(File, L"2", L"2", L"x"));
}

TEST(CsvText, TakesALongValueOfManyLinesAndOneLine)
{
    std::string value;
    for (int line = 0; line < 20'000; ++line)
        value += line % 2 ? "\n" : "\"";
    const Rows rows{{"a"}, {value}, {std::string(3'000'000, 'x')}, {"b"}};
    EXPECT_EQ(Read(Written(rows)), rows);
}

TEST(CsvText, ReadsWhatWasWrittenOfRandomValues)
{
    const std::string pieces[] = {
        "a", "7", " ", ",", "\"", "\r", "\n", "\r\n", ";", "\xEF\xBB\xBF", "\xC3\xB1", "\xF0\x9F\x98\x80"};
    Random random(20261122);
    for (int round = 0; round < 2000; ++round) {
        Rows rows(1 + random.Below(5), Row(1 + random.Below(4)));
        for (Row& row : rows) {
            for (std::string& value : row) {
                for (std::size_t left = random.Below(5); left > 0; --left)
                    value += random.Pick(pieces);
            }
        }
        ASSERT_EQ(Read(Written(rows)), rows) << "round " << round;
    }
}

#ifndef _WIN32
TEST(CsvText, IsReadWholeOrNotAtAllWithoutMemory)
{
    const Rows rows{{"a", "b"}, {std::string(100, 'x'), "1\n2"}, {std::string(5000, 'y'), std::string(40, 'z')}};
    const std::string text = Written(rows);
    for (const auto fail : {FailAllocation, FailAllocationsFrom}) {
        int failures = 0;
        bool isWhole = false;
        for (long number = 1; !isWhole; ++number) {
            Rows read;
            fail(number);
            try {
                read = Read(text);
            } catch (const std::bad_alloc&) {
                ++failures;
            }
            isWhole = CountAllocations() < number;
            FailAllocation(0);
            // libcsv does with less when it gets less.
            ASSERT_TRUE(read == rows || (read.empty() && !isWhole)) << "allocation " << number;
        }
        EXPECT_GT(failures, 10);
    }
}

TEST(CsvText, IsWrittenWholeOrNotAtAllWithoutMemory)
{
    const Rows rows{{std::string(100, 'x'), std::string(100, '"')}};
    const std::string text = Written(rows);
    int failures = 0;
    bool isWhole = false;
    for (long number = 1; !isWhole; ++number) {
        std::string written;
        FailAllocation(number);
        try {
            written = Written(rows);
        } catch (const std::bad_alloc&) {
            ++failures;
        }
        isWhole = CountAllocations() < number;
        FailAllocation(0);
        ASSERT_TRUE(isWhole ? written == text : written.empty()) << "allocation " << number;
    }
    EXPECT_GT(failures, 1);
}
#endif

}  // namespace plant
