// Small files whose content counts only when it is what was written: journals, the history's entries, recovery files.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace plant {

// A number that other content does not have: it tells damage, not attacks.
[[nodiscard]] std::uint64_t HashOf(std::string_view bytes) noexcept;

// The hash as 16 digits, and back; nothing when the text is no such number.
[[nodiscard]] std::string HashText(std::uint64_t hash);
[[nodiscard]] std::optional<std::uint64_t> ParseHash(std::string_view text) noexcept;

// A line with the kind of file, the hash of the body, then the body.
[[nodiscard]] std::string Seal(std::string_view kind, std::string_view body);
// The body; nothing when the bytes are not of this kind or were changed or cut off.
[[nodiscard]] std::optional<std::string_view> Unseal(std::string_view kind, std::string_view bytes) noexcept;

// Takes the text up to a character off the front, and the character. Nothing, and the text as it was, when the
// character is not in it.
[[nodiscard]] std::optional<std::string_view> TakeUpTo(std::string_view& text, char end) noexcept;
// Takes a number and the character behind it.
[[nodiscard]] std::optional<std::uint64_t> TakeNumber(std::string_view& text, char end) noexcept;

}  // namespace plant
