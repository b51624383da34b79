// The input's lines up to an empty one are edits, what follows a document with the root element "r". Edits act on a
// current element, at first the root:
//
//   > NAME          its first child of that name becomes current, if there is one
//   = NAME TEXT     set the named value; "\r" and "\n" stand for line ends
//   + NAME          create a child at the end, which becomes current
//   < NAME OTHER    create a child before the first one named OTHER; the new one becomes current
//   / anything      the root becomes current
#include <algorithm>
#include <vector>

#include "Fuzzing.h"
#include "KZXmlDocument.h"
#include "PlainDocument.h"

namespace {

using fuzzing::DocumentTree;
using fuzzing::PlainDocument;
using fuzzing::Require;

constexpr std::size_t MostEdits = 6;

std::wstring TakeWord(std::wstring& text)
{
    const std::size_t end = std::min(text.find(L' '), text.size());
    std::wstring word = text.substr(0, end);
    text.erase(0, end + 1);
    return word;
}

std::wstring WithLineEnds(std::wstring text)
{
    for (const auto& [spelled, meant] : {std::pair{L"\\r", L"\r"}, std::pair{L"\\n", L"\n"}})
        for (std::size_t at; (at = text.find(spelled)) != std::wstring::npos;)
            text.replace(at, 2, meant);
    return text;
}

// The text as XML can hold it.
std::wstring Storable(std::wstring text)
{
    for (std::size_t at = 0; (at = text.find(L"\r\n", at)) != std::wstring::npos; ++at)
        text.erase(at, 1);
    for (wchar_t& character : text) {
        if (character == L'\r')
            character = L'\n';
        const bool control = character < L' ' && character != L'\t' && character != L'\n';
        if (control || character == 0xFFFE || character == 0xFFFF)
            character = L'\uFFFD';
    }
    return text;
}

// What stands between what two texts have in common at their starts and at their ends.
std::wstring_view TakenAway(std::wstring_view earlier, std::wstring_view later)
{
    const std::size_t shorter = std::min(earlier.size(), later.size());
    std::size_t front = 0;
    while (front < shorter && earlier[front] == later[front])
        ++front;
    std::size_t back = 0;
    while (back < shorter - front && earlier[earlier.size() - 1 - back] == later[later.size() - 1 - back])
        ++back;
    return earlier.substr(front, earlier.size() - front - back);
}

void CheckSource(const std::string& earlier, const std::string& later, const PlainDocument& plain)
{
    const std::wstring from = fuzzing::Wide(earlier);
    const std::wstring to = fuzzing::Wide(later);
    const std::wstring_view taken = TakenAway(from, to);
    const bool opened = plain.MayOpenTag() && taken.find_first_not_of(L" \t\r\n/") == std::wstring_view::npos;
    // An element that was read as <name/> is written so again when the text that an edit gave it is gone.
    const bool closed = !plain.Emptied().empty() && taken == L">" + plain.Emptied();
    Require(opened || closed || taken.size() <= plain.Removed(),
            "one edit takes away no more than the text that it replaces");
}

class Editor {
public:
    explicit Editor(XmlDocument& document) : m_document(document), m_current(document.Root()) {}

    void Do(std::wstring edit)
    {
        const std::wstring kind = TakeWord(edit);
        if (kind == L">")
            Enter(TakeWord(edit));
        else if (kind == L"/")
            Leave();
        else if (kind == L"=")
            Set(edit);
        else if (kind == L"+" || kind == L"<")
            Create(edit, kind == L"<");
    }

private:
    void Enter(const std::wstring& name)
    {
        XmlDocument::XmlNode* child = m_current->FirstChild(name.c_str());
        if (!child)
            return;
        m_current = child;
        m_path.push_back(name);
    }
    void Leave()
    {
        m_current = m_document.Root();
        m_path.clear();
    }

    void Set(std::wstring arguments)
    {
        const std::wstring name = TakeWord(arguments);
        const std::wstring text = WithLineEnds(arguments);
        const std::string earlier = m_document.Serialize();
        const bool done = m_current->SetValue(name.c_str(), text.c_str());
        // A text that comes back to a value that was emptied takes its old place among the children, of which the
        // written document knows nothing.
        std::size_t place = 0;
        std::size_t places = 0;
        const auto set = [&](PlainDocument& plain) {
            places = plain.ChildCount(name);
            plain.Set(name, Storable(text), place);
        };
        while (done && !Matches(earlier, set) && place < places)
            ++place;
        Compare(earlier, done, set);
        Require(!done || m_current->Value(name.c_str(), L"?") == Storable(text), "a value that was set reads so");
    }

    void Create(std::wstring arguments, bool beforeOther)
    {
        const std::wstring name = TakeWord(arguments);
        const std::wstring other = beforeOther ? TakeWord(arguments) : L"";
        XmlDocument::XmlNode* before = beforeOther ? m_current->FirstChild(other.c_str()) : nullptr;
        const std::string earlier = m_document.Serialize();
        XmlDocument::XmlNode* created = m_current->NewChild(name.c_str(), before);
        Compare(earlier, created != nullptr,
                [&](PlainDocument& plain) { plain.New(name, before ? other : std::wstring()); });
        // Only as the first of its name can the plain document find it again.
        if (created && m_current->FirstChild(name.c_str()) == created)
            Enter(name);
    }

    void GoToCurrent(PlainDocument& plain) const
    {
        for (const std::wstring& name : m_path)
            Require(plain.ToChild(name), "the current element is written where it is");
    }

    template <typename Edit>
    bool Matches(const std::string& earlier, Edit edit) const
    {
        PlainDocument plain(earlier);
        GoToCurrent(plain);
        edit(plain);
        return fuzzing::SameContent(plain.Tree().Everything(), DocumentTree(m_document.Serialize()).Everything());
    }

    template <typename Edit>
    void Compare(const std::string& earlier, bool done, Edit edit)
    {
        const std::string later = m_document.Serialize();
        Require(done || later == earlier, "an edit that is refused changes nothing");
        XmlDocument again(L"r");
        Require(static_cast<bool>(again.Parse(later)), "what is written can be read");
        PlainDocument plain(earlier);
        GoToCurrent(plain);
        if (done)
            edit(plain);
        Require(fuzzing::SameContent(plain.Tree().Everything(), DocumentTree(later).Everything()),
                "an edit does what it says, and nothing else");
        CheckSource(earlier, later, plain);
    }

    XmlDocument& m_document;
    XmlDocument::XmlNode* m_current;
    // The names from the root to the current element, by which the plain document, read anew for each edit, gets there.
    std::vector<std::wstring> m_path;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzzing::Input input(data, size);
    std::vector<std::string_view> edits;
    for (std::string_view line = input.TakeLine(); !line.empty(); line = input.TakeLine())
        edits.push_back(line);
    XmlDocument document(L"r");
    if (!document.Parse(input.Rest()))
        return 0;
    Require(document.Serialize() == input.Rest(), "what nobody changes is written back byte for byte");
    Editor editor(document);
    for (std::size_t i = 0; i < edits.size() && i < MostEdits; ++i)
        editor.Do(fuzzing::Wide(edits[i]));
    return 0;
}
