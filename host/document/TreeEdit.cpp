#include "TreeEdit.h"

#include <algorithm>
#include <functional>
#include <new>
#include <utility>

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
    Touch(parent);
    m_steps.emplace_back();
    const pugi::xml_node node = before ? parent.insert_child_before(type, before) : parent.append_child(type);
    m_steps.back() = {node, parent, node.previous_sibling(), true};
    MustSucceed(!node.empty());
    return node;
}

// The outermost first: when memory runs out, one that is known has only known ones around it.
void TreeEdit::Touch(pugi::xml_node element)
{
    if (!element || IsTouched(element))
        return;
    Touch(element.parent());
    m_touched.insert(element.internal_object());
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
        TakeAway(old);
    }
    return node;
}

// A place in the source that is to be left out needs a node of the tree that stands for it; an empty comment is one
// that nobody reads.
void TreeEdit::Remove(pugi::xml_node element)
{
    const pugi::xml_node blanks = element.previous_sibling();
    const bool hasLine = IsBlankText(blanks) && !m_replaced.contains(blanks.internal_object());
    const bool blanksWereRead = hasLine && WasRead(blanks);
    const bool wasRead = element.offset_debug() >= 0;
    if (wasRead || blanksWereRead) {
        const pugi::xml_node mark = Add(element.parent(), pugi::node_comment, hasLine ? blanks : element);
        m_replaced.emplace(mark.internal_object(),
                           PlaceOf(blanksWereRead ? blanks : element, wasRead ? element : blanks));
    }
    if (hasLine)
        TakeAway(blanks);
    TakeAway(element);
}

void TreeEdit::MakeAttic()
{
    if (!m_attic)
        m_attic = m_tree.append_child(pugi::node_element);
    MustSucceed(!m_attic.empty());
}

void TreeEdit::TakeAway(pugi::xml_node node)
{
    MakeAttic();
    m_steps.push_back({node, node.parent(), node.previous_sibling(), false});
    m_attic.append_move(node);
}

void TreeEdit::Keep() noexcept
{
    if (m_isRecording) {
        m_kept = m_steps.size();
        return;
    }
    Destroy(m_steps, false, [](const void*) {});
    m_steps.clear();
}

void TreeEdit::StartRecording()
{
    Keep();
    MakeAttic();
    m_isRecording = true;
}

TreeSteps TreeEdit::StopRecording() noexcept
{
    m_isRecording = false;
    m_kept = 0;
    return std::exchange(m_steps, {});
}

void TreeEdit::Reverse(const TreeSteps& steps) noexcept
{
    std::for_each(steps.rbegin(), steps.rend(), [this](const TreeStep& step) {
        if (step.isAdded)
            m_attic.append_move(step.node);
        else
            PutBack(step);
    });
}

void TreeEdit::Repeat(const TreeSteps& steps) noexcept
{
    for (const TreeStep& step : steps)
        if (step.isAdded)
            PutBack(step);
        else
            m_attic.append_move(step.node);
}

void TreeEdit::PutBack(const TreeStep& step) noexcept
{
    pugi::xml_node parent = step.parent;
    if (step.previous)
        parent.insert_move_after(step.node, step.previous);
    else
        parent.prepend_move(step.node);
}

// Returns the node that is no longer in the tree, or null when one has come back.
const void* TreeEdit::TakeBack(const TreeStep& step) noexcept
{
    if (!step.isAdded) {
        PutBack(step);
        return nullptr;
    }
    const void* const gone = step.node.internal_object();
    m_replaced.erase(gone);
    if (step.node)
        step.node.parent().remove_child(step.node);
    return gone;
}
