#include "DocumentTree.h"

#include "Utf8.h"

namespace fuzzing {
namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

bool IsText(pugi::xml_node node) noexcept
{
    return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata;
}

bool IsBlank(pugi::xml_node node) noexcept
{
    return IsText(node) && std::wstring_view(node.value()).find_first_not_of(L" \t\r\n") == std::wstring_view::npos;
}

bool CountsNot(pugi::xml_node node, bool texts) noexcept
{
    return IsBlank(node) || (!texts && IsText(node));
}

// The node itself, or the next one that counts.
pugi::xml_node Counting(pugi::xml_node node, bool texts) noexcept
{
    while (node && CountsNot(node, texts))
        node = node.next_sibling();
    return node;
}

bool SameAttributes(pugi::xml_node left, pugi::xml_node right) noexcept
{
    pugi::xml_attribute l = left.first_attribute();
    pugi::xml_attribute r = right.first_attribute();
    for (; l && r; l = l.next_attribute(), r = r.next_attribute())
        if (std::wstring_view(l.name()) != r.name() || std::wstring_view(l.value()) != r.value())
            return false;
    return !l && !r;
}

bool SameNode(pugi::xml_node left, pugi::xml_node right) noexcept
{
    const bool sameType = left.type() == right.type() || (IsText(left) && IsText(right));
    return sameType && std::wstring_view(left.name()) == right.name() &&
           std::wstring_view(left.value()) == right.value() && SameAttributes(left, right);
}

// Compares the children; more elements at the end of the right one are allowed or not.
bool SameChildren(pugi::xml_node left, pugi::xml_node right, bool mayHaveMore,
                  const std::function<bool(pugi::xml_node)>& mayChange)
{
    const bool texts = !mayChange(left);
    pugi::xml_node l = Counting(left.first_child(), texts);
    pugi::xml_node r = Counting(right.first_child(), texts);
    for (; l && r; l = Counting(l.next_sibling(), texts), r = Counting(r.next_sibling(), texts))
        if (!SameNode(l, r) || !SameChildren(l, r, mayHaveMore, mayChange))
            return false;
    for (; mayHaveMore && r.type() == pugi::node_element;)
        r = Counting(r.next_sibling(), texts);
    return !l && !r;
}

}  // namespace

DocumentTree::DocumentTree(std::string_view utf8)
{
    if (utf8.starts_with(ByteOrderMark))
        utf8.remove_prefix(ByteOrderMark.size());
    m_read = DecodeUtf8(utf8, m_text) == utf8.size() &&
             m_tree.load_buffer(m_text.data(), m_text.size() * sizeof(wchar_t),
                                pugi::parse_full | pugi::parse_ws_pcdata, pugi::encoding_wchar);
}

bool SameContent(pugi::xml_node left, pugi::xml_node right)
{
    return SameNode(left, right) && SameChildren(left, right, false, [](pugi::xml_node) { return false; });
}

bool StillThere(pugi::xml_node earlier, pugi::xml_node later, const std::function<bool(pugi::xml_node)>& mayChange)
{
    return SameNode(earlier, later) && SameChildren(earlier, later, true, mayChange);
}

}  // namespace fuzzing
