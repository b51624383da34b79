#include "TreeEdit.h"

#include <algorithm>
#include <functional>
#include <new>
#include <vector>

#include "Indentation.h"

namespace {

pugi::xml_node InsertNode(pugi::xml_node parent, pugi::xml_node_type type, pugi::xml_node before) noexcept
{
    return before ? parent.insert_child_before(type, before) : parent.append_child(type);
}

void MustSucceed(bool done)
{
    if (!done)
        throw std::bad_alloc();
}

bool IsAllowed(wchar_t character) noexcept
{
    return character >= L' ' ? character != 0xFFFE && character != 0xFFFF : character == L'\t' || character == L'\n';
}

bool IsPieceOf(std::wstring_view text, std::wstring_view whole) noexcept
{
    constexpr std::less_equal<const wchar_t*> inOrder;
    return inOrder(whole.data(), text.data()) && inOrder(text.data(), whole.data() + whole.size());
}

// The text as XML can hold it and as reading it back gives it. It is copied into the buffer where that makes a
// difference, and where it is a piece of the old text, which will be written over.
std::wstring_view Storable(std::wstring_view text, std::wstring_view old, std::wstring& storable)
{
    if (std::all_of(text.begin(), text.end(), IsAllowed) && !IsPieceOf(text, old))
        return text;
    storable.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == L'\r') {
            if (at + 1 == text.size() || text[at + 1] != L'\n')
                storable += L'\n';
        } else {
            storable += IsAllowed(text[at]) ? text[at] : L'\uFFFD';
        }
    }
    return storable;
}

bool IsText(pugi::xml_node node) noexcept
{
    return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata;
}

// Whether a node is text that stands in the source.
bool WasRead(pugi::xml_node node) noexcept
{
    return IsText(node) && node.offset_debug() >= 0;
}

pugi::xml_node TextNodeOf(pugi::xml_node element) noexcept
{
    pugi::xml_node child = element.first_child();
    while (child && !IsText(child))
        child = child.next_sibling();
    return child;
}

// The last of the texts that were read and adjoin a text that was.
pugi::xml_node LastAdjoining(pugi::xml_node text) noexcept
{
    while (WasRead(text.next_sibling()))
        text = text.next_sibling();
    return text;
}

ReplacedText PlaceOf(pugi::xml_node first, pugi::xml_node last) noexcept
{
    return {first.offset_debug(), first.type(), last.offset_debug(), last.type()};
}

// Makes every text of an element empty: where comments divide its text, the piece behind an empty one would be read.
void ClearTexts(pugi::xml_node element, ReplacedTexts& replaced)
{
    std::vector<NewNode> nodes;
    ReplacedTexts added;
    for (pugi::xml_node child = element.first_child(); child; child = child.next_sibling()) {
        if (!WasRead(child))
            continue;
        const pugi::xml_node last = LastAdjoining(child);
        NewNode node(element.insert_child_before(pugi::node_pcdata, child));
        added.emplace(node.Get().internal_object(), PlaceOf(child, last));
        nodes.push_back(std::move(node));
        child = last;
    }
    replaced.reserve(replaced.size() + added.size());

    // From here on nothing fails.
    replaced.merge(added);
    for (pugi::xml_node child = element.first_child(); child;) {
        const pugi::xml_node next = child.next_sibling();
        if (WasRead(child))
            element.remove_child(child);
        else if (IsText(child))
            child.set_value(L"");
        child = next;
    }
    for (NewNode& node : nodes)
        node.Keep();
}

}  // namespace

bool IsElementName(std::wstring_view name) noexcept
{
    const auto isStart = [](wchar_t c) {
        return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || c == L'_' || c == L':' || c >= 0xC0;
    };
    if (name.empty() || !isStart(name.front()))
        return false;
    for (const wchar_t character : name)
        if (!isStart(character) && !(character >= L'0' && character <= L'9') && character != L'-' &&
            character != L'.' && character != 0xB7)
            return false;
    return true;
}

NewNode::NewNode(pugi::xml_node node) : m_node(node)
{
    MustSucceed(!node.empty());
}

NewNode::~NewNode()
{
    if (m_node)
        m_node.parent().remove_child(m_node);
}

NewNode& NewNode::operator=(NewNode&& other) noexcept
{
    std::swap(m_node, other.m_node);
    return *this;
}

NewElement::NewElement(pugi::xml_node parent, const wchar_t* name, pugi::xml_node before)
{
    const Indentation blanks = before ? IndentationBefore(before) : IndentationAtEnd(parent);
    if (!before && IsBlankText(parent.last_child()))
        before = parent.last_child();

    m_element = NewNode(InsertNode(parent, pugi::node_element, before));
    MustSucceed(Get().set_name(name));
    if (!blanks.before.empty()) {
        m_blanksBefore = NewNode(parent.insert_child_before(pugi::node_pcdata, Get()));
        MustSucceed(m_blanksBefore.Get().set_value(blanks.before.c_str()));
    }
    if (!blanks.after.empty()) {
        m_blanksAfter = NewNode(parent.insert_child_after(pugi::node_pcdata, Get()));
        MustSucceed(m_blanksAfter.Get().set_value(blanks.after.c_str()));
    }
}

void NewElement::Keep() noexcept
{
    m_element.Keep();
    m_blanksBefore.Keep();
    m_blanksAfter.Keep();
}

bool SetText(pugi::xml_node element, std::wstring_view text, ReplacedTexts& replaced)
{
    pugi::xml_node old = TextNodeOf(element);
    std::wstring buffer;
    const std::wstring_view storable = Storable(text, old.value(), buffer);
    if (storable == old.value())
        return false;
    if (storable.empty()) {
        ClearTexts(element, replaced);
        return true;
    }
    if (old && !WasRead(old)) {
        MustSucceed(old.set_value(storable.data(), storable.size()));
        return true;
    }

    // A text that was read is not changed but replaced: pugixml would write into the place whose offset says where the
    // text stands in the source. Texts next to it go with it; they would run into the new one.
    NewNode node(old ? element.insert_child_before(pugi::node_pcdata, old) : element.append_child(pugi::node_pcdata));
    MustSucceed(node.Get().set_value(storable.data(), storable.size()));
    if (old) {
        replaced.emplace(node.Get().internal_object(), PlaceOf(old, LastAdjoining(old)));
        while (WasRead(node.Get().next_sibling()))
            element.remove_child(node.Get().next_sibling());
    }
    node.Keep();
    return true;
}
