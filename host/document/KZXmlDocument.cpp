#include "KZXmlDocument.h"

#include <new>
#include <stdexcept>

#include "DocumentState.h"
#include "FileStore.h"
#include "KZUtf8.h"
#include "SourceWriter.h"

namespace {

KZDocumentResult Failure(const std::filesystem::path& file, const std::wstring& reason)
{
    // Not path::wstring(), which throws where the C locale cannot hold the name.
    const std::u8string name = file.u8string();
    const std::wstring wideName = FromUtf8({reinterpret_cast<const char*>(name.data()), name.size()});
    return {false, KZBasicString(wideName + L": " + reason)};
}

std::wstring Describe(const SourceFault& fault)
{
    if (fault.line == 0)
        return fault.reason;
    return L"line " + std::to_wstring(fault.line) + L", column " + std::to_wstring(fault.column) + L": " + fault.reason;
}

}  // namespace

XmlDocument::XmlNode* XmlDocument::State::NodeOf(XmlDocument& document, pugi::xml_node element)
{
    if (!element)
        return nullptr;
    void* const object = element.internal_object();
    return &nodes.try_emplace(object, document, object).first->second;
}

XmlDocument::XmlDocument(const wchar_t* rootName)
{
    const std::wstring name = rootName ? rootName : L"";
    const std::wstring text = L"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<" + name + L"/>\n";
    if (!IsElementName(name) || !Replace(ToUtf8(text), name.c_str()).ok)
        throw std::invalid_argument("the root of a document needs the name of an element");
}

XmlDocument::~XmlDocument() = default;

KZDocumentResult XmlDocument::Replace(std::string_view utf8, const wchar_t* rootName)
{
    auto state = std::make_shared<State>();
    state->source.utf8 = utf8;
    if (const std::optional<SourceFault> fault = ReadSource(state->source, rootName))
        return {false, KZBasicString(Describe(*fault))};
    state->root = state->NodeOf(*this, state->source.tree.document_element());
    m_state = std::move(state);
    return {};
}

KZDocumentResult XmlDocument::Parse(std::string_view utf8)
{
    return Replace(utf8, Root()->Name());
}

KZDocumentResult XmlDocument::Load(const std::filesystem::path& file)
{
    std::error_code unknown;  // reading says why
    if (const auto size = std::filesystem::file_size(file, unknown); !unknown)
        if (const std::optional<SourceFault> fault = CheckSize(size))
            return Failure(file, fault->reason);
    std::string bytes;
    if (const FileOutcome read = ReadWholeFile(file, bytes); !read)
        return Failure(file, read.reason);
    const KZDocumentResult parsed = Parse(bytes);
    return parsed ? parsed : Failure(file, parsed.message.c_str());
}

KZDocumentResult XmlDocument::Save(const std::filesystem::path& file)
{
    const std::string text = Serialize();
    if (const std::optional<SourceFault> fault = CheckSize(text.size()))
        return Failure(file, fault->reason);
    if (const FileOutcome written = ReplaceFileSafely(file, text); !written)
        return Failure(file, written.reason);
    SetDirty(false);
    return {};
}

std::string XmlDocument::Serialize() const
{
    const DocumentSource& source = m_state->source;
    if (!m_state->version.isChanged)
        return source.utf8;
    const std::string text = ToUtf8(SourceWriter(source, m_state->edit).Write());
    return source.HasByteOrderMark() ? "\xEF\xBB\xBF" + text : text;
}

XmlDocument::XmlNode* XmlDocument::Root() const noexcept
{
    return m_state->root;
}

XmlDocument::XmlNode* XmlDocument::Node(const wchar_t* path) const
{
    return Root()->Node(path);
}

void XmlDocument::SetDirty(bool dirty) noexcept
{
    State& state = *m_state;
    state.dirty = dirty;
    state.Keep();
    if (!dirty)
        state.savedVersion = state.version.number;
    else if (state.savedVersion == state.version.number)
        state.savedVersion.reset();
    if (dirty && m_listener)
        m_listener->OnCommit(*this);
}

bool XmlDocument::IsDirty() const noexcept
{
    return m_state->dirty;
}
