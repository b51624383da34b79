// The elements of a record: found, or made where they are missing.
#pragma once

#include "KZXmlDocument.h"

namespace zep {

// The parent's first child of that name, or a new last one.
[[nodiscard]] XmlDocument::XmlNode& ChildOrNew(XmlDocument::XmlNode& parent, const wchar_t* name);

// The parent's first child of that name whose named value equals the text, or a new last one that has it.
[[nodiscard]] XmlDocument::XmlNode& ChildOrNew(XmlDocument::XmlNode& parent, const wchar_t* name, const wchar_t* value,
                                               const wchar_t* text);

// A new last child with a named value.
[[nodiscard]] XmlDocument::XmlNode& NewChildWith(XmlDocument::XmlNode& parent, const wchar_t* name,
                                                 const wchar_t* value, const wchar_t* text);

}  // namespace zep
