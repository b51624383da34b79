// The input's first line is a query path, what follows a document with the root element "r".
#include "DocumentTree.h"
#include "Fuzzing.h"
#include "KZXmlDocument.h"
#include "PlainPaths.h"

namespace {

using fuzzing::Require;

void CheckPath(const XmlDocument& document, pugi::xml_node root, const std::wstring& path)
{
    const XmlDocument::XmlNode* found = document.Node(path.c_str());
    const pugi::xml_node wanted = fuzzing::FollowPath(root, path);
    Require((found != nullptr) == !wanted.empty(), "both find an element or none");
    Require(document.Root()->Node(path.c_str()) == found, "the document's path starts at its root");
    const wchar_t* value = document.Root()->Value(path.c_str(), nullptr);
    Require((value != nullptr) == (found != nullptr), "an element that is there has a value");
    if (!found)
        return;
    Require(std::wstring_view(found->Name()) == wanted.name(), "both find elements of one name");
    Require(std::wstring_view(value) == wanted.child_value(), "both find the same text");
    Require(document.Root()->NodeV(L"%s", path.c_str()) == found, "a path as an argument is the path");
}

// The siblings of one name, counted by the product and by the parser.
void CheckSiblings(const XmlDocument& document, pugi::xml_node root, const std::wstring& name)
{
    const auto* child = document.Root()->FirstChild(name.c_str());
    for (const pugi::xml_node wanted : root.children(name.c_str())) {
        if (wanted.type() != pugi::node_element)
            continue;
        Require(child && child->Name() == name, "no sibling is left out");
        child = child->NextSibling(name.c_str());
    }
    Require(!child, "there are no more siblings than the parser has");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzzing::Input input(data, size);
    const std::wstring path = fuzzing::Wide(input.TakeLine());
    XmlDocument document(L"r");
    if (!document.Parse(input.Rest()))
        return 0;
    const fuzzing::DocumentTree tree(input.Rest());
    Require(tree.IsRead(), "what the document accepts is XML");
    CheckPath(document, tree.Root(), path);
    CheckSiblings(document, tree.Root(), path);
    return 0;
}
