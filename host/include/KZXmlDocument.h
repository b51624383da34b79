// The host's configuration documents: an element tree whose named values are child elements with text.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "KZBasicString.h"

// In bytes. A larger one is refused before it is read.
inline constexpr std::size_t KZLargestDocument = 64U << 20;

// How a document operation ended: empty message on success, otherwise one line that names the file, the reason and,
// for a text that is not well-formed, the line and column.
struct KZDocumentResult {
    bool ok = true;
    KZBasicString message;

    explicit operator bool() const noexcept { return ok; }
};

class XmlDocument;

// Hears when what was changed in a document is meant: a dialog or command says so by SetDirty(true).
class KZCommitListener {
public:
    virtual void OnCommit(XmlDocument& document) noexcept = 0;

protected:
    ~KZCommitListener() = default;
};

class KZ_API XmlDocument {
public:
    // A look at an element, for passing over many of them: unlike an XmlNode it costs no memory. An empty one has no
    // name, text or children. Valid until the document changes.
    class KZ_API Element {
    public:
        Element() = default;
        [[nodiscard]] explicit operator bool() const noexcept { return m_element != nullptr; }
        [[nodiscard]] const wchar_t* Name() const noexcept;
        // As XmlNode::Value gives it.
        [[nodiscard]] const wchar_t* Text() const noexcept;
        // Elements of any name; empty when there is none.
        [[nodiscard]] Element FirstChild() const noexcept;
        [[nodiscard]] Element NextSibling() const noexcept;

    private:
        friend class XmlDocument;
        explicit Element(void* element) noexcept : m_element(element) {}
        void* m_element = nullptr;
    };

    class KZ_API XmlNode {
    public:
        // The element's name; valid until the next Parse or Load.
        [[nodiscard]] const wchar_t* Name() const noexcept;

        // The text at a path of named values below this element ("information/mode"), or the default when there is no
        // such element. Where comments or elements divide an element's text, its first piece counts. The pointer is
        // valid until that value or the document changes.
        [[nodiscard]] const wchar_t* Value(const wchar_t* path, const wchar_t* defaultText) const noexcept;

        // The first element that a query path names, or null. Steps are separated by "/"; a step "name?value=text?"
        // takes the first child "name" whose named value equals the text exactly. The text runs to the last "?" of its
        // step, the one with a "/" or the end of the path behind it, and may hold any other character, "/" included.
        [[nodiscard]] XmlNode* Node(const wchar_t* path) const;

        // The same with the path formatted as printf does (%s is const wchar_t*, %d int). An argument that stands for a
        // whole text may hold anything but a "?" followed by "/".
        [[nodiscard]] XmlNode* NodeV(const wchar_t* format, ...) const;

        // Creates a child element: before the given child, or as the last one when before is null. It gets a line of
        // its own, indented as its siblings are, where they have such lines. Returns null, changing nothing, when name
        // is no element name, before is not a child of this element, or this element is nested 256 deep.
        XmlNode* NewChild(const wchar_t* name, XmlNode* before);

        // Sets the text of the named value (a direct child), creating the child when there is none. The text that it
        // has already changes nothing. Line ends are kept as "\n" in memory; a character that XML cannot hold becomes
        // U+FFFD. A null text is the empty one. Returns false, changing nothing, when name is no element name or the
        // child would have to be created in an element that is nested 256 deep.
        bool SetValue(const wchar_t* name, const wchar_t* text);
        bool SetValue(const wchar_t* name, int value);

        // Takes a child element out, with all that is in it and the blanks that put it on a line of its own; its
        // XmlNodes are then invalid. Returns false, changing nothing, when it is no child of this element or null.
        bool RemoveChild(XmlNode* child);

        [[nodiscard]] Element Look() const noexcept { return Element(m_element); }

        // First child and next sibling with the given element name, or null.
        [[nodiscard]] XmlNode* FirstChild(const wchar_t* name) const;
        [[nodiscard]] XmlNode* NextSibling(const wchar_t* name) const;

