// The input is a table as text. It is read beside a reader that goes byte by byte, and what was read is written and
// read again. The same bytes, cut at each vertical tab into values and at each form feed into rows, are a table to be
// written.
#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "Fuzzing.h"
#include "KZUtf8.h"
#include "table/CsvText.h"

namespace {

using fuzzing::Require;

using Row = std::vector<std::string>;
using Rows = std::vector<Row>;

const std::wstring File = L"table.csv";
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

bool IsText(std::string_view bytes)
{
    return bytes.find('\0') == std::string_view::npos && ToUtf8(FromUtf8(bytes)) == bytes;
}

// Takes one value off the front of a text: what stands behind it is a comma, an end of a row, or nothing. Nothing when
// it is no value.
std::optional<std::string> TakeValue(std::string_view& text)
{
    std::string value;
    if (!text.starts_with('"')) {
        const std::size_t end = std::min(text.find_first_of(",\r\n\""), text.size());
        value = text.substr(0, end);
        text.remove_prefix(end);
    } else {
        for (text.remove_prefix(1); !text.starts_with('"') || text.starts_with("\"\""); text.remove_prefix(1)) {
            if (text.empty())
                return std::nullopt;
            value += text.front();
            if (text.front() == '"')
                text.remove_prefix(1);
        }
        text.remove_prefix(1);
    }
    const bool isEnded = text.empty() || text.starts_with(',') || text.starts_with('\n') || text.starts_with("\r\n");
    return isEnded && IsText(value) ? std::optional(value) : std::nullopt;
}

std::optional<Row> TakeRow(std::string_view& text)
{
    Row row;
    if (text.empty() || text.starts_with('\n') || text.starts_with("\r\n"))
        return std::nullopt;
    for (bool isOver = false; !isOver;) {
        const auto value = TakeValue(text);
        if (!value)
            return std::nullopt;
        row.push_back(*value);
        isOver = !text.starts_with(',');
        if (!text.empty())
            text.remove_prefix(text.starts_with('\r') ? 2 : 1);
    }
    return row;
}

// Nothing for what is no table.
std::optional<Rows> PlainRead(std::string_view text)
{
    Rows rows;
    if (text.starts_with(ByteOrderMark))
        text.remove_prefix(ByteOrderMark.size());
    do {
        const auto row = TakeRow(text);
        if (!row || (!rows.empty() && row->size() != rows.front().size()))
            return std::nullopt;
        rows.push_back(*row);
    } while (!text.empty());
    return rows;
}

void CheckPlace(const plant::Message& message, std::string_view text, std::size_t rowsRead)
{
    Require(message.arguments.front() == File, "the refusal names the file");
    if (message.text == IDS_PLANT_TABLE_EMPTY)
        return;
    const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    const auto commas = static_cast<std::size_t>(std::count(text.begin(), text.end(), ','));
    const std::size_t row = std::stoul(message.arguments[1]);
    const std::size_t column = std::stoul(message.arguments[2]);
    Require(row == rowsRead + 1 && row <= lines + 1, "the row is the one behind those that were read");
    Require(column >= 1 && column <= commas + 1, "the column is in the file");
}

std::optional<Rows> Read(std::string_view text)
{
    Rows rows;
    try {
        plant::CsvReader reader(text, File);
        while (reader.Next())
            rows.emplace_back(reader.Values().begin(), reader.Values().end());
        return rows;
    } catch (const plant::Refusal& refusal) {
        CheckPlace(refusal.What(), text, rows.size());
        return std::nullopt;
    }
}

std::string Written(const Rows& rows)
{
    std::string text;
    for (const Row& row : rows)
        plant::AppendCsvRow(text, row);
    return text;
}

std::vector<std::string> Cut(std::string_view text, char separator)
{
    std::vector<std::string> parts(1);
    for (const char c : text) {
        if (c == separator)
            parts.emplace_back();
        else
            parts.back() += c;
    }
    return parts;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text = fuzzing::Input(data, size).Rest();
    const auto rows = Read(text);
    Require(rows == PlainRead(text), "a reader that goes byte by byte reads the same");
    if (rows)
        Require(Read(Written(*rows)) == rows, "what was read is written and read as the same");

    Rows cut;
    for (const std::string& line : Cut(text, '\f')) {
        cut.push_back(Cut(line, '\v'));
        cut.back().resize(cut.front().size());
    }
    if (IsText(text))
        Require(Read(Written(cut)) == cut, "what was written is read as it was");
    return 0;
}
