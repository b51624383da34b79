// Query paths: how an element is named in a configuration document. KZXmlDocument.h describes the grammar.
#pragma once

#include <pugixml.hpp>
#include <string_view>

class ValueIndexes;

// The element that a path names below the given one, or an empty handle. A malformed path names nothing. A long list
// gets an index when it is first searched.
[[nodiscard]] pugi::xml_node FindElement(pugi::xml_node from, const wchar_t* path, ValueIndexes& indexes) noexcept;

// The first child and the next sibling that is an element of a name, or an empty handle. Processing instructions have
// names too, so that pugixml's own look-ups by name find them as well.
[[nodiscard]] pugi::xml_node ChildElement(pugi::xml_node parent, std::wstring_view name) noexcept;
[[nodiscard]] pugi::xml_node NextElement(pugi::xml_node from, std::wstring_view name) noexcept;

// The text of an element, which is that of its first piece of text; empty when it has none.
[[nodiscard]] inline const wchar_t* TextOf(pugi::xml_node element) noexcept
{
    return element.child_value();
}
