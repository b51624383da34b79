// The input is a text. Whether it is XML is asked of libxml2 too, which knows nothing of expat.
#include <libxml/parser.h>

#include <algorithm>
#include <memory>

#include "Fuzzing.h"
#include "KZXmlDocument.h"
#include "WellFormedness.h"

namespace {

using fuzzing::Require;

struct DocumentDeleter {
    void operator()(xmlDoc* document) const noexcept { xmlFreeDoc(document); }
};

bool OtherTakes(std::string_view text)
{
    constexpr int quiet = XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_NONET | XML_PARSE_HUGE;
    const std::unique_ptr<xmlDoc, DocumentDeleter> document(
        xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr, quiet));
    return document != nullptr;
}

// Where the two may differ: names beyond ASCII, which the fifth edition of XML allows more of; a zero character, which
// ends the text for libxml2; and what is refused although it is XML.
bool MayDiffer(std::string_view text)
{
    return std::any_of(text.begin(), text.end(), [](char c) { return static_cast<signed char>(c) <= 0; }) ||
           text.find("<!DOCTYPE") != std::string_view::npos || text.find("encoding") != std::string_view::npos ||
           text.find("version") != std::string_view::npos;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    XmlDocument document(L"r");
    const KZDocumentResult read = document.Parse(text);
    if (read) {
        // Which version a declaration may name has changed with the editions of XML.
        Require(OtherTakes(text) || text.find("version") != std::string_view::npos, "what is taken is XML");
        Require(document.Serialize() == text, "what nobody changes is written back byte for byte");
    } else if (!MayDiffer(text) && OtherTakes(text)) {
        const auto fault = CheckWellFormedness(text);
        Require(!fault || fault->reason.find(L" than ") != std::wstring::npos,
                "what is refused is no XML, or beyond the bounds");
    }
    return 0;
}
