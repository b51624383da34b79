// The blanks that put elements on lines of their own.
#pragma once

#include <pugixml.hpp>
#include <string>

// What a new element needs around it; empty texts mean none.
struct Indentation {
    std::wstring before;  // between the new element and what stands in front of it
    std::wstring after;   // between the new element and what stands behind it
};

// Whether a node is text of blanks alone.
[[nodiscard]] bool IsBlankText(pugi::xml_node node) noexcept;

// The blanks for a new child in front of the given one.
[[nodiscard]] Indentation IndentationBefore(pugi::xml_node child);

// The blanks for a new last child. It goes in front of the blanks that precede the parent's end tag.
[[nodiscard]] Indentation IndentationAtEnd(pugi::xml_node parent);
