// What the plant has to say, in the user's language.
#pragma once

#include <string>

#include "text/Refusal.h"

[[nodiscard]] std::wstring PlantMessage(const plant::Message& message);
