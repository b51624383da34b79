// Whether a text is a document: XML, all of it, within bounds that no configuration reaches.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Why a text is not a document: the reason, and where, when it is at a place.
struct SourceFault {
    std::wstring reason;
    std::size_t line = 0;  // from 1; 0: no place
    std::size_t column = 0;
};

// Deeper, longer and more than in any document that makes sense.
inline constexpr int DeepestNesting = 256;           // elements
inline constexpr std::size_t LongestName = 1000;     // bytes of UTF-8
inline constexpr std::size_t MostAttributes = 1000;  // of one element

// Why a document is refused by its size alone, or nothing; a file is asked for its size before it is read.
[[nodiscard]] std::optional<SourceFault> CheckSize(std::uintmax_t bytes);

// Checks a UTF-8 text without byte order mark. A document type declaration is refused whatever it holds: the platform's
// documents have none, and what it can declare is an attack.
// Returns the first fault, or nothing. Throws std::bad_alloc.
[[nodiscard]] std::optional<SourceFault> CheckWellFormedness(std::string_view utf8);
