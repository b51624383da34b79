// The main configuration keeps one element per driver in each of its lists of setups.
#pragma once

#include "KZXmlDocument.h"

namespace zep {

struct SetupList {
    const wchar_t* list;     // below the document's root
    const wchar_t* element;  // one per driver
};

inline constexpr const wchar_t* DriverIdName = L"driverId";

// The driver's element, the first one of its list; null while it has none.
[[nodiscard]] XmlDocument::XmlNode* FindSetup(const XmlDocument& configuration, const SetupList& setups,
                                              const KZBasicString& driverId);

// Appends an element of the driver to its list, which is created when missing. It is always a new one: looking for an
// existing one is the caller's business.
[[nodiscard]] XmlDocument::XmlNode& AppendSetup(XmlDocument& configuration, const SetupList& setups,
                                                const KZBasicString& driverId);

}  // namespace zep
