#include <cstdarg>

#include "../text/WideFormat.h"
#include "DocumentState.h"
#include "Indentation.h"
#include "QueryPath.h"

namespace {

pugi::xml_node Handle(void* element) noexcept
{
    return pugi::xml_node(static_cast<pugi::xml_node_struct*>(element));
}

void* ElementFrom(pugi::xml_node node) noexcept
{
    while (node && node.type() != pugi::node_element)
        node = node.next_sibling();
    return node.internal_object();
}

// FNV-1a, with the end of each text in it.
void Mix(std::uint64_t& hash, const wchar_t* text) noexcept
{
    constexpr std::uint64_t prime = 0x100000001B3;
    do
        hash = (hash ^ static_cast<std::uint64_t>(*text)) * prime;
    while (*text++);
}

void Mix(std::uint64_t& hash, pugi::xml_node element) noexcept
{
    Mix(hash, element.name());
    for (const pugi::xml_attribute attribute : element.attributes()) {
        Mix(hash, attribute.name());
        Mix(hash, attribute.value());
    }
    for (const pugi::xml_node child : element) {
        if (child.type() == pugi::node_element)
            Mix(hash, child);
        else if (child.type() == pugi::node_cdata || (child.type() == pugi::node_pcdata && !IsBlankText(child)))
            Mix(hash, child.value());
    }
    Mix(hash, L"");
}

// A document that is nested deeper could not be read again.
bool MayHaveChildren(pugi::xml_node element) noexcept
{
    int depth = 0;
    for (; element.type() == pugi::node_element; element = element.parent())
        ++depth;
    return depth < DeepestNesting;
}

}  // namespace

const wchar_t* XmlDocument::Element::Name() const noexcept
{
    return Handle(m_element).name();
}

const wchar_t* XmlDocument::Element::Text() const noexcept
{
    return TextOf(Handle(m_element));
}

XmlDocument::Element XmlDocument::Element::FirstChild() const noexcept
{
    return Element(ElementFrom(Handle(m_element).first_child()));
}

XmlDocument::Element XmlDocument::Element::NextSibling() const noexcept
{
    return Element(ElementFrom(Handle(m_element).next_sibling()));
}

XmlDocument::XmlNode::XmlNode(XmlDocument& document, void* element) noexcept : m_document(&document), m_element(element)
{
}

XmlDocument::XmlNode* XmlDocument::XmlNode::Wrap(void* element) const
{
    State& state = *m_document->m_state;
    return state.Edit([&] { return state.NodeOf(*m_document, Handle(element)); });
}

const wchar_t* XmlDocument::XmlNode::Name() const noexcept
{
    return Handle(m_element).name();
}

const wchar_t* XmlDocument::XmlNode::Value(const wchar_t* path, const wchar_t* defaultText) const noexcept
{
    const pugi::xml_node value = FindElement(Handle(m_element), path, m_document->m_state->indexes);
    return value ? TextOf(value) : defaultText;
}

XmlDocument::XmlNode* XmlDocument::XmlNode::Node(const wchar_t* path) const
{
    return Wrap(FindElement(Handle(m_element), path, m_document->m_state->indexes).internal_object());
}

XmlDocument::XmlNode* XmlDocument::XmlNode::NodeV(const wchar_t* format, ...) const
{
    std::va_list arguments;
    va_start(arguments, format);
    const std::wstring path = m_document->m_state->Edit([&] { return FormatWide(format, arguments); });
    va_end(arguments);
    return Node(path.c_str());
}

XmlDocument::XmlNode* XmlDocument::XmlNode::NewChild(const wchar_t* name, XmlNode* before)
{
    const pugi::xml_node parent = Handle(m_element);
    const pugi::xml_node successor = before ? Handle(before->m_element) : pugi::xml_node();
    State& state = *m_document->m_state;
    return state.Edit([&]() -> XmlNode* {
        if (!name || !IsElementName(name) || (before && successor.parent() != parent) || !MayHaveChildren(parent))
            return nullptr;
        XmlNode* const node = state.NodeOf(*m_document, state.edit.AddElement(parent, name, successor));
        state.indexes.Changed(parent, name);
        state.Changed();
        return node;
    });
}

bool XmlDocument::XmlNode::RemoveChild(XmlNode* child)
{
    State& state = *m_document->m_state;
    return state.Edit([&] {
        if (!child || Handle(child->m_element).parent() != Handle(m_element))
            return false;
        state.edit.Remove(Handle(child->m_element));
        state.indexes.Clear();
        state.Changed();
        return true;
    });
}

bool XmlDocument::XmlNode::SetValue(const wchar_t* name, const wchar_t* text)
{
    State& state = *m_document->m_state;
    return state.Edit([&] {
        if (!name || !IsElementName(name))
            return false;
        const pugi::xml_node element = Handle(m_element);
        pugi::xml_node value = ChildElement(element, name);
        const bool isNew = !value;
        if (isNew && !MayHaveChildren(element))
            return false;
        if (isNew)
            value = state.edit.AddElement(element, name, {});
        const bool isOther = state.edit.SetText(value, text ? text : L"");
        if (isNew)
            state.indexes.GotFirst(element, name);
        else if (isOther)
            state.indexes.Changed(element, name);
        if (isNew || isOther)
            state.Changed();
        return true;
    });
}

bool XmlDocument::XmlNode::SetValue(const wchar_t* name, int value)
{
    return m_document->m_state->Edit([&] { return SetValue(name, std::to_wstring(value).c_str()); });
}

XmlDocument::XmlNode* XmlDocument::XmlNode::FirstChild(const wchar_t* name) const
{
    return name ? Wrap(ChildElement(Handle(m_element), name).internal_object()) : nullptr;
}

XmlDocument::XmlNode* XmlDocument::XmlNode::NextSibling(const wchar_t* name) const
{
    return name ? Wrap(NextElement(Handle(m_element), name).internal_object()) : nullptr;
}

std::uint64_t XmlDocument::XmlNode::Fingerprint() const noexcept
{
    std::uint64_t hash = 0xCBF29CE484222325;
    Mix(hash, Handle(m_element));
    return hash;
}
