#include "HistoryEntry.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <limits>
#include <optional>

#include "KZUtf8.h"
#include "Sealed.h"
#include "text/Refusal.h"

namespace plant {

namespace {

// A line with the number, the time and the cause; a line with the name of each document that the save changed; an
// empty line; a line with size, time, hash and name of each document of the project.
constexpr std::string_view Kind = "KZHistory1";

bool IsTime(std::string_view text) noexcept
{
    constexpr std::string_view pattern = "0000-00-00T00:00:00Z";
    return std::equal(text.begin(), text.end(), pattern.begin(), pattern.end(), [](char character, char wanted) {
        return wanted == '0' ? character >= '0' && character <= '9' : character == wanted;
    });
}

bool HasControls(std::string_view text) noexcept
{
    return std::any_of(text.begin(), text.end(), [](char character) {
        const auto code = static_cast<unsigned char>(character);
        return code < ' ' || code == 0x7F;
    });
}

class Reader {
public:
    Reader(std::string_view body, const std::wstring& file) noexcept : m_body(body), m_file(file) {}

    Manifest Read()
    {
        Manifest manifest;
        ReadEntry(manifest.entry);
        while (!m_body.empty()) {
            KeptDocument document;
            document.size = Taken(TakeNumber(m_body, '\t'));
            document.time = TakeTime();
            document.hash = Taken(ParseHash(Taken(TakeUpTo(m_body, '\t'))));
            if (!manifest.project.emplace(TakeName(), document).second)
                Refuse();
        }
        return manifest;
    }

private:
    [[noreturn]] void Refuse() const { throw Refusal(IDS_PLANT_DAMAGED, {m_file}); }

    template <class Value>
    Value Taken(std::optional<Value> value) const
    {
        if (!value)
            Refuse();
        return *value;
    }

    void ReadEntry(HistoryEntry& entry)
    {
        const std::uint64_t number = Taken(TakeNumber(m_body, '\t'));
        entry.time = Taken(TakeUpTo(m_body, '\t'));
        entry.cause = Taken(TakeUpTo(m_body, '\n'));
        if (number > std::numeric_limits<int>::max() || !IsTime(entry.time) || HasControls(entry.cause))
            Refuse();
        entry.number = static_cast<int>(number);
        while (!m_body.starts_with('\n'))
            entry.documents.push_back(TakeName());
        m_body.remove_prefix(1);
    }

    std::int64_t TakeTime()
    {
        const std::uint64_t time = Taken(TakeNumber(m_body, '\t'));
        if (time > std::numeric_limits<std::int64_t>::max())
            Refuse();
        return static_cast<std::int64_t>(time);
    }

    std::string TakeName()
    {
        const std::string_view name = Taken(TakeUpTo(m_body, '\n'));
        if (!IsDocumentName(name))
            throw Refusal(IDS_PLANT_STRANGE_NAME, {m_file, FromUtf8(name)});
        return std::string(name);
    }

    std::string_view m_body;
    const std::wstring& m_file;
};

}  // namespace

std::string WriteManifest(const Manifest& manifest)
{
    const HistoryEntry& entry = manifest.entry;
    std::string body = std::to_string(entry.number);
    body.append("\t").append(entry.time).append("\t").append(entry.cause).append("\n");
    for (const std::string& name : entry.documents)
        body.append(name).append("\n");
    body.append("\n");
    for (const auto& [name, document] : manifest.project) {
        body.append(std::to_string(document.size)).append("\t").append(std::to_string(document.time)).append("\t");
        body.append(HashText(document.hash)).append("\t").append(name).append("\n");
    }
    return Seal(Kind, body);
}

Manifest ReadManifest(std::string_view bytes, const std::wstring& file)
{
    const std::optional<std::string_view> body = Unseal(Kind, bytes);
    if (!body)
        throw Refusal(IDS_PLANT_DAMAGED, {file});
    Manifest manifest = Reader(*body, file).Read();
    // Numbers in another spelling, documents in another order: nobody has written that.
    if (WriteManifest(manifest) != bytes)
        throw Refusal(IDS_PLANT_DAMAGED, {file});
    return manifest;
}

std::string UtcText(std::int64_t time)
{
    using namespace std::chrono;
    const sys_seconds point{seconds{time / 10'000'000}};
    const sys_days day = floor<days>(point);
    const year_month_day date{day};
    const hh_mm_ss clock{point - day};
    std::array<char, 64> text;
    const int length =
        std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02dZ", int{date.year()},
                      unsigned{date.month()}, unsigned{date.day()}, static_cast<int>(clock.hours().count()),
                      static_cast<int>(clock.minutes().count()), static_cast<int>(clock.seconds().count()));
    return {text.data(), static_cast<std::size_t>(length)};
}

}  // namespace plant
