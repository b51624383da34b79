#include "DocumentSource.h"

#include <algorithm>
#include <new>

#include "../text/Utf8.h"
#include "KZUtf8.h"

namespace {

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

// The first fault of a text that expat refuses. That it is not UTF-8 comes before all else, wherever that is.
SourceFault FirstFault(std::string_view utf8, SourceFault other)
{
    std::wstring text;
    if (DecodeUtf8(utf8, text) != utf8.size())
        return FaultAt(text, text.size(), L"the text is not UTF-8");
    return other;
}

// pugixml takes many texts besides the well-formed ones, which are all that comes here.
std::optional<SourceFault> Parse(DocumentSource& source)
{
    const std::string_view text = source.Text();
    const pugi::xml_parse_result result = source.tree.load_buffer(
        text.data(), text.size(), pugi::parse_full | pugi::parse_ws_pcdata, pugi::encoding_utf8);
    if (result.status == pugi::status_out_of_memory)
        throw std::bad_alloc();
    return result ? std::nullopt : std::optional(SourceFault{L"the text cannot be read"});
}

std::optional<SourceFault> CheckRoot(const DocumentSource& source, std::wstring_view rootName)
{
    const pugi::xml_node root = source.tree.document_element();
    if (rootName == root.name())
        return std::nullopt;
    return FaultAt(
        FromUtf8(source.Text()), static_cast<std::size_t>(std::max<std::ptrdiff_t>(root.offset_debug() - 1, 0)),
        L"the root element is \"" + std::wstring(root.name()) + L"\" instead of \"" + std::wstring(rootName) + L"\"");
}

}  // namespace

std::optional<SourceFault> ReadSource(DocumentSource& source, const wchar_t* rootName)
{
    const std::string_view text = source.Text();
    if (std::all_of(text.begin(), text.end(), [](unsigned char c) { return c <= ' '; }))
        return SourceFault{L"the document is empty"};
    if (std::optional<SourceFault> fault = CheckWellFormedness(text))
        return FirstFault(text, std::move(*fault));
    if (std::optional<SourceFault> fault = Parse(source))
        return fault;
    return CheckRoot(source, rootName);
}
