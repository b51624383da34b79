// Writes a changed document: what was read is copied from the text that it was read from, what is new is put in
// between.
#pragma once

#include <string>

#include "DocumentSource.h"
#include "TreeEdit.h"

class SourceWriter {
public:
    // Both must outlive this object.
    SourceWriter(const DocumentSource& source, const TreeEdit& edit);

    // The document's text, without the byte order mark.
    [[nodiscard]] std::wstring Write();

private:
    struct StartTag {
        std::size_t end;      // behind its ">"
        bool isWholeElement;  // <name/>
    };
    [[nodiscard]] StartTag FindStartTag(std::size_t at) const noexcept;
    [[nodiscard]] std::size_t EndOfElement(std::size_t offset) const noexcept;
    [[nodiscard]] std::size_t EndBehind(const wchar_t* mark, std::size_t from) const noexcept;
    [[nodiscard]] std::size_t EndOf(pugi::xml_node_type type, std::size_t offset) const noexcept;

    // Both return the place in the text behind what was written.
    std::size_t WriteElement(pugi::xml_node element);
    std::size_t WriteReplaced(pugi::xml_node node, const ReplacedText& old);

    void WriteNew(pugi::xml_node node);
    void SplitTag(std::size_t tagEnd);
    void CopyTo(std::size_t end);

    const DocumentSource& m_source;
    const std::wstring m_text;  // in which the tree's nodes have their places
    bool m_windowsLineEnds = false;
    const TreeEdit& m_edit;
    std::wstring m_out;
    std::size_t m_copied = 0;
};
