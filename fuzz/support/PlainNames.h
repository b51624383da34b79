// Variable names read in the plainest way, rule after rule: what the product's parser must agree with.
#pragma once

#include <optional>
#include <string_view>

#include "VariableName.h"

namespace fuzzing {

[[nodiscard]] std::optional<zep::VariablePosition> ReadName(zep::Family family, std::wstring_view name);

}  // namespace fuzzing
