#include "QueryPath.h"

#include <cwchar>

#include "ValueIndex.h"

namespace {

// "name" or "name?value=text?"
struct Step {
    std::wstring_view name;
    std::wstring_view value;  // empty: any child of that name
    std::wstring_view text;
};

// The node itself or the next of its siblings that is an element of the name.
pugi::xml_node FirstElementFrom(pugi::xml_node node, std::wstring_view name) noexcept
{
    while (node && (node.type() != pugi::node_element || name != node.name()))
        node = node.next_sibling();
    return node;
}

bool Fits(pugi::xml_node element, const Step& step) noexcept
{
    if (step.value.empty())
        return true;
    const pugi::xml_node value = ChildElement(element, step.value);
    return value && step.text == TextOf(value);
}

// So many children are looked at one by one sooner than any place of an index.
constexpr int LongList = 64;

pugi::xml_node FirstFitting(pugi::xml_node parent, const Step& step, ValueIndexes& indexes) noexcept
{
    if (const auto* const index = indexes.Of(parent, step.name, step.value))
        return index->Find(step.text);
    int passed = 0;
    pugi::xml_node child = ChildElement(parent, step.name);
    for (; child && !Fits(child, step); child = NextElement(child, step.name))
        if (++passed == LongList)
            if (const auto* const index = indexes.Make(parent, step.name, step.value))
                return index->Find(step.text);
    return child;
}

// The number of characters in front of the first of some others, or of the end.
std::size_t LengthUpTo(const wchar_t* path, std::wstring_view marks) noexcept
{
    const wchar_t* end = path;
    while (*end && marks.find(*end) == std::wstring_view::npos)
        ++end;
    return static_cast<std::size_t>(end - path);
}

// The text of a step ends at the first "?" that has a "/" or the end of the path behind it, so that the text itself may
// hold both characters. Returns the position of that "?", or null.
const wchar_t* EndOfText(const wchar_t* text) noexcept
{
    const wchar_t* end = std::wcschr(text, L'?');
    while (end && end[1] != L'/' && end[1] != L'\0')
        end = std::wcschr(end + 1, L'?');
    return end;
}

// Takes a step off the path, its "/" included. Returns false when it is malformed.
bool TakeStep(const wchar_t*& path, Step& step) noexcept
{
    const std::size_t nameLength = LengthUpTo(path, L"/?");
    step = {{path, nameLength}, {}, {}};
    path += nameLength;
    if (*path == L'?') {
        const std::size_t valueLength = LengthUpTo(++path, L"=/?");
        step.value = {path, valueLength};
        path += valueLength;
        const wchar_t* end = *path == L'=' ? EndOfText(path + 1) : nullptr;
        if (!end || step.value.empty())
            return false;
        step.text = {path + 1, static_cast<std::size_t>(end - path - 1)};
        path = end + 1;
    }
    if (*path == L'/' && *++path == L'\0')
        return false;
    return !step.name.empty();
}

}  // namespace

pugi::xml_node ChildElement(pugi::xml_node parent, std::wstring_view name) noexcept
{
    return FirstElementFrom(parent.first_child(), name);
}

pugi::xml_node NextElement(pugi::xml_node from, std::wstring_view name) noexcept
{
    return FirstElementFrom(from.next_sibling(), name);
}

pugi::xml_node FindElement(pugi::xml_node from, const wchar_t* path, ValueIndexes& indexes) noexcept
{
    if (!path || !*path)
        return {};
    Step step;
    while (from && *path) {
        if (!TakeStep(path, step))
            return {};
        from = FirstFitting(from, step, indexes);
    }
    return from;
}
