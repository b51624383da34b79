#include "TreeEdit.h"

#include <algorithm>
#include <functional>
#include <new>
#include <vector>

#include "Indentation.h"
#include "KZUtf8.h"
#include "WellFormedness.h"

namespace {

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
    constexpr std::less_equal<> inOrder;
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

}  // namespace

bool IsElementName(std::wstring_view name)
{
    const auto isAscii = [](wchar_t c) { return static_cast<char32_t>(c) < 0x80; };
    const auto isLetter = [](wchar_t c) {
        return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || c == L'_' || c == L':';
    };
    const auto mayBeIn = [&](wchar_t c) {
        return !isAscii(c) || isLetter(c) || (c >= L'0' && c <= L'9') || c == L'-' || c == L'.';
    };
    if (name.empty() || !std::all_of(name.begin(), name.end(), mayBeIn))
        return false;
    if (std::all_of(name.begin(), name.end(), isAscii))
        return isLetter(name.front()) && name.size() <= LongestName;
    // Which of the world's other letters may be in a name is for the reader to say: what is written must be readable.
    return !CheckWellFormedness(std::string("<").append(ToUtf8(name)).append("/>"));
}

pugi::xml_node TreeEdit::Add(pugi::xml_node parent, pugi::xml_node_type type, pugi::xml_node before)
{
    m_steps.emplace_back();
    const pugi::xml_node node = before ? parent.insert_child_before(type, before) : parent.append_child(type);
    m_steps.back().node = node;
    MustSucceed(!node.empty());
    return node;
}

pugi::xml_node TreeEdit::AddText(pugi::xml_node parent, pugi::xml_node before, std::wstring_view text)
{
    pugi::xml_node node = Add(parent, pugi::node_pcdata, before);
    MustSucceed(node.set_value(text.data(), text.size()));
    return node;
}

pugi::xml_node TreeEdit::AddElement(pugi::xml_node parent, const wchar_t* name, pugi::xml_node before)
{
    const Indentation blanks = before ? IndentationBefore(before) : IndentationAtEnd(parent);
    if (!before && IsBlankText(parent.last_child()))
        before = parent.last_child();
    if (!blanks.before.empty())
        AddText(parent, before, blanks.before);
    pugi::xml_node element = Add(parent, pugi::node_element, before);
    MustSucceed(element.set_name(name));
    if (!blanks.after.empty())
        AddText(parent, before, blanks.after);
    return element;
}

bool TreeEdit::SetText(pugi::xml_node element, std::wstring_view text)
{
    const pugi::xml_node old = TextNodeOf(element);
    std::wstring buffer;
    const std::wstring_view storable = Storable(text, old.value(), buffer);
    if (storable == old.value())
        return false;
    if (!old)
        AddText(element, {}, storable);
    else if (!storable.empty())
        Replace(old, storable);
    else
        // All of them: where comments divide the text, the piece behind an empty one would be read.
        for (pugi::xml_node child = old; child; child = child.next_sibling())
            if (IsText(child))
                child = Replace(child, {});
    return true;
}

// A text is not changed but replaced, so that it can come back, and because pugixml would write into the place whose
// offset says where the text stands in the source. Texts that were read next to it go with it: they would run into the
// new one.
pugi::xml_node TreeEdit::Replace(pugi::xml_node text, std::wstring_view newText)
{
    const auto known = m_replaced.find(text.internal_object());
    const bool stands = WasRead(text);
    const pugi::xml_node last = stands ? LastAdjoining(text) : text;
    const pugi::xml_node node = AddText(text.parent(), text, newText);
    if (stands)
        m_replaced.emplace(node.internal_object(), PlaceOf(text, last));
    else if (known != m_replaced.end())
        m_replaced.emplace(node.internal_object(), ReplacedText(known->second));
    for (bool isLast = false; !isLast;) {
        const pugi::xml_node old = node.next_sibling();
        isLast = old == last;
        TakeAway(old, node);
    }
    return node;
}

void TreeEdit::TakeAway(pugi::xml_node node, pugi::xml_node replacedBy)
{
    if (!m_attic)
        m_attic = m_tree.append_child(pugi::node_element);
    MustSucceed(!m_attic.empty());
    m_steps.push_back({node, replacedBy});
    m_attic.append_move(node);
}

void TreeEdit::Keep() noexcept
{
    for (const pugi::xml_node old : m_attic)
        m_replaced.erase(old.internal_object());
    m_attic.remove_children();
    m_steps.clear();
}

// Returns the node that is no longer in the tree, or null when one has come back.
const void* TreeEdit::TakeBack(const Step& step) noexcept
{
    if (step.replacedBy) {
        pugi::xml_node(step.replacedBy).parent().insert_move_after(step.node, step.replacedBy);
        return nullptr;
    }
    const void* const gone = step.node.internal_object();
    m_replaced.erase(gone);
    if (step.node)
        step.node.parent().remove_child(step.node);
    return gone;
}
