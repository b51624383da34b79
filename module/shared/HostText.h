// Texts of the host's string table as values, in the user's language.
#pragma once

#include "Harmonics.h"
#include "KZBasicString.h"

// The text of an id (1 to 65535); empty when the host has none.
[[nodiscard]] KZBasicString HostText(unsigned id);

// What a side is called.
[[nodiscard]] KZBasicString SideText(zep::Side side);

// The text as a printf format; %s takes const wchar_t*, %d int.
template <typename... Arguments>
[[nodiscard]] KZBasicString FormatHostText(unsigned id, Arguments... arguments)
{
    return KZBasicString::Format(HostText(id).c_str(), arguments...);
}
