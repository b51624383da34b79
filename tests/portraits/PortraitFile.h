// The recorded portraits.
#pragma once

#include <string>

// Expects that a portrait is what the file "NAME.LANGUAGE.DPI.txt" of this folder holds; says in a few lines what
// differs. With KZ_PORTRAITS_RENEW in the environment it writes the file instead.
void ExpectPortrait(const std::string& name, const std::string& portrait);
