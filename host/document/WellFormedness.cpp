#include "WellFormedness.h"

#include <expat.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

#include "KZXmlDocument.h"

namespace {

// expat's memory is C++'s, so that running out of it is one kind of failure. expat also asks for blocks to be resized,
// for which each remembers its size.
constexpr std::size_t BlockHead = alignof(std::max_align_t);
static_assert(BlockHead >= sizeof(std::size_t));

void* Allocate(std::size_t size) noexcept
{
    try {
        auto* const head = static_cast<char*>(::operator new(BlockHead + size));
        std::memcpy(head, &size, sizeof size);
        return head + BlockHead;
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void Free(void* block) noexcept
{
    if (block)
        ::operator delete(static_cast<char*>(block) - BlockHead);
}

void* Resize(void* block, std::size_t size) noexcept
{
    void* const resized = Allocate(size);
    if (!resized || !block)
        return resized;
    std::size_t old = 0;
    std::memcpy(&old, static_cast<char*>(block) - BlockHead, sizeof old);
    std::memcpy(resized, block, std::min(old, size));
    Free(block);
    return resized;
}

constexpr XML_Memory_Handling_Suite Memory{Allocate, Resize, Free};

struct ParserDeleter {
    void operator()(XML_Parser parser) const noexcept { XML_ParserFree(parser); }
};
using Parser = std::unique_ptr<std::remove_pointer_t<XML_Parser>, ParserDeleter>;

struct Reason {
    XML_Error error;
    const wchar_t* text;
};

// The others cannot come up without a document type; expat has English words for each.
constexpr Reason Reasons[] = {
    {XML_ERROR_SYNTAX, L"this may not stand outside the root element"},
    {XML_ERROR_INVALID_TOKEN, L"a character stands here that may not"},
    {XML_ERROR_UNCLOSED_TOKEN, L"what begins here does not end"},
    {XML_ERROR_TAG_MISMATCH, L"the end tag does not match the element that is open here"},
    {XML_ERROR_DUPLICATE_ATTRIBUTE, L"the element has this attribute twice"},
    {XML_ERROR_JUNK_AFTER_DOC_ELEMENT, L"this may not follow the root element"},
    {XML_ERROR_UNDEFINED_ENTITY, L"the entity is not one of XML's own"},
    {XML_ERROR_BAD_CHAR_REF, L"the number stands for no character of XML"},
    {XML_ERROR_MISPLACED_XML_PI, L"an XML declaration may stand only at the very start"},
    {XML_ERROR_XML_DECL, L"the XML declaration is malformed"},
    {XML_ERROR_UNCLOSED_CDATA_SECTION, L"a CDATA section does not end"},
};

// What is well-formed and refused all the same.
enum class Refusal { None, Encoding, DocumentType, Nesting, Name, Attributes };

class Check {
public:
    Check() : m_parser(XML_ParserCreate_MM(nullptr, &Memory, nullptr))
    {
        if (!m_parser)
            throw std::bad_alloc();
        XML_SetUserData(m_parser.get(), this);
        XML_SetXmlDeclHandler(m_parser.get(), OnDeclaration);
        XML_SetStartDoctypeDeclHandler(m_parser.get(), OnDocumentType);
        XML_SetElementHandler(m_parser.get(), OnStart, OnEnd);
    }

    [[nodiscard]] std::optional<SourceFault> Run(std::string_view utf8)
    {
        const XML_Status status = XML_Parse(m_parser.get(), utf8.data(), static_cast<int>(utf8.size()), XML_TRUE);
        if (status == XML_STATUS_OK)
            return std::nullopt;
        const XML_Error error = XML_GetErrorCode(m_parser.get());
        if (error == XML_ERROR_NO_MEMORY)
            throw std::bad_alloc();
        if (m_refusal == Refusal::None)
            return FaultHere(ReasonOf(error));
        m_place.reason = ReasonOfRefusal();
        return m_place;
    }

private:
    static Check& Of(void* data) noexcept { return *static_cast<Check*>(data); }

    [[nodiscard]] SourceFault FaultHere(std::wstring reason) const noexcept
    {
        return {std::move(reason), XML_GetCurrentLineNumber(m_parser.get()),
                XML_GetCurrentColumnNumber(m_parser.get()) + 1};
    }

    // The first refusal counts, at its place: expat stops a little later.
    void Refuse(Refusal refusal) noexcept
    {
        if (m_refusal == Refusal::None) {
            m_refusal = refusal;
            m_place = FaultHere({});
        }
        XML_StopParser(m_parser.get(), XML_FALSE);
    }

    static void OnDeclaration(void* data, const char*, const char* encoding, int) noexcept
    {
        if (encoding)
            Of(data).CheckEncoding(encoding);
    }

    void CheckEncoding(std::string_view encoding) noexcept
    {
        constexpr std::string_view known[] = {"utf-8", "us-ascii"};
        const auto equals = [encoding](std::string_view name) {
            return std::equal(name.begin(), name.end(), encoding.begin(), encoding.end(),
                              [](char lower, char c) { return lower == (c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c); });
        };
        if (std::any_of(std::begin(known), std::end(known), equals))
            return;
        m_encoding[encoding.copy(m_encoding.data(), m_encoding.size() - 1)] = '\0';
        Refuse(Refusal::Encoding);
    }

    static void OnDocumentType(void* data, const char*, const char*, const char*, int) noexcept
    {
        Of(data).Refuse(Refusal::DocumentType);
    }

    static void OnStart(void* data, const char* name, const char** attributes) noexcept
    {
        Check& check = Of(data);
        check.m_hasRoot = true;
        if (++check.m_depth > DeepestNesting)
            check.Refuse(Refusal::Nesting);
        bool tooLong = std::strlen(name) > LongestName;
        std::size_t count = 0;
        for (; attributes[2 * count]; ++count)
            tooLong = tooLong || std::strlen(attributes[2 * count]) > LongestName;
        if (tooLong)
            check.Refuse(Refusal::Name);
        if (count > MostAttributes)
            check.Refuse(Refusal::Attributes);
    }

    static void OnEnd(void* data, const char*) noexcept { --Of(data).m_depth; }

    [[nodiscard]] std::wstring ReasonOfRefusal() const
    {
        switch (m_refusal) {
        case Refusal::Encoding: {
            const std::string_view name = m_encoding.data();
            return L"the declared encoding is " + std::wstring(name.begin(), name.end()) + L" instead of UTF-8";
        }
        case Refusal::DocumentType:
            return L"a document type declaration is not accepted; take it out";
        case Refusal::Nesting:
            return L"the elements are nested more than " + std::to_wstring(DeepestNesting) + L" deep";
        case Refusal::Name:
            return L"a name is longer than " + std::to_wstring(LongestName) + L" bytes";
        case Refusal::Attributes:
            return L"an element has more than " + std::to_wstring(MostAttributes) + L" attributes";
        case Refusal::None:
            break;
        }
        return {};
    }

    [[nodiscard]] std::wstring ReasonOf(XML_Error error) const
    {
        if (error == XML_ERROR_NO_ELEMENTS)
            return m_hasRoot ? L"the document ends too early" : L"there is no root element";
        const auto* const reason = std::find_if(std::begin(Reasons), std::end(Reasons),
                                                [error](const Reason& known) { return known.error == error; });
        if (reason != std::end(Reasons))
            return reason->text;
        const std::string_view text = XML_ErrorString(error);
        return {text.begin(), text.end()};
    }

    Parser m_parser;
    Refusal m_refusal = Refusal::None;
    SourceFault m_place;
    std::array<char, 64> m_encoding{};  // as much of its name as a message can use
    bool m_hasRoot = false;
    int m_depth = 0;
};

}  // namespace

std::optional<SourceFault> CheckSize(std::uintmax_t bytes)
{
    if (bytes <= KZLargestDocument)
        return std::nullopt;
    return SourceFault{L"the document is larger than " + std::to_wstring(KZLargestDocument >> 20) + L" MB"};
}

std::optional<SourceFault> CheckWellFormedness(std::string_view utf8)
{
    if (std::optional<SourceFault> fault = CheckSize(utf8.size()))
        return fault;
    // The one mark that a text may begin with is not part of it; expat would pass over another.
    if (utf8.starts_with("\xEF\xBB\xBF"))
        return SourceFault{L"a second byte order mark stands here", 1, 1};
    // Nor is it for expat to take UTF-16 for what it is, which it tells by these bytes.
    const auto ofUtf16 = [](char byte) { return byte == '\0' || byte == '\xFE' || byte == '\xFF'; };
    if (utf8.size() > 1 && (ofUtf16(utf8[0]) || ofUtf16(utf8[1])))
        return SourceFault{L"the text is not UTF-8", 1, 1};
    return Check().Run(utf8);
}
