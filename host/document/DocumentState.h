// What a document consists of.
#pragma once

#include <memory>
#include <unordered_map>

#include "DocumentSource.h"
#include "KZXmlDocument.h"
#include "TreeEdit.h"

struct XmlDocument::State {
    DocumentSource source;
    ReplacedTexts replaced;
    bool changed = false;  // the tree differs from the text
    bool dirty = false;
    XmlNode* root = nullptr;
    // The elements that somebody has asked for. Their addresses stay as long as the document's content.
    std::unordered_map<const void*, std::unique_ptr<XmlNode>> nodes;

    // The one object that stands for an element; null for the empty handle.
    [[nodiscard]] XmlNode* NodeOf(XmlDocument& document, pugi::xml_node element);
};
