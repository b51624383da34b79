// What a document consists of.
#pragma once

#include <unordered_map>

#include "DocumentSource.h"
#include "KZXmlDocument.h"
#include "TreeEdit.h"
#include "ValueIndex.h"

struct XmlDocument::State {
    DocumentSource source;
    TreeEdit edit{source.tree};
    bool changed = false;     // the tree differs from the text
    bool wasChanged = false;  // before the edit
    bool dirty = false;
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
            changed = wasChanged;
            throw;
        }
    }
    void Keep() noexcept
    {
        edit.Keep();
        wasChanged = changed;
    }

    // The one object that stands for an element; null for the empty handle.
    [[nodiscard]] XmlNode* NodeOf(XmlDocument& document, pugi::xml_node element);
};
