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
    bool byteOrderMark = false;
    bool windowsLineEnds = false;
    std::wstring text;  // without the byte order mark
    pugi::xml_document tree;
};

// Reads a UTF-8 text whose one root element must have the given name.
// Returns what is wrong, or nothing; on a fault the source is unspecified.
[[nodiscard]] std::optional<SourceFault> ReadSource(std::string_view utf8, const wchar_t* rootName,
                                                    DocumentSource& source);
