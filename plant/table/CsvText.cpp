#include "CsvText.h"

#include <csv.h>

#include <algorithm>
#include <cstring>
#include <new>

#include "KZUtf8.h"

namespace plant {

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

// libcsv's memory is the program's, so that it fails as all other memory does. The size stands before the bytes.
constexpr std::size_t Head = alignof(std::max_align_t);

void Free(void* bytes) noexcept
{
    ::operator delete(static_cast<char*>(bytes) - Head);
}

void* Resize(void* bytes, std::size_t size) noexcept
{
    try {
        char* const larger = static_cast<char*>(::operator new(Head + size)) + Head;
        std::memcpy(larger - Head, &size, sizeof size);
        if (bytes) {
            std::size_t before = 0;
            std::memcpy(&before, static_cast<char*>(bytes) - Head, sizeof before);
            std::memcpy(larger, bytes, before);
            Free(bytes);
        }
        return larger;
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

// libcsv takes blanks off unless told that there are none.
int IsNoBlank(unsigned char) noexcept
{
    return 0;
}

bool IsUtf8(std::string_view bytes)
{
    const bool isAscii = std::all_of(bytes.begin(), bytes.end(), [](char c) { return (c & 0x80) == 0; });
    return isAscii || ToUtf8(FromUtf8(bytes)) == bytes;
}

bool NeedsQuotes(std::string_view value) noexcept
{
    return value.find_first_of(",\"\r\n") != std::string_view::npos || value.starts_with(ByteOrderMark);
}

}  // namespace

void CsvReader::Close::operator()(csv_parser* parser) const noexcept
{
    csv_free(parser);
    delete parser;
}

CsvReader::CsvReader(std::string_view text, std::wstring file)
    : m_rest(text), m_file(std::move(file)), m_parser(new csv_parser)
{
    csv_init(m_parser.get(), CSV_STRICT | CSV_STRICT_FINI | CSV_REPALL_NL);
    csv_set_space_func(m_parser.get(), IsNoBlank);
    csv_set_realloc_func(m_parser.get(), Resize);
    csv_set_free_func(m_parser.get(), Free);
    if (m_rest.starts_with(ByteOrderMark))
        m_rest.remove_prefix(ByteOrderMark.size());
}

CsvReader::~CsvReader() = default;

Message CsvReader::At(std::size_t index, unsigned text, std::wstring last) const
{
    return {text, {m_file, std::to_wstring(m_row), std::to_wstring(index + 1), std::move(last)}};
}

void CsvReader::Refuse(unsigned text, std::size_t index) const
{
    Message message = At(index, text);
    throw Refusal(message.text, std::move(message.arguments));
}

bool CsvReader::Next()
{
    m_count = 0;
    if (m_rest.empty()) {
        if (m_row == 0)
            throw Refusal(IDS_PLANT_TABLE_EMPTY, {m_file});
        return false;
    }
    ++m_row;
    ReadRow();
    if (m_row == 1)
        m_columns = m_count;
    CheckRow();
    return true;
}

// Line by line, for a quoted value may hold ends of lines. Within one an odd number of quotation marks has been seen.
void CsvReader::ReadRow()
{
    bool isQuoted = false;
    bool isWhole = false;
    while (!isWhole) {
        const std::size_t end = m_rest.find('\n');
        const bool isEnded = end != std::string_view::npos;
        std::string_view line = m_rest.substr(0, end);
        m_rest.remove_prefix(isEnded ? end + 1 : m_rest.size());
        isQuoted ^= std::count(line.begin(), line.end(), '"') % 2 != 0;
        isWhole = !isQuoted || !isEnded;
        if (isWhole && isEnded && line.ends_with('\r'))
            line.remove_suffix(1);
        Feed(line);
        if (isEnded)
            Feed("\n");
        else
            Finish();
    }
}

void CsvReader::Feed(std::string_view bytes)
{
    csv_parser* const parser = m_parser.get();
    // Growing by pieces of one size would copy a long value again and again.
    csv_set_blk_size(parser, std::max(csv_get_buffer_size(parser), bytes.size()));
    const std::size_t done = csv_parse(parser, bytes.data(), bytes.size(), TakeValue, TakeRowEnd, this);
    if (m_isOutOfMemory || (done < bytes.size() && csv_error(parser) != CSV_EPARSE))
        throw std::bad_alloc();
    if (m_hasLineEndInside)
        Refuse(IDS_PLANT_TABLE_LINE_END, std::max<std::size_t>(m_count, 1) - 1);
    if (done < bytes.size())
        Refuse(bytes[done] == '"' ? IDS_PLANT_TABLE_STRAY_QUOTE : IDS_PLANT_TABLE_BEHIND_QUOTE, m_count);
}

void CsvReader::Finish()
{
    if (csv_fini(m_parser.get(), TakeValue, TakeRowEnd, this) != 0)
        Refuse(IDS_PLANT_TABLE_OPEN_QUOTE, m_count);
    if (m_isOutOfMemory)
        throw std::bad_alloc();
}

void CsvReader::TakeValue(void* bytes, std::size_t size, void* reader) noexcept
{
    CsvReader& self = *static_cast<CsvReader*>(reader);
    if (self.m_hasLineEndInside || self.m_isOutOfMemory)
        return;
    try {
        if (self.m_count == self.m_values.size())
            self.m_values.emplace_back();
        self.m_values[self.m_count].assign(static_cast<const char*>(bytes), size);
        ++self.m_count;
    } catch (const std::bad_alloc&) {
        self.m_isOutOfMemory = true;  // no exception may pass through libcsv
    }
}

// The reader has taken the CR of CR LF away, so one that libcsv sees is alone.
void CsvReader::TakeRowEnd(int terminator, void* reader) noexcept
{
    if (terminator == CSV_CR)
        static_cast<CsvReader*>(reader)->m_hasLineEndInside = true;
}

void CsvReader::CheckRow() const
{
    if (m_count == 0)
        Refuse(IDS_PLANT_TABLE_EMPTY_LINE, 0);
    for (std::size_t index = 0; index < m_count; ++index) {
        const std::string& value = m_values[index];
        if (!IsUtf8(value))
            Refuse(IDS_PLANT_TABLE_NOT_UTF8, index);
        if (value.find('\0') != std::string::npos)
            Refuse(IDS_PLANT_TABLE_ZERO_BYTE, index);
    }
    if (m_count < m_columns)
        Refuse(IDS_PLANT_TABLE_ROW_SHORT, m_count);
    if (m_count > m_columns)
        Refuse(IDS_PLANT_TABLE_ROW_LONG, m_columns);
}

void AppendCsvRow(std::string& text, std::span<const std::string> values)
{
    // A line without anything would be no row.
    const bool isLoneEmpty = values.size() == 1 && values.front().empty();
    for (const std::string& value : values) {
        if (&value != &values.front())
            text += ',';
        if (!isLoneEmpty && !NeedsQuotes(value)) {
            text += value;
            continue;
        }
        const std::size_t before = text.size();
        text.resize(before + csv_write(nullptr, 0, value.data(), value.size()));
        csv_write(text.data() + before, text.size() - before, value.data(), value.size());
    }
    text += "\r\n";
}

}  // namespace plant
