#include "QueryPath.h"

#include <cwchar>
#include <string_view>

namespace {

// "name" or "name?value=text?"
struct Step {
    std::wstring_view name;
    std::wstring_view value;  // empty: any child of that name
    std::wstring_view text;
};

bool Equals(const wchar_t* text, std::wstring_view other) noexcept
{
    for (const wchar_t character : other)
        if (*text++ != character)
            return false;
    return *text == L'\0';
}

bool IsElement(pugi::xml_node node) noexcept
{
    return node.type() == pugi::node_element;
}

pugi::xml_node Child(pugi::xml_node parent, std::wstring_view name) noexcept
{
    pugi::xml_node child = parent.first_child();
    while (child && !(Equals(child.name(), name) && IsElement(child)))
        child = child.next_sibling();
    return child;
}

// Goes over the children of one name in search of a value. A plant may have a hundred thousand of them, so that pugixml
// is asked by names that it can compare as they stand: those of the first element and value that fit.
class ValueSearch {
public:
    explicit ValueSearch(const Step& step) noexcept : m_step(step) {}

    pugi::xml_node In(pugi::xml_node parent) noexcept
    {
        pugi::xml_node child = Child(parent, m_step.name);
        const wchar_t* const name = child.name();
        while (child && !Fits(child))
            child = child.next_sibling(name);
        return child;
    }

private:
    bool Fits(pugi::xml_node node) noexcept
    {
        if (m_valueName) {
            // Of all that has a name, elements alone have text.
            const wchar_t* const text = node.child_value(m_valueName);
            if (*text)
                return Equals(text, m_step.text);
        }
        const pugi::xml_node value = IsElement(node) ? Child(node, m_step.value) : pugi::xml_node();
        if (!value)
            return false;
        m_valueName = value.name();
        return Equals(TextOf(value), m_step.text);
    }

    const Step& m_step;
    const wchar_t* m_valueName = nullptr;
};

pugi::xml_node FirstFitting(pugi::xml_node parent, const Step& step) noexcept
{
    return step.value.empty() ? Child(parent, step.name) : ValueSearch(step).In(parent);
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

pugi::xml_node ChildElement(pugi::xml_node parent, const wchar_t* name) noexcept
{
    const pugi::xml_node child = parent.child(name);
    return !child || IsElement(child) ? child : NextElement(child, name);
}

pugi::xml_node NextElement(pugi::xml_node from, const wchar_t* name) noexcept
{
    do
        from = from.next_sibling(name);
    while (from && !IsElement(from));
    return from;
}

pugi::xml_node FindElement(pugi::xml_node from, const wchar_t* path) noexcept
{
    if (!path || !*path)
        return {};
    Step step;
    while (from && *path) {
        if (!TakeStep(path, step))
            return {};
        // The name of a last step ends as pugixml wants it, which then compares on its own.
        from = *path || !step.value.empty() ? FirstFitting(from, step) : ChildElement(from, step.name.data());
    }
    return from;
}
