#include "Utf8.h"

#include <algorithm>

#include "KZUtf8.h"

namespace {

constexpr char32_t Replacement = 0xFFFD;

bool IsHighSurrogate(char32_t unit) noexcept
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool IsLowSurrogate(char32_t unit) noexcept
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

bool IsCharacter(char32_t number) noexcept
{
    return number <= 0x10FFFF && !IsHighSurrogate(number) && !IsLowSurrogate(number);
}

struct Decoded {
    char32_t character = 0;
    std::size_t length = 0;  // 0: not UTF-8
};

Decoded DecodeOne(std::string_view bytes) noexcept
{
    const auto byte = [bytes](std::size_t at) { return static_cast<unsigned char>(bytes[at]); };
    const unsigned char lead = byte(0);
    if (lead < 0x80)
        return {lead, 1};
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || bytes.size() < length)
        return {};
    char32_t character = lead & (0xFFu >> (length + 1));
    for (std::size_t at = 1; at < length; ++at) {
        if ((byte(at) & 0xC0) != 0x80)
            return {};
        character = character << 6 | (byte(at) & 0x3F);
    }
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (character < smallest[length] || !IsCharacter(character))
        return {};
    return {character, length};
}

// Appends what is ASCII at the start, which is nearly all of a document, and returns how much that is. Character by
// character, reading one takes several times as long.
std::size_t AppendAscii(std::wstring& text, std::string_view bytes)
{
    const auto other =
        std::find_if(bytes.begin(), bytes.end(), [](char unit) { return static_cast<unsigned char>(unit) >= 0x80; });
    const auto length = static_cast<std::size_t>(other - bytes.begin());
    text.resize(text.size() + length);
    std::copy(bytes.begin(), other, text.end() - static_cast<std::ptrdiff_t>(length));
    return length;
}

void AppendWide(std::wstring& text, char32_t character)
{
    if constexpr (sizeof(wchar_t) == 2) {
        if (character >= 0x10000) {
            text += static_cast<wchar_t>(0xD800 + ((character - 0x10000) >> 10));
            text += static_cast<wchar_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
            return;
        }
    }
    text += static_cast<wchar_t>(character);
}

}  // namespace

char32_t TakeCharacter(std::wstring_view& text) noexcept
{
    const auto first = static_cast<char32_t>(text.front());
    text.remove_prefix(1);
    if (sizeof(wchar_t) > 2 || !IsHighSurrogate(first) || text.empty() ||
        !IsLowSurrogate(static_cast<char32_t>(text.front())))
        return first;
    const auto second = static_cast<char32_t>(text.front());
    text.remove_prefix(1);
    return 0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00);
}

void AppendUtf8(std::string& bytes, char32_t character)
{
    const auto tail = [&](int shift) { bytes += static_cast<char>(0x80 | (character >> shift & 0x3F)); };
    if (character < 0x80) {
        bytes += static_cast<char>(character);
    } else if (character < 0x800) {
        bytes += static_cast<char>(0xC0 | character >> 6);
        tail(0);
    } else if (character < 0x10000) {
        bytes += static_cast<char>(0xE0 | character >> 12);
        tail(6);
        tail(0);
    } else {
        bytes += static_cast<char>(0xF0 | character >> 18);
        tail(12);
        tail(6);
        tail(0);
    }
}

std::size_t DecodeUtf8(std::string_view bytes, std::wstring& text)
{
    text.clear();
    text.reserve(bytes.size());
    std::size_t done = 0;
    while (done < bytes.size()) {
        done += AppendAscii(text, bytes.substr(done));
        if (done == bytes.size())
            break;
        const Decoded decoded = DecodeOne(bytes.substr(done));
        if (decoded.length == 0)
            break;
        AppendWide(text, decoded.character);
        done += decoded.length;
    }
    return done;
}

std::string ToUtf8(std::wstring_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty()) {
        // Nearly all of a document is ASCII. Character by character, saving one takes a tenth longer.
        const auto ascii = std::find_if(text.begin(), text.end(), [](char32_t unit) { return unit >= 0x80; });
        bytes.resize(bytes.size() + static_cast<std::size_t>(ascii - text.begin()));
        std::transform(text.begin(), ascii, bytes.end() - (ascii - text.begin()),
                       [](wchar_t unit) { return static_cast<char>(unit); });
        text.remove_prefix(static_cast<std::size_t>(ascii - text.begin()));
        if (text.empty())
            break;
        const char32_t character = TakeCharacter(text);
        AppendUtf8(bytes, IsCharacter(character) ? character : Replacement);
    }
    return bytes;
}

std::wstring FromUtf8(std::string_view bytes)
{
    std::wstring text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        bytes.remove_prefix(AppendAscii(text, bytes));
        if (bytes.empty())
            break;
        const Decoded decoded = DecodeOne(bytes);
        AppendWide(text, decoded.length ? decoded.character : Replacement);
        bytes.remove_prefix(std::max<std::size_t>(decoded.length, 1));
    }
    return text;
}
