// Changes to a document's tree.
#pragma once

#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

// Texts that took the place of others, and comments that mark where something was taken out, each with the places in
// the source of the first and the last node that it replaced.
struct ReplacedText {
    std::ptrdiff_t firstOffset;
    pugi::xml_node_type firstType;
    std::ptrdiff_t lastOffset;
    pugi::xml_node_type lastType;
};
using ReplacedTexts = std::unordered_map<const void*, ReplacedText>;

// Whether a text can be the name of an element.
[[nodiscard]] bool IsElementName(std::wstring_view name);

// A node that was put into the tree or, after its siblings were as they are said to be, taken away.
struct TreeStep {
    pugi::xml_node node;
    pugi::xml_node parent;
    pugi::xml_node previous;  // sibling; empty for a first child
    bool isAdded = true;
};
using TreeSteps = std::vector<TreeStep>;

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
    // Takes an element out, and the blanks that put it on a line of its own.
    void Remove(pugi::xml_node element);
    // Those four throw std::bad_alloc, after which Undo must follow.

    // The changes are for good.
    void Keep() noexcept;
    // Takes the changes back, which needs no memory, and tells of each element that goes.
    template <class Forget>
    void Undo(Forget forget) noexcept
    {
        for (; m_steps.size() > m_kept; m_steps.pop_back())
            forget(TakeBack(m_steps.back()));
    }

    // What is changed from now on stays at hand, though it is kept. Throws std::bad_alloc.
    void StartRecording();
    // Keeps the changes and hands them over.
    [[nodiscard]] TreeSteps StopRecording() noexcept;
    // Takes steps back or makes them again; the tree is as it was behind or in front of them.
    void Reverse(const TreeSteps& steps) noexcept;
    void Repeat(const TreeSteps& steps) noexcept;
    // Frees what only steps hold that nobody will take back or make again, and tells of each node that goes.
    template <class Forget>
    void Destroy(const TreeSteps& steps, bool areReversed, Forget forget) noexcept
    {
        for (const TreeStep& step : steps)
            if (step.isAdded == areReversed)
                DestroyNode(step.node, forget);
    }

    [[nodiscard]] const ReplacedTexts& Replaced() const noexcept { return m_replaced; }
    // Whether there was ever something new in an element that was read, or in one inside it. Without, all of it stands
    // in the source.
    [[nodiscard]] bool IsTouched(pugi::xml_node element) const { return m_touched.contains(element.internal_object()); }

private:
    pugi::xml_node AddText(pugi::xml_node parent, pugi::xml_node before, std::wstring_view text);
    pugi::xml_node Replace(pugi::xml_node text, std::wstring_view newText);
    void TakeAway(pugi::xml_node node);
    void Touch(pugi::xml_node element);
    void MakeAttic();
    const void* TakeBack(const TreeStep& step) noexcept;
    void PutBack(const TreeStep& step) noexcept;

    template <class Forget>
    void DestroyNode(pugi::xml_node node, Forget& forget) noexcept
    {
        ForgetTree(node, forget);
        m_attic.remove_child(node);
    }
    template <class Forget>
    void ForgetTree(pugi::xml_node node, Forget& forget) noexcept
    {
        m_replaced.erase(node.internal_object());
        forget(node.internal_object());
        for (const pugi::xml_node child : node)
            ForgetTree(child, forget);
    }

    pugi::xml_document& m_tree;
    pugi::xml_node m_attic;  // behind the root element: what was taken away
    TreeSteps m_steps;
    std::size_t m_kept = 0;  // of the steps, while they are recorded
    bool m_isRecording = false;
    ReplacedTexts m_replaced;
    std::unordered_set<const void*> m_touched;
};
