// Changes to a document's tree.
#pragma once

#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

// Texts that took the place of others, each with the places in the tree of the first and the last node that it
// replaced.
struct ReplacedText {
    std::ptrdiff_t firstOffset;
    pugi::xml_node_type firstType;
    std::ptrdiff_t lastOffset;
    pugi::xml_node_type lastType;
};
using ReplacedTexts = std::unordered_map<const void*, ReplacedText>;

// Whether a text can be the name of an element.
[[nodiscard]] bool IsElementName(std::wstring_view name) noexcept;

// A node that leaves the tree again unless it is kept.
class NewNode {
public:
    NewNode() noexcept = default;
    // Throws std::bad_alloc for the empty handle that pugixml gives when memory is short.
    explicit NewNode(pugi::xml_node node);
    ~NewNode();
    NewNode(NewNode&& other) noexcept : m_node(std::exchange(other.m_node, {})) {}
    NewNode& operator=(NewNode&& other) noexcept;

    [[nodiscard]] pugi::xml_node Get() const noexcept { return m_node; }
    void Keep() noexcept { m_node = {}; }

private:
    pugi::xml_node m_node;
};

// An element on a line of its own, indented as its siblings are. It leaves the tree again, with its blanks, unless it
// is kept.
class NewElement {
public:
    // Adds it before a child of the parent or, when before is empty, as the last child. Throws std::bad_alloc, having
    // changed nothing.
    NewElement(pugi::xml_node parent, const wchar_t* name, pugi::xml_node before);

    [[nodiscard]] pugi::xml_node Get() const noexcept { return m_element.Get(); }
    void Keep() noexcept;

private:
    NewNode m_element;
    NewNode m_blanksBefore;
    NewNode m_blanksAfter;
};

// Sets an element's text. Line ends become "\n"; what XML has no way to hold becomes U+FFFD.
// Returns false when the element has that text already. Throws std::bad_alloc, having changed nothing.
bool SetText(pugi::xml_node element, std::wstring_view text, ReplacedTexts& replaced);
