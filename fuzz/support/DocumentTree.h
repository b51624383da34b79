// Documents as trees, for comparing a document with what became of it. They are read by the XML parser directly and not
// by the document class under test.
#pragma once

#include <functional>
#include <pugixml.hpp>
#include <string>
#include <string_view>

namespace fuzzing {

class DocumentTree {
public:
    // Reads a document's bytes; the byte order mark does not count.
    explicit DocumentTree(std::string_view utf8);

    [[nodiscard]] bool IsRead() const noexcept { return m_read; }
    [[nodiscard]] pugi::xml_node Root() const noexcept { return m_tree.document_element(); }
    [[nodiscard]] pugi::xml_node Everything() const noexcept { return m_tree; }
    // The text that the offsets of the tree's nodes count in.
    [[nodiscard]] const std::wstring& Text() const noexcept { return m_text; }

private:
    std::wstring m_text;
    pugi::xml_document m_tree;
    bool m_read;
};

// Whether two nodes are the same to a reader: names, attributes, texts, comments, order. Blanks between elements do not
// count.
[[nodiscard]] bool SameContent(pugi::xml_node left, pugi::xml_node right);

// Whether everything of a tree is still there. The later one may have more elements, behind those of the earlier one
// under the same parent, and other texts in the elements that mayChange names.
[[nodiscard]] bool StillThere(pugi::xml_node earlier, pugi::xml_node later,
                              const std::function<bool(pugi::xml_node)>& mayChange);

// The first child element of that name; instructions of the name do not count.
[[nodiscard]] inline pugi::xml_node ChildElement(pugi::xml_node parent, const wchar_t* name) noexcept
{
    for (const pugi::xml_node child : parent.children(name))
        if (child.type() == pugi::node_element)
            return child;
    return {};
}

// The text of an element's first child element of that name; empty when there is none.
[[nodiscard]] inline std::wstring_view ValueIn(pugi::xml_node parent, const wchar_t* name) noexcept
{
    return ChildElement(parent, name).child_value();
}

}  // namespace fuzzing
