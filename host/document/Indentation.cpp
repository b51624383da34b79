#include "Indentation.h"

#include <algorithm>
#include <string_view>

namespace {

constexpr std::wstring_view Blanks = L" \t\r\n";
constexpr std::wstring_view UsualStep = L"  ";

bool IsRoot(pugi::xml_node element) noexcept
{
    return element.parent().type() == pugi::node_document;
}

// The line end and blanks in front of a node; empty when it does not begin its line.
std::wstring LeadOf(pugi::xml_node node)
{
    if (IsRoot(node))
        return L"\n";
    const pugi::xml_node previous = node.previous_sibling();
    if (!IsBlankText(previous))
        return {};
    const std::wstring_view blanks = previous.value();
    const std::size_t lineEnd = blanks.rfind(L'\n');
    return lineEnd == std::wstring_view::npos ? std::wstring() : std::wstring(blanks.substr(lineEnd));
}

pugi::xml_node LastElement(pugi::xml_node parent) noexcept
{
    pugi::xml_node child = parent.last_child();
    while (child && child.type() != pugi::node_element)
        child = child.previous_sibling();
    return child;
}

// Text that says something, and to which blanks must not be added.
bool IsContent(pugi::xml_node node) noexcept
{
    return (node.type() == pugi::node_pcdata && !IsBlankText(node)) || node.type() == pugi::node_cdata;
}

bool HasText(pugi::xml_node parent) noexcept
{
    return std::any_of(parent.begin(), parent.end(), IsContent);
}

// How much deeper an element is indented than the one around it.
std::wstring StepInto(pugi::xml_node element, const std::wstring& lead)
{
    if (IsRoot(element))
        return std::wstring(UsualStep);
    const std::wstring outer = LeadOf(element.parent());
    return !outer.empty() && lead.size() > outer.size() && lead.starts_with(outer) ? lead.substr(outer.size())
                                                                                   : std::wstring(UsualStep);
}

}  // namespace

bool IsBlankText(pugi::xml_node node) noexcept
{
    return node.type() == pugi::node_pcdata &&
           std::wstring_view(node.value()).find_first_not_of(Blanks) == std::wstring_view::npos;
}

Indentation IndentationBefore(pugi::xml_node child)
{
    return {{}, LeadOf(child)};
}

Indentation IndentationAtEnd(pugi::xml_node parent)
{
    if (IsContent(parent.last_child()))
        return {};
    if (const pugi::xml_node sibling = LastElement(parent))
        return {LeadOf(sibling), {}};
    if (HasText(parent))
        return {};
    const std::wstring lead = LeadOf(parent);
    if (lead.empty())
        return {};
    // The parent's end tag needs a line of its own too, unless it has one.
    return {lead + StepInto(parent, lead), IsBlankText(parent.last_child()) ? std::wstring() : lead};
}
