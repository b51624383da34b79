// A document changed in the plainest way, on the XML parser's own tree: what an edit of the product must come to.
#pragma once

#include <string>
#include <string_view>

#include "DocumentTree.h"

namespace fuzzing {

class PlainDocument {
public:
    explicit PlainDocument(std::string_view utf8) : m_tree(utf8), m_current(m_tree.Root()) {}

    // Makes the current element's first child of that name current; false when there is none.
    bool ToChild(const std::wstring& name);

    // Sets a named value of the current element.
    //   place   for a value that has children and no text: before how many of them, from the last one, the text goes
    void Set(const std::wstring& name, const std::wstring& text, std::size_t place = 0);

    // How many children a named value has, 0 for one that is not there.
    [[nodiscard]] std::size_t ChildCount(const std::wstring& name) const;

    // Creates a child before the first one of another name, or at the end when that name is empty.
    void New(const std::wstring& name, const std::wstring& before);

    [[nodiscard]] const DocumentTree& Tree() const noexcept { return m_tree; }

    // How many characters of the source the edits take away.
    [[nodiscard]] std::size_t Removed() const noexcept { return m_removed; }
    // What an edit that emptied a value has taken away, with the start of the end tag: "text</name". Empty otherwise.
    [[nodiscard]] const std::wstring& Emptied() const noexcept { return m_emptied; }
    // Whether an edit may have made <name/> into <name>, which takes away the slash and the blanks before it.
    [[nodiscard]] bool MayOpenTag() const noexcept { return m_mayOpenTag; }

private:
    pugi::xml_node Append(pugi::xml_node parent, const std::wstring& name);
    [[nodiscard]] std::size_t StartInSource(pugi::xml_node text) const;
    [[nodiscard]] std::size_t EndInSource(pugi::xml_node text) const;

    DocumentTree m_tree;
    pugi::xml_node m_current;
    std::size_t m_removed = 0;
    std::wstring m_emptied;
    bool m_mayOpenTag = false;
};

}  // namespace fuzzing
