#include "ValueIndex.h"

#include <new>

#include "QueryPath.h"

pugi::xml_node ValueIndexes::Index::Find(std::wstring_view text) const noexcept
{
    const auto found = m_children.find(text);
    return found == m_children.end() ? pugi::xml_node() : found->second;
}

ValueIndexes::Index* ValueIndexes::Of(pugi::xml_node parent, std::wstring_view name, std::wstring_view value) noexcept
{
    for (Index& index : m_indexes)
        if (index.m_parent == parent && index.m_name == name && index.m_value == value)
            return &index;
    return nullptr;
}

ValueIndexes::Index* ValueIndexes::Make(pugi::xml_node parent, std::wstring_view name, std::wstring_view value) noexcept
{
    try {
        Index made;
        made.m_parent = parent;
        made.m_name = name;
        made.m_value = value;
        for (pugi::xml_node child = ChildElement(parent, name); child; child = NextElement(child, name))
            if (const pugi::xml_node text = ChildElement(child, value))
                made.m_children.try_emplace(TextOf(text), child);
        return &m_indexes.emplace_back(std::move(made));
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void ValueIndexes::Changed(pugi::xml_node element, std::wstring_view child) noexcept
{
    std::erase_if(m_indexes, [&](const Index& index) {
        const bool isValue = index.m_parent == element.parent() && index.m_name == element.name();
        // An element in a named value may come with blanks in front of it, which are then the value's text.
        const bool isInValue = index.m_parent == element.parent().parent() && index.m_value == element.name();
        return (isValue && index.m_value == child) || isInValue;
    });
}

void ValueIndexes::GotFirst(pugi::xml_node element, std::wstring_view child) noexcept
{
    try {
        Index* const index = Of(element.parent(), element.name(), child);
        if (index && index->m_children.try_emplace(TextOf(ChildElement(element, child)), element).second)
            return;
    } catch (const std::bad_alloc&) {
        // Without the element the index would be wrong.
    }
    Changed(element, child);
}
