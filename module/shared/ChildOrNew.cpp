#include "ChildOrNew.h"

namespace zep {

XmlDocument::XmlNode& ChildOrNew(XmlDocument::XmlNode& parent, const wchar_t* name)
{
    XmlDocument::XmlNode* const child = parent.Node(name);
    return child ? *child : *parent.NewChild(name, nullptr);
}

XmlDocument::XmlNode& ChildOrNew(XmlDocument::XmlNode& parent, const wchar_t* name, const wchar_t* value,
                                 const wchar_t* text)
{
    XmlDocument::XmlNode* const child = parent.NodeV(L"%s?%s=%s?", name, value, text);
    return child ? *child : NewChildWith(parent, name, value, text);
}

XmlDocument::XmlNode& NewChildWith(XmlDocument::XmlNode& parent, const wchar_t* name, const wchar_t* value,
                                   const wchar_t* text)
{
    XmlDocument::XmlNode& child = *parent.NewChild(name, nullptr);
    child.SetValue(value, text);
    return child;
}

}  // namespace zep
