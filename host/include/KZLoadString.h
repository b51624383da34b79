// Texts of the host's string table, in the language that KZQuorvelantaSetup holds.
#pragma once

#include "KZBasicString.h"
#include "KZQuorvelantaSetup.h"

// Loads the text of an id (1 to 65535). Returns false, with an empty text, when no language has the id.
// A text that the chosen language lacks comes in English.
KZ_API bool KZLoadString(unsigned id, KZBasicString& text);

// The same as a value; empty when no language has the id.
[[nodiscard]] KZ_API KZBasicString KZLoadString(unsigned id);

// The language identifier (LANGID) of the resources in a language. LoadString and LoadMenu follow the thread's
// language, which Windows versions set in different ways; a resource looked up by its language is the same on all of
// them.
[[nodiscard]] KZ_API unsigned short KZResourceLanguage(KZLanguage language) noexcept;