        // A number that elements of the same names, attributes and texts have in common; texts of blanks alone and
        // comments do not count. It tells changes, not attacks.
        [[nodiscard]] std::uint64_t Fingerprint() const noexcept;

        XmlNode(const XmlNode&) = delete;
        XmlNode& operator=(const XmlNode&) = delete;
        ~XmlNode() = default;

    private:
        friend class XmlDocument;
        XmlNode(XmlDocument& document, void* element) noexcept;
        [[nodiscard]] XmlNode* Wrap(void* element) const;
        XmlDocument* m_document;
        void* m_element;
    };

    // An empty document with one root element of the given name. Throws std::invalid_argument when it is no element
    // name.
    // Every operation that needs memory throws std::bad_alloc when there is none. All that was changed since SetDirty
    // was last called, or since the document was read or saved, is then taken back, so that what a caller writes
    // between two such moments is in the document whole or not at all. Elements that were new in it are gone, their
    // XmlNodes too.
    explicit XmlDocument(const wchar_t* rootName);
    virtual ~XmlDocument();
    XmlDocument(const XmlDocument&) = delete;
    XmlDocument& operator=(const XmlDocument&) = delete;

    // Replaces the content by that of a UTF-8 text or file whose root element must have this document's root name; the
    // document is then clean. What nobody changes is written back byte for byte. What is not well-formed,
    // has a document type declaration, is larger than 64 MB or nested deeper than 256 is refused.
    // On failure the content stays as it was; otherwise every XmlNode of the old content is invalid afterwards.
    KZDocumentResult Parse(std::string_view utf8);
    KZDocumentResult Load(const std::filesystem::path& file);

    // Writes the document as UTF-8 beside the file, flushes it and moves it over the file in one step; the document is
    // then clean. On failure the old file stands untouched and the document stays dirty.
    KZDocumentResult Save(const std::filesystem::path& file);
    [[nodiscard]] std::string Serialize() const;

    // The root element; never null, valid until the next Parse or Load.
    [[nodiscard]] XmlNode* Root() const noexcept;

    // The same as Root()->Node(path).
    [[nodiscard]] XmlNode* Node(const wchar_t* path) const;

    // Whether the content differs from the file. A document is dirty when somebody says so, not on every change: a
    // dialog may set values and the owner still decide that nothing is to be saved.
    void SetDirty(bool dirty) noexcept;
    [[nodiscard]] bool IsDirty() const noexcept;

    // What was changed while it was recorded. It may outlive the document and its content.
    class KZ_API Change {
    public:
        ~Change();
        Change(const Change&) = delete;
        Change& operator=(const Change&) = delete;

        // The memory that it holds, in bytes, about.
        [[nodiscard]] std::size_t Size() const noexcept;

    private:
        friend class XmlDocument;
        struct Record;
        Change();
        std::unique_ptr<Record> m_record;
    };

    // Records what is changed from now on; what was changed before is then for good, whoever runs out of memory later.
    // Throws std::bad_alloc, and records nothing then.
    void StartRecording();
    // Returns what was recorded, or null when the content is what it was, or another one that was read meanwhile.
    [[nodiscard]] std::unique_ptr<Change> StopRecording() noexcept;

    // Takes a change back, or makes it again, to the same bytes. The document is dirty then unless it is what was last
    // read or saved; nobody hears of it. Returns false, changing nothing, when the document is not what the change has
    // left, or has found. XmlNodes of elements that are no longer there must not be used until they are again.
    bool TakeBack(Change& change) noexcept;
    bool MakeAgain(Change& change) noexcept;

    // Who hears of every SetDirty(true), when the document is dirty already too; null for nobody. Not owned. Stays when
    // the content is replaced.
    void SetCommitListener(KZCommitListener* listener) noexcept { m_listener = listener; }

private:
    friend class XmlNode;
    struct State;
    KZDocumentResult Replace(std::string_view utf8, const wchar_t* rootName);
    std::shared_ptr<State> m_state;
    KZCommitListener* m_listener = nullptr;
};
