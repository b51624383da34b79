// Changes to a document's tree.
#pragma once

#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

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
[[nodiscard]] bool IsElementName(std::wstring_view name);

// The changes to a tree since the last Keep, which can be taken back as long as nothing else changes the tree.
class TreeEdit {
public:
    explicit TreeEdit(pugi::xml_document& tree) noexcept : m_tree(tree) {}

    // Adds a node before a child of the parent or, when before is empty, as the last one.
    pugi::xml_node Add(pugi::xml_node parent, pugi::xml_node_type type, pugi::xml_node before);
    // Adds an element on a line of its own, indented as its siblings are.
    pugi::xml_node AddElement(pugi::xml_node parent, const wchar_t* name, pugi::xml_node before);
    // Sets an element's text. Line ends become "\n"; what XML has no way to hold becomes U+FFFD. Returns false when the
    // element has that text already.
    bool SetText(pugi::xml_node element, std::wstring_view text);
    // Those three throw std::bad_alloc, after which Undo must follow.

    // The changes are for good.
    void Keep() noexcept;
    // Takes the changes back, which needs no memory, and tells of each element that goes.
    template <class Forget>
    void Undo(Forget forget) noexcept
    {
        for (; !m_steps.empty(); m_steps.pop_back())
            forget(TakeBack(m_steps.back()));
    }

    [[nodiscard]] const ReplacedTexts& Replaced() const noexcept { return m_replaced; }

private:
    // A node that was added or, with one that stands in its place, was taken away.
    struct Step {
        pugi::xml_node node;
        pugi::xml_node replacedBy;
    };

    pugi::xml_node AddText(pugi::xml_node parent, pugi::xml_node before, std::wstring_view text);
    pugi::xml_node Replace(pugi::xml_node text, std::wstring_view newText);
    void TakeAway(pugi::xml_node node, pugi::xml_node replacedBy);
    const void* TakeBack(const Step& step) noexcept;

    pugi::xml_document& m_tree;
    pugi::xml_node m_attic;  // behind the root element: what was taken away
    std::vector<Step> m_steps;
    ReplacedTexts m_replaced;
};
