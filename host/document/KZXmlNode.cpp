#include <cstdarg>

#include "../text/WideFormat.h"
#include "DocumentState.h"
#include "QueryPath.h"

namespace {

pugi::xml_node Element(void* element) noexcept
{
    return pugi::xml_node(static_cast<pugi::xml_node_struct*>(element));
}

}  // namespace

XmlDocument::XmlNode::XmlNode(XmlDocument& document, void* element) noexcept : m_document(&document), m_element(element)
{
}

XmlDocument::XmlNode::~XmlNode() = default;

XmlDocument::XmlNode* XmlDocument::XmlNode::Wrap(void* element) const
{
    return m_document->m_state->NodeOf(*m_document, Element(element));
}

const wchar_t* XmlDocument::XmlNode::Name() const noexcept
{
    return Element(m_element).name();
}

const wchar_t* XmlDocument::XmlNode::Value(const wchar_t* path, const wchar_t* defaultText) const noexcept
{
    const pugi::xml_node value = FindElement(Element(m_element), path);
    return value ? TextOf(value) : defaultText;
}

XmlDocument::XmlNode* XmlDocument::XmlNode::Node(const wchar_t* path) const
{
    return Wrap(FindElement(Element(m_element), path).internal_object());
}

XmlDocument::XmlNode* XmlDocument::XmlNode::NodeV(const wchar_t* format, ...) const
{
    std::va_list arguments;
    va_start(arguments, format);
    const std::wstring path = FormatWide(format, arguments);
    va_end(arguments);
    return Node(path.c_str());
}

XmlDocument::XmlNode* XmlDocument::XmlNode::NewChild(const wchar_t* name, XmlNode* before)
{
    const pugi::xml_node parent = Element(m_element);
    const pugi::xml_node successor = before ? Element(before->m_element) : pugi::xml_node();
    if (!name || !IsElementName(name) || (before && successor.parent() != parent))
        return nullptr;
    NewElement element(parent, name, successor);
    XmlNode* node = Wrap(element.Get().internal_object());
    element.Keep();
    m_document->m_state->changed = true;
    return node;
}

bool XmlDocument::XmlNode::SetValue(const wchar_t* name, const wchar_t* text)
{
    if (!name || !IsElementName(name))
        return false;
    State& state = *m_document->m_state;
    const std::wstring_view newText = text ? text : L"";
    if (const pugi::xml_node value = ChildElement(Element(m_element), name)) {
        if (SetText(value, newText, state.replaced))
            state.changed = true;
        return true;
    }
    NewElement value(Element(m_element), name, {});
    SetText(value.Get(), newText, state.replaced);
    value.Keep();
    state.changed = true;
    return true;
}

bool XmlDocument::XmlNode::SetValue(const wchar_t* name, int value)
{
    return SetValue(name, std::to_wstring(value).c_str());
}

XmlDocument::XmlNode* XmlDocument::XmlNode::FirstChild(const wchar_t* name) const
{
    return name ? Wrap(ChildElement(Element(m_element), name).internal_object()) : nullptr;
}

XmlDocument::XmlNode* XmlDocument::XmlNode::NextSibling(const wchar_t* name) const
{
    return name ? Wrap(NextElement(Element(m_element), name).internal_object()) : nullptr;
}
