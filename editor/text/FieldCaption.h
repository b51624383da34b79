// What fields are called, in the user's language.
#pragma once

#include <string>

#include "fields/Field.h"

// "Harmonic 5, Network, Warning"
[[nodiscard]] std::wstring FieldCaption(const plant::Field& field);
