// A change of a project: documents, each with its new bytes.
#pragma once

#include <map>
#include <optional>
#include <string>

namespace plant {

// By the documents' names (DocumentName.h). Nothing stands for a document that is taken out.
using Change = std::map<std::string, std::optional<std::string>>;

}  // namespace plant
