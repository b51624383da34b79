#include "DocumentSource.h"

#include <algorithm>
#include <array>
#include <cwctype>
#include <new>

#include "Utf8.h"

namespace {

constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";

// Deeper documents than any that make sense; writing one descends as deep as the document.
constexpr int DeepestNesting = 256;

SourceFault FaultAt(const std::wstring& text, std::size_t offset, std::wstring reason)
{
    SourceFault fault{std::move(reason), 1, 1};
    for (std::size_t at = 0; at < std::min(offset, text.size()); ++at) {
        const bool lineEnd = text[at] == L'\n' || (text[at] == L'\r' && text[at + 1] != L'\n');
        // The second half of a surrogate pair is not a column of its own, nor is the first half of a line end.
        const bool half = (text[at] >= 0xDC00 && text[at] <= 0xDFFF) || (text[at] == L'\r' && !lineEnd);
        fault.line += lineEnd ? 1 : 0;
        fault.column = lineEnd ? 1 : fault.column + (half ? 0 : 1);
    }
    return fault;
}

std::wstring ReasonOf(pugi::xml_parse_status status)
{
    switch (status) {
    case pugi::status_unrecognized_tag:
        return L"this is no tag";
    case pugi::status_bad_pi:
        return L"a declaration or processing instruction is malformed";
    case pugi::status_bad_comment:
        return L"a comment is malformed or does not end";
    case pugi::status_bad_cdata:
        return L"a CDATA section is malformed or does not end";
    case pugi::status_bad_doctype:
        return L"the document type is malformed or does not end";
    case pugi::status_bad_pcdata:
        return L"a text is malformed";
    case pugi::status_bad_start_element:
        return L"a start tag is malformed";
    case pugi::status_bad_attribute:
        return L"an attribute is malformed";
    case pugi::status_bad_end_element:
        return L"an end tag is malformed";
    case pugi::status_end_element_mismatch:
        return L"the end tag does not match the element that is open here";
    case pugi::status_no_document_element:
        return L"there is no root element";
    default:
        return L"the text cannot be read";
    }
}

std::optional<SourceFault> Decode(std::string_view utf8, DocumentSource& source)
{
    source.byteOrderMark = utf8.starts_with(Utf8Mark);
    if (source.byteOrderMark)
        utf8.remove_prefix(Utf8Mark.size());
    if (DecodeUtf8(utf8, source.text) != utf8.size())
        return FaultAt(source.text, source.text.size(), L"the text is not UTF-8");
    if (const std::size_t zero = source.text.find(L'\0'); zero != std::wstring::npos)
        return FaultAt(source.text, zero, L"a zero character is not allowed");
    if (std::all_of(source.text.begin(), source.text.end(), [](wchar_t c) { return c <= L' '; }))
        return SourceFault{L"the document is empty"};
    const std::size_t lineEnd = source.text.find(L'\n');
    source.windowsLineEnds = lineEnd != std::wstring::npos && lineEnd > 0 && source.text[lineEnd - 1] == L'\r';
    return std::nullopt;
}

std::optional<SourceFault> Parse(DocumentSource& source)
{
    const pugi::xml_parse_result result =
        source.tree.load_buffer(source.text.data(), source.text.size() * sizeof(wchar_t),
                                pugi::parse_full | pugi::parse_ws_pcdata, pugi::encoding_wchar);
    if (result)
        return std::nullopt;
    if (result.status == pugi::status_out_of_memory)
        throw std::bad_alloc();
    if (result.status == pugi::status_no_document_element)
        return SourceFault{ReasonOf(result.status)};
    const auto offset = static_cast<std::size_t>(std::max<std::ptrdiff_t>(result.offset, 0));
    const std::size_t end = source.text.find_last_not_of(L" \t\r\n") + 1;
    return offset + 1 < end ? FaultAt(source.text, offset, ReasonOf(result.status))
                            : FaultAt(source.text, end, L"the document ends too early");
}

bool EqualIgnoringCase(std::wstring_view left, std::wstring_view right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), [](wchar_t l, wchar_t r) {
        return std::towlower(static_cast<std::wint_t>(l)) == static_cast<std::wint_t>(r);
    });
}

class DepthCheck : public pugi::xml_tree_walker {
public:
    bool for_each(pugi::xml_node&) override { return depth() < DeepestNesting; }
};

std::optional<SourceFault> CheckShape(DocumentSource& source, std::wstring_view rootName)
{
    for (const pugi::xml_node node : source.tree) {
        if (node.type() != pugi::node_declaration)
            continue;
        const std::wstring_view encoding = node.attribute(L"encoding").value();
        constexpr std::array<std::wstring_view, 3> utf8Names{L"", L"utf-8", L"us-ascii"};
        if (std::none_of(utf8Names.begin(), utf8Names.end(),
                         [encoding](std::wstring_view name) { return EqualIgnoringCase(encoding, name); }))
            return SourceFault{L"the declared encoding is " + std::wstring(encoding) + L" instead of UTF-8", 1, 1};
    }
    const pugi::xml_node root = source.tree.document_element();
    const auto offsetOf = [](pugi::xml_node element) { return static_cast<std::size_t>(element.offset_debug() - 1); };
    if (rootName != root.name())
        return FaultAt(source.text, offsetOf(root),
                       L"the root element is \"" + std::wstring(root.name()) + L"\" instead of \"" +
                           std::wstring(rootName) + L"\"");
    for (pugi::xml_node other = root.next_sibling(); other; other = other.next_sibling())
        if (other.type() == pugi::node_element)
            return FaultAt(source.text, offsetOf(other), L"there is a second root element");
    DepthCheck depth;
    if (!source.tree.traverse(depth))
        return SourceFault{L"the elements are nested too deeply"};
    return std::nullopt;
}

}  // namespace

std::optional<SourceFault> ReadSource(std::string_view utf8, const wchar_t* rootName, DocumentSource& source)
{
    if (std::optional<SourceFault> fault = Decode(utf8, source))
        return fault;
    if (std::optional<SourceFault> fault = Parse(source))
        return fault;
    return CheckShape(source, rootName);
}
