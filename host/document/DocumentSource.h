// The text that a document was read from, and the tree that stands for it.
#pragma once

#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>

#include "WellFormedness.h"

// The tree is for looking up and changing, the text for writing back: what nobody changed is copied from the text, so
// that it keeps its spelling – entities, quotes, blanks in tags, line ends – of which the tree knows nothing. The
// places of the tree's nodes in the text are pugixml's own offsets.
struct DocumentSource {
    std::string utf8;
    pugi::xml_document tree;

    [[nodiscard]] bool HasByteOrderMark() const noexcept { return utf8.starts_with("\xEF\xBB\xBF"); }
    // Without the byte order mark.
    [[nodiscard]] std::string_view Text() const noexcept
    {
        return std::string_view(utf8).substr(HasByteOrderMark() ? 3 : 0);
    }
};

// Reads the source's UTF-8 text, whose one root element must have the given name, into its tree.
// Returns what is wrong, or nothing; on a fault the tree is unspecified.
[[nodiscard]] std::optional<SourceFault> ReadSource(DocumentSource& source, const wchar_t* rootName);
