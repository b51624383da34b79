#include "SourceWriter.h"

#include <cwchar>

#include "KZUtf8.h"

namespace {

class Appender : public pugi::xml_writer {
public:
    explicit Appender(std::wstring& text) noexcept : m_text(text) {}
    void write(const void* data, std::size_t size) override
    {
        m_text.append(static_cast<const wchar_t*>(data), size / sizeof(wchar_t));
    }

private:
    std::wstring& m_text;
};

// How far the start of a node is in front of the place that pugixml gives for it.
std::size_t PrefixLength(pugi::xml_node_type type) noexcept
{
    switch (type) {
    case pugi::node_cdata:
        return std::wcslen(L"<![CDATA[");
    case pugi::node_comment:
        return std::wcslen(L"<!--");
    case pugi::node_element:
        return std::wcslen(L"<");
    default:
        return 0;
    }
}

}  // namespace

SourceWriter::SourceWriter(const DocumentSource& source, const TreeEdit& edit)
    : m_source(source), m_text(FromUtf8(source.Text())), m_edit(edit)
{
    const std::size_t lineEnd = m_text.find(L'\n');
    m_windowsLineEnds = lineEnd != std::wstring::npos && lineEnd > 0 && m_text[lineEnd - 1] == L'\r';
}

std::wstring SourceWriter::Write()
{
    m_out.reserve(m_text.size() + m_text.size() / 8);
    WriteElement(m_source.tree.document_element());
    CopyTo(m_text.size());
    return std::move(m_out);
}

// Where nothing is new, only its end is of interest, and only where something new follows or the parent ends.
std::size_t SourceWriter::WriteElement(pugi::xml_node element)
{
    const StartTag tag = FindStartTag(static_cast<std::size_t>(element.offset_debug()));
    std::size_t end = tag.end;
    pugi::xml_node unchanged;  // the child that was read before, when its end is not known yet
    const auto behindIt = [&] {
        return unchanged ? EndOf(unchanged.type(), static_cast<std::size_t>(unchanged.offset_debug())) : end;
    };
    bool split = false;
    for (const pugi::xml_node child : element) {
        if (const auto old = m_edit.Replaced().find(child.internal_object()); old != m_edit.Replaced().end()) {
            end = WriteReplaced(child, old->second);
            unchanged = {};
        } else if (child.offset_debug() >= 0) {
            const bool isTouched = child.type() == pugi::node_element && m_edit.IsTouched(child);
            end = isTouched ? WriteElement(child) : end;
            unchanged = isTouched ? pugi::xml_node() : child;
        } else if (child.type() == pugi::node_element || *child.value()) {
            if (tag.isWholeElement && !split) {
                SplitTag(tag.end);
                split = true;
            }
            end = behindIt();
            unchanged = {};
            CopyTo(end);
            WriteNew(child);
        }
    }
    if (split)
        m_out.append(L"</").append(element.name()).append(L">");
    return tag.isWholeElement ? tag.end : EndBehind(L">", behindIt());
}

std::size_t SourceWriter::WriteReplaced(pugi::xml_node node, const ReplacedText& old)
{
    CopyTo(static_cast<std::size_t>(old.firstOffset) - PrefixLength(old.firstType));
    if (node.type() != pugi::node_comment)
        WriteNew(node);
    m_copied = EndOf(old.lastType, static_cast<std::size_t>(old.lastOffset));
    return m_copied;
}

void SourceWriter::WriteNew(pugi::xml_node node)
{
    std::wstring text;
    Appender appender(text);
    node.print(appender, L"", pugi::format_raw, pugi::encoding_wchar);
    for (const wchar_t character : text) {
        if (character == L'\n' && m_windowsLineEnds)
            m_out += L'\r';
        m_out += character;
    }
}

// Makes <name/> the start tag <name>; its end tag is written behind its new content.
void SourceWriter::SplitTag(std::size_t tagEnd)
{
    const std::size_t slash = tagEnd - std::wcslen(L"/>");
    CopyTo(m_text.find_last_not_of(L" \t\r\n", slash - 1) + 1);
    m_out += L'>';
    m_copied = tagEnd;
}

void SourceWriter::CopyTo(std::size_t end)
{
    if (end <= m_copied)
        return;
    m_out.append(m_text, m_copied, end - m_copied);
    m_copied = end;
}

SourceWriter::StartTag SourceWriter::FindStartTag(std::size_t at) const noexcept
{
    wchar_t quote = L'\0';
    for (; at < m_text.size(); ++at) {
        const wchar_t character = m_text[at];
        if (quote)
            quote = character == quote ? L'\0' : quote;
        else if (character == L'"' || character == L'\'')
            quote = character;
        else if (character == L'>')
            break;
    }
    return {at + 1, m_text[at - 1] == L'/'};
}

std::size_t SourceWriter::EndBehind(const wchar_t* mark, std::size_t from) const noexcept
{
    const std::size_t found = m_text.find(mark, from);
    return found == std::wstring::npos ? m_text.size() : found + std::wcslen(mark);
}

// Of an element that the tree has no longer, by its tags.
std::size_t SourceWriter::EndOfElement(std::size_t offset) const noexcept
{
    StartTag tag = FindStartTag(offset);
    for (int open = tag.isWholeElement ? 0 : 1; open > 0;) {
        const std::size_t mark = std::min(m_text.find(L'<', tag.end), m_text.size());
        const std::wstring_view rest = std::wstring_view(m_text).substr(mark);
        if (rest.starts_with(L"<!--")) {
            tag.end = EndBehind(L"-->", mark + 4);  // a comment may begin with ">"
        } else if (rest.starts_with(L"<![CDATA[")) {
            tag.end = EndBehind(L"]]>", mark);
        } else if (rest.starts_with(L"<?")) {
            tag.end = EndBehind(L"?>", mark);
        } else if (rest.starts_with(L"</")) {
            tag.end = EndBehind(L">", mark);
            --open;
        } else {
            tag = FindStartTag(mark);
            open += tag.isWholeElement ? 0 : 1;
        }
    }
    return tag.end;
}

std::size_t SourceWriter::EndOf(pugi::xml_node_type type, std::size_t offset) const noexcept
{
    switch (type) {
    case pugi::node_element:
        return EndOfElement(offset);
    case pugi::node_cdata:
        return EndBehind(L"]]>", offset);
    case pugi::node_comment:
        return EndBehind(L"-->", offset);
    case pugi::node_pi:
    case pugi::node_declaration:
        return EndBehind(L"?>", offset);
    default:
        return std::min(m_text.find(L'<', offset), m_text.size());
    }
}
