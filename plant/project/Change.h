// A change of a project: documents, each with its new bytes.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace plant {

// By the documents' names (DocumentName.h). Nothing stands for a document that is taken out.
using Change = std::map<std::string, std::optional<std::string>>;

[[nodiscard]] inline std::vector<std::string> NamesIn(const Change& change)
{
    std::vector<std::string> names;
    for (const auto& [name, bytes] : change)
        names.push_back(name);
    return names;
}

// "main.xml, devices/zep-01.xml"
[[nodiscard]] inline std::string Joined(const std::vector<std::string>& names, std::string_view separator)
{
    std::string list;
    for (const std::string& name : names)
        list.append(list.empty() ? "" : separator).append(name);
    return list;
}

}  // namespace plant
