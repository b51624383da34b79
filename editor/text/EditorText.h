// The editor's own texts, in the language that KZQuorvelantaSetup holds.
#pragma once

#include <afxwin.h>

#include <optional>
#include <string>
#include <string_view>

#include "KZBasicString.h"
#include "KZQuorvelantaSetup.h"
#include "resources/EditorIds.h"

// "en" or "es"; anything else gives nothing.
[[nodiscard]] std::optional<KZLanguage> LanguageFromCode(std::string_view code) noexcept;

// Spanish for a user whose Windows speaks Spanish, otherwise English.
[[nodiscard]] KZLanguage UserLanguage() noexcept;

// The text of an id; empty when the language has none.
[[nodiscard]] std::wstring EditorText(unsigned id);
[[nodiscard]] std::wstring EditorText(unsigned id, KZLanguage language);

// The text as a printf format; %s takes const wchar_t*, %d int.
template <typename... Arguments>
[[nodiscard]] std::wstring FormatEditorText(unsigned id, Arguments... arguments)
{
    return KZBasicString::Format(EditorText(id).c_str(), arguments...).c_str();
}
