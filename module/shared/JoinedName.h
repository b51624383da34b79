// Names that screen readers read, of several words: "Harmonic 5, Network, L2".
#pragma once

#include <initializer_list>

#include "KZBasicString.h"

// Empty words are left out.
[[nodiscard]] KZBasicString JoinedName(std::initializer_list<KZBasicString> words);
