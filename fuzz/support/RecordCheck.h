// Checks that every record shares: a document that has been written to.
#pragma once

#include <functional>
#include <pugixml.hpp>
#include <string>

namespace fuzzing {

// The later text must be a document that holds everything of the earlier one but the texts of the elements that
// mayChange names; elements may have been added.
void RequireKept(const std::string& earlier, const std::string& later,
                 const std::function<bool(pugi::xml_node)>& mayChange);

}  // namespace fuzzing
