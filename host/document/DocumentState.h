// What a document consists of.
#pragma once

#include <cstdint>
#include <optional>
#include <unordered_map>

#include "DocumentSource.h"
#include "KZXmlDocument.h"
#include "TreeEdit.h"
#include "ValueIndex.h"

struct XmlDocument::State {
    DocumentSource source;
    TreeEdit edit{source.tree};
    // Which of all its contents the tree has: no two have the same number.
    struct Version {
        std::uint64_t number = 0;
        bool isChanged = false;  // it differs from the text
    };
    Version version;
    Version versionBefore;  // before the edit
    std::uint64_t newestVersion = 0;
    std::optional<std::uint64_t> savedVersion = 0;
    bool dirty = false;
    std::unique_ptr<Change> recorded;  // what is being recorded
    XmlNode* root = nullptr;
    // The elements that somebody has asked for. Their addresses stay as long as the document's content.
    struct Asked : XmlNode {
        Asked(XmlDocument& document, void* element) noexcept : XmlNode(document, element) {}
    };
    std::unordered_map<const void*, Asked> nodes;

    ValueIndexes indexes;

    // Runs a part of an edit. When it throws, the whole edit is taken back.
    template <class Part>
    auto Edit(Part part)
    {
        try {
            return part();
        } catch (...) {
            indexes.Clear();
            edit.Undo([this](const void* element) { nodes.erase(element); });
            version = versionBefore;
            throw;
        }
    }
    void Changed() noexcept { version = {++newestVersion, true}; }
    void Keep() noexcept
    {
        edit.Keep();
        versionBefore = version;
    }
    // The tree has become what it was once.
    void Become(const Version& other) noexcept
    {
        indexes.Clear();
        version = versionBefore = other;
        dirty = savedVersion != other.number;
    }

    // The one object that stands for an element; null for the empty handle.
    [[nodiscard]] XmlNode* NodeOf(XmlDocument& document, pugi::xml_node element);
};

struct XmlDocument::Change::Record {
    std::weak_ptr<State> state;
    TreeSteps steps;
    State::Version before;
    State::Version after;
    bool isTakenBack = false;
};
