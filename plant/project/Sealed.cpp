#include "Sealed.h"

#include <charconv>

namespace plant {

namespace {

std::optional<std::uint64_t> ParseNumber(std::string_view text, int base) noexcept
{
    std::uint64_t number = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number, base);
    return error == std::errc{} && stop == end ? std::optional(number) : std::nullopt;
}

}  // namespace

std::uint64_t HashOf(std::string_view bytes) noexcept
{
    std::uint64_t hash = bytes.size();
    while (!bytes.empty()) {
        std::uint64_t word = 0;  // the next 8 bytes; behind the end there are zeros
        bytes.remove_prefix(bytes.copy(reinterpret_cast<char*>(&word), sizeof word));
        hash ^= word;
        // A product's high bits know of all the factor's, its low ones only of the low. No step loses a difference.
        for (int round = 0; round < 2; ++round) {
            hash *= 0x9E3779B97F4A7C15;
            hash ^= hash >> 32;
        }
    }
    return hash;
}

std::string HashText(std::uint64_t hash)
{
    constexpr std::size_t digits = 16;
    char text[digits];
    const auto [end, error] = std::to_chars(text, text + digits, hash, 16);
    return std::string(digits - static_cast<std::size_t>(end - text), '0').append(text, end);
}

std::optional<std::uint64_t> ParseHash(std::string_view text) noexcept
{
    const bool isOurs = text.size() == 16 && text.find_first_of("ABCDEF") == std::string_view::npos;
    return isOurs ? ParseNumber(text, 16) : std::nullopt;
}

std::string Seal(std::string_view kind, std::string_view body)
{
    std::string bytes(kind);
    bytes.append(" ").append(HashText(HashOf(body))).append("\n").append(body);
    return bytes;
}

std::optional<std::string_view> Unseal(std::string_view kind, std::string_view bytes) noexcept
{
    if (TakeUpTo(bytes, ' ') != kind)
        return std::nullopt;
    const auto hash = TakeUpTo(bytes, '\n');
    if (!hash || ParseHash(*hash) != HashOf(bytes))
        return std::nullopt;
    return bytes;
}

std::optional<std::string_view> TakeUpTo(std::string_view& text, char end) noexcept
{
    const std::size_t length = text.find(end);
    if (length == std::string_view::npos)
        return std::nullopt;
    const std::string_view taken = text.substr(0, length);
    text.remove_prefix(length + 1);
    return taken;
}

std::optional<std::uint64_t> TakeNumber(std::string_view& text, char end) noexcept
{
    const auto digits = TakeUpTo(text, end);
    return digits ? ParseNumber(*digits, 10) : std::nullopt;
}

}  // namespace plant
