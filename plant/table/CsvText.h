// A table as text: CSV as RFC 4180 has it, in UTF-8. It is read and written row by row, so that a large one is never
// held a second time. Blanks belong to the values; commas separate, whatever the user's locale.
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "text/Refusal.h"

struct csv_parser;

namespace plant {

class CsvReader {
public:
    // text: the bytes of a file, which must outlive the reader; a byte order mark in front does not count.
    // file: what refusals call it.
    CsvReader(std::string_view text, std::wstring file);
    ~CsvReader();
    CsvReader(const CsvReader&) = delete;
    CsvReader& operator=(const CsvReader&) = delete;

    // Goes on to the next row; the first one is the header. Returns false behind the last one. Throws Refusal, naming
    // file, row and column, for what is no table: rows must end with CR LF or LF, the last one need not, and have as
    // many values as the header. Nothing can be read after that.
    [[nodiscard]] bool Next();

    // The values of the row, in UTF-8 without a zero byte, until Next is called again.
    [[nodiscard]] std::span<const std::string> Values() const noexcept { return {m_values.data(), m_count}; }
    // Which row that is, as spreadsheets count: the header is 1.
    [[nodiscard]] std::size_t Row() const noexcept { return m_row; }

    // What is wrong with a value of the row, for a text that begins with file, row and column.
    //   index  counts from 0
    //   last   the text's last argument, if it has another
    [[nodiscard]] Message At(std::size_t index, unsigned text, std::wstring last = {}) const;

private:
    struct Close {
        void operator()(csv_parser* parser) const noexcept;
    };

    static void TakeValue(void* bytes, std::size_t size, void* reader) noexcept;
    static void TakeRowEnd(int terminator, void* reader) noexcept;

    [[noreturn]] void Refuse(unsigned text, std::size_t index) const;
    void ReadRow();
    void Feed(std::string_view bytes);
    void Finish();
    void CheckRow() const;

    std::string_view m_rest;
    std::wstring m_file;
    std::unique_ptr<csv_parser, Close> m_parser;
    std::vector<std::string> m_values;  // more than the row has: their memory serves the next one
    std::size_t m_count = 0;
    std::size_t m_columns = 0;
    std::size_t m_row = 0;
    bool m_hasLineEndInside = false;
    bool m_isOutOfMemory = false;
};

// Appends a row of at least one value, with CR LF. Values are UTF-8 without a zero byte; those that need it are quoted,
// so that the row is read back as it is.
void AppendCsvRow(std::string& text, std::span<const std::string> values);

}  // namespace plant
