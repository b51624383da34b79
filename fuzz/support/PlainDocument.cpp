#include "PlainDocument.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace fuzzing {
namespace {

bool IsText(pugi::xml_node node) noexcept
{
    return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata;
}

// The texts that a new one replaces: the first and what adjoins it, or all of them when nothing is to be left to read.
std::vector<pugi::xml_node> TextsToReplace(pugi::xml_node element, bool all)
{
    std::vector<pugi::xml_node> texts;
    for (const pugi::xml_node child : element) {
        if (IsText(child))
            texts.push_back(child);
        else if (!all && !texts.empty())
            break;
    }
    return texts;
}

}  // namespace

bool PlainDocument::ToChild(const std::wstring& name)
{
    const pugi::xml_node child = ChildElement(m_current, name.c_str());
    if (child)
        m_current = child;
    return !child.empty();
}

void PlainDocument::Set(const std::wstring& name, const std::wstring& text, std::size_t place)
{
    pugi::xml_node element = ChildElement(m_current, name.c_str());
    if (!element)
        element = Append(m_current, name);
    const std::vector<pugi::xml_node> old = TextsToReplace(element, text.empty());
    if (text == (old.empty() ? L"" : old.front().value()))
        return;
    if (old.empty()) {
        m_mayOpenTag = true;
        pugi::xml_node successor;
        for (; place > 0; --place)
            successor = successor ? successor.previous_sibling() : element.last_child();
        (successor ? element.insert_child_before(pugi::node_pcdata, successor)
                   : element.append_child(pugi::node_pcdata))
            .set_value(text.c_str());
        return;
    }
    m_removed = EndInSource(old.back()) - StartInSource(old.front());
    if (text.empty())
        m_emptied = m_tree.Text().substr(StartInSource(old.front()), m_removed) + L"</" + name;
    element.insert_child_before(pugi::node_pcdata, old.front()).set_value(text.c_str());
    for (const pugi::xml_node piece : old)
        element.remove_child(piece);
}

std::size_t PlainDocument::ChildCount(const std::wstring& name) const
{
    const auto children = ChildElement(m_current, name.c_str()).children();
    return static_cast<std::size_t>(std::distance(children.begin(), children.end()));
}

void PlainDocument::New(const std::wstring& name, const std::wstring& before)
{
    const pugi::xml_node other = before.empty() ? pugi::xml_node() : ChildElement(m_current, before.c_str());
    if (other) {
        m_current = m_current.insert_child_before(pugi::node_element, other);
        m_current.set_name(name.c_str());
    } else {
        m_current = Append(m_current, name);
    }
}

pugi::xml_node PlainDocument::Append(pugi::xml_node parent, const std::wstring& name)
{
    m_mayOpenTag = true;
    pugi::xml_node element = parent.append_child(pugi::node_element);
    element.set_name(name.c_str());
    return element;
}

std::size_t PlainDocument::StartInSource(pugi::xml_node text) const
{
    const auto offset = static_cast<std::size_t>(text.offset_debug());
    return text.type() == pugi::node_cdata ? offset - std::wstring_view(L"<![CDATA[").size() : offset;
}

std::size_t PlainDocument::EndInSource(pugi::xml_node text) const
{
    const auto offset = static_cast<std::size_t>(text.offset_debug());
    const std::wstring& source = m_tree.Text();
    if (text.type() == pugi::node_cdata)
        return source.find(L"]]>", offset) + std::wstring_view(L"]]>").size();
    return std::min(source.find(L'<', offset), source.size());
}

}  // namespace fuzzing
