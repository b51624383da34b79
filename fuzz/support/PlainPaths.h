// Query paths read and followed in the plainest way, on the XML parser's own tree.
#pragma once

#include <pugixml.hpp>
#include <string>

namespace fuzzing {

// The element that a path names, or an empty handle.
[[nodiscard]] pugi::xml_node FollowPath(pugi::xml_node from, const std::wstring& path);

}  // namespace fuzzing
