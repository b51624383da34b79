#include "DocumentSource.h"

#include <algorithm>
#include <new>

#include "../text/Utf8.h"

namespace {

constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";

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

std::optional<SourceFault> Decode(std::string_view utf8, DocumentSource& source)
{
    if (DecodeUtf8(utf8, source.text) != utf8.size())
        return FaultAt(source.text, source.text.size(), L"the text is not UTF-8");
    if (std::all_of(source.text.begin(), source.text.end(), [](wchar_t c) { return c <= L' '; }))
        return SourceFault{L"the document is empty"};
    const std::size_t lineEnd = source.text.find(L'\n');
    source.windowsLineEnds = lineEnd != std::wstring::npos && lineEnd > 0 && source.text[lineEnd - 1] == L'\r';
    return std::nullopt;
}

// pugixml takes many texts besides the well-formed ones, which are all that comes here.
std::optional<SourceFault> Parse(DocumentSource& source)
{
    const pugi::xml_parse_result result =
        source.tree.load_buffer(source.text.data(), source.text.size() * sizeof(wchar_t),
                                pugi::parse_full | pugi::parse_ws_pcdata, pugi::encoding_wchar);
    if (result.status == pugi::status_out_of_memory)
        throw std::bad_alloc();
    return result ? std::nullopt : std::optional(SourceFault{L"the text cannot be read"});
}

std::optional<SourceFault> CheckRoot(const DocumentSource& source, std::wstring_view rootName)
{
    const pugi::xml_node root = source.tree.document_element();
    if (rootName == root.name())
        return std::nullopt;
    return FaultAt(source.text, static_cast<std::size_t>(std::max<std::ptrdiff_t>(root.offset_debug() - 1, 0)),
                   L"the root element is \"" + std::wstring(root.name()) + L"\" instead of \"" +
                       std::wstring(rootName) + L"\"");
}

}  // namespace

std::optional<SourceFault> ReadSource(std::string_view utf8, const wchar_t* rootName, DocumentSource& source)
{
    source.byteOrderMark = utf8.starts_with(Utf8Mark);
    if (source.byteOrderMark)
        utf8.remove_prefix(Utf8Mark.size());
    if (std::optional<SourceFault> fault = Decode(utf8, source))
        return fault;
    if (std::optional<SourceFault> fault = CheckWellFormedness(utf8))
        return fault;
    if (std::optional<SourceFault> fault = Parse(source))
        return fault;
    return CheckRoot(source, rootName);
}
